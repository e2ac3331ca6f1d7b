#include "desktop/letters/letter_sender_pane.h"

#include <QFocusEvent>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

#include "desktop/widgets/pane.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int RowGap = 5;
constexpr int Edge = 12;
constexpr int CvRow = 26;

QFormLayout* MakeGrid(QWidget* block) {
  auto* grid = new QFormLayout(block);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(RowGap);
  grid->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  grid->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  return grid;
}

// The fields stand beside their labels where there is room for what they usually hold, else below.
void FitRows(QFormLayout& form, int room) {
  int label = 0;
  int field = 0;
  for (int row = 0; row < form.rowCount(); ++row) {
    label = std::max(label, form.itemAt(row, QFormLayout::LabelRole)->minimumSize().width());
    field = std::max(field, form.itemAt(row, QFormLayout::FieldRole)->minimumSize().width());
  }
  form.parentWidget()->setMinimumWidth(field);
  form.setRowWrapPolicy(label + form.horizontalSpacing() + field > room ? QFormLayout::WrapAllRows
                                                                        : QFormLayout::DontWrapRows);
}

QString IconOf(const QString& cv) {
  if (cv.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) return QStringLiteral("cv-pdf");
  return cv.contains(QLatin1Char('.')) ? QStringLiteral("cv-word") : QStringLiteral("cv");
}

}  // namespace

LetterSenderPane::LetterSenderPane(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Expéditeur"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* title = new QLabel(tr("Expéditeur"), this);
  title->setProperty("role", QStringLiteral("title"));
  title->setFixedHeight(TextPixels(39));
  title->setContentsMargins(12, 0, 12, 0);
  column->addWidget(title);
  column->addWidget(MakeLine(theme, this));

  auto* scroll = scroll_ = new PaneScroll(this);
  QWidget* content = MakePlane(QStringLiteral("surface"), scroll);
  auto* blocks = new QVBoxLayout(content);
  blocks->setContentsMargins(Edge, 10, Edge, 12);
  blocks->setSpacing(8);
  blocks->addWidget(MakeIdentity());
  blocks->addWidget(MakeLine(theme, content));
  blocks->addWidget(MakeCareer());
  blocks->addWidget(MakeCvs());
  blocks->addStretch(1);
  scroll->setWidget(content);
  column->addWidget(scroll, 1);
  connect(&theme, &Theme::Changed, this, &LetterSenderPane::FillCvs);
  FitForms();
}

QLineEdit* LetterSenderPane::Line(const QString& name, QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(name);
  fields_.append(field);
  return field;
}

void LetterSenderPane::AddRow(QFormLayout* grid, const QString& caption, QWidget* field,
                              const QString& usual) {
  field->setMinimumWidth(FieldWidth(*field, usual));
  grid->addRow(MakeLabel(caption, field, field->parentWidget()), field);
}

void LetterSenderPane::AddPlace(QFormLayout* grid, QWidget* parent) {
  QLineEdit* postcode = Line(QStringLiteral("CP"), parent);
  QLineEdit* town = Line(QStringLiteral("Ville"), parent);
  QLabel* label = MakeLabel(tr("CP / Ville"), postcode, parent);
  postcode->setAccessibleName(tr("Code postal"));
  postcode->setFixedWidth(FieldWidth(*postcode, QStringLiteral("000000")));
  town->setAccessibleName(tr("Ville"));
  town->setMinimumWidth(FieldWidth(*town, tr("Grenoble")));
  auto* place = new QHBoxLayout;
  place->setSpacing(5);
  place->addWidget(postcode);
  place->addWidget(town, 1);
  grid->addRow(label, place);
}

QWidget* LetterSenderPane::MakeIdentity() {
  auto* block = new QWidget(this);
  QFormLayout* grid = identity_ = MakeGrid(block);
  AddRow(grid, tr("Nom"), name_ = Line(QStringLiteral("Nom"), block), tr("Marchand"));
  AddRow(grid, tr("Prénom"), prenom_ = Line(QStringLiteral("Prénom"), block), tr("Jean-Christophe"));
  AddRow(grid, tr("Adresse 1"), Line(QStringLiteral("Adresse1"), block), tr("18 quai des Tanneurs"));
  AddRow(grid, tr("Adresse 2"), Line(QStringLiteral("Adresse2"), block), tr("18 quai des Tanneurs"));
  AddPlace(grid, block);
  AddRow(grid, tr("Pays"), Line(QStringLiteral("Pays"), block), tr("Française"));
  AddRow(grid, tr("Tel fixe"), Line(QStringLiteral("Tel"), block), tr("06 00 00 00 00"));
  AddRow(grid, tr("Mob"), Line(QStringLiteral("Mob"), block), tr("06 00 00 00 00"));
  AddRow(grid, tr("Courriel"), email_ = Line(QStringLiteral("Email"), block),
         tr("prenom.nom@fournisseur.com"));
  prenom_->installEventFilter(this);
  email_->installEventFilter(this);
  return block;
}

QWidget* LetterSenderPane::MakeCareer() {
  auto* block = new QWidget(this);
  QFormLayout* grid = career_ = MakeGrid(block);
  AddRow(grid, tr("Dernier poste occupé"), Line(QStringLiteral("Poste"), block),
         tr("Chargée de communication"));
  AddRow(grid, tr("Dernière société"), Line(QStringLiteral("LastSociete"), block),
         tr("Chargée de communication"));
  AddRow(grid, tr("Compétences"), Line(QStringLiteral("Competences"), block), tr("Chargée de communication"));
  AddRow(grid, tr("Domaine"), Line(QStringLiteral("Domaine"), block), tr("Chargée de communication"));
  AddRow(grid, tr("Fonction"), Line(QStringLiteral("Fonction"), block), tr("Chargée de communication"));
  return block;
}

QWidget* LetterSenderPane::MakeCvs() {
  cvs_ = new QWidget(this);
  cvs_->setObjectName(QStringLiteral("ListeCV"));
  auto* column = new QVBoxLayout(cvs_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  column->addWidget(MakeLine(theme_, cvs_));
  auto* frame = new QFrame(cvs_);
  frame->setProperty("card", true);
  auto* inside = new QVBoxLayout(frame);
  inside->setContentsMargins(3, 3, 3, 3);
  list_ = new QListWidget(frame);
  list_->setObjectName(QStringLiteral("NomCV"));
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setTextElideMode(Qt::ElideMiddle);
  list_->setFixedHeight(TextPixels(CvRow) * static_cast<int>(FormLettre::CvCount) + 4);
  inside->addWidget(list_);
  column->addWidget(MakeLabel(tr("Reprendre les informations d'un CV"), list_, cvs_));
  column->addWidget(frame);
  fields_.append(list_);
  connect(list_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { ChooseCv(list_->row(item)); });
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
    connect(new QShortcut(QKeySequence(key), list_, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, [this] { ChooseCv(list_->currentRow()); });
  return cvs_;
}

void LetterSenderPane::ChooseCv(int row) {
  if (row >= 0 && OnCv) OnCv(static_cast<std::size_t>(row));
}

void LetterSenderPane::FillCvs() {
  list_->clear();
  for (const QString& name : names_) {
    auto* item = new QListWidgetItem(theme_.Icon(IconOf(name), QStringLiteral("text2")), name, list_);
    item->setToolTip(ToolTipText(FromQt(name)));
    // Made elsewhere: it has no fields to take.
    if (name.contains(QLatin1Char('.'))) item->setForeground(theme_.Color(QStringLiteral("text3")));
  }
}

void LetterSenderPane::ShowCvs(const FormLettre& form) {
  QStringList names;
  for (const Text& name : form.NomCV)
    if (!name.empty()) names.append(ToQt(name));
  if (names != names_) {
    names_ = names;
    FillCvs();
  }
  cvs_->setVisible(form.CvListVisible);
}

void LetterSenderPane::FitForms() {
  const int room = width() - 2 * Edge - scroll_->verticalScrollBar()->sizeHint().width();
  for (QFormLayout* form : {identity_, career_}) FitRows(*form, room);
}

void LetterSenderPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  FitForms();
}

void LetterSenderPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitForms();
}

bool LetterSenderPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    const auto& left = watched == email_ ? OnLeaveEmail : OnLeavePrenom;
    const bool staysHere = reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
    if (!staysHere && left) left();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace talvor
