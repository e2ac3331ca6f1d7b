#include "desktop/letters/letter_sender_pane.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QShortcut>

#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int LeastWidth = 288;
constexpr int RowGap = 5;
constexpr int CvRow = 26;
constexpr int LeastTown = 44;

QGridLayout* MakeGrid(QWidget* block) {
  auto* grid = new QGridLayout(block);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(RowGap);
  grid->setColumnStretch(1, 1);
  // Both blocks keep their fields in one line.
  grid->setColumnMinimumWidth(0,
                              block->fontMetrics().horizontalAdvance(block->tr("Dernier poste occupé")) + 2);
  return grid;
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
  setMinimumWidth(LeastWidth);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* title = new QLabel(tr("Expéditeur"), this);
  title->setProperty("role", QStringLiteral("title"));
  title->setFixedHeight(39);
  title->setContentsMargins(12, 0, 12, 0);
  column->addWidget(title);
  column->addWidget(MakeLine(theme, this));

  auto* scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  QWidget* content = MakePlane(QStringLiteral("surface"), scroll);
  auto* blocks = new QVBoxLayout(content);
  blocks->setContentsMargins(12, 10, 12, 12);
  blocks->setSpacing(8);
  blocks->addWidget(MakeIdentity());
  blocks->addWidget(MakeLine(theme, content));
  blocks->addWidget(MakeCareer());
  blocks->addWidget(MakeCvs());
  blocks->addStretch(1);
  scroll->setWidget(content);
  column->addWidget(scroll, 1);
  connect(&theme, &Theme::Changed, this, &LetterSenderPane::FillCvs);
}

QLineEdit* LetterSenderPane::Line(const QString& name, QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(name);
  fields_.append(field);
  return field;
}

void LetterSenderPane::AddRow(QGridLayout* grid, const QString& caption, QWidget* field) {
  const int row = grid->rowCount();
  grid->addWidget(MakeLabel(caption, field, field->parentWidget()), row, 0);
  grid->addWidget(field, row, 1);
}

void LetterSenderPane::AddPlace(QGridLayout* grid, QWidget* parent) {
  const int row = grid->rowCount();
  QLineEdit* postcode = Line(QStringLiteral("CP"), parent);
  QLineEdit* town = Line(QStringLiteral("Ville"), parent);
  grid->addWidget(MakeLabel(tr("CP / Ville"), postcode, parent), row, 0);
  postcode->setAccessibleName(tr("Code postal"));
  postcode->setFixedWidth(postcode->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 18);
  town->setAccessibleName(tr("Ville"));
  town->setMinimumWidth(LeastTown);
  auto* place = new QHBoxLayout;
  place->setSpacing(5);
  place->addWidget(postcode);
  place->addWidget(town, 1);
  grid->addLayout(place, row, 1);
}

QWidget* LetterSenderPane::MakeIdentity() {
  auto* block = new QWidget(this);
  QGridLayout* grid = MakeGrid(block);
  AddRow(grid, tr("Nom"), Line(QStringLiteral("Nom"), block));
  AddRow(grid, tr("Prénom"), prenom_ = Line(QStringLiteral("Prénom"), block));
  AddRow(grid, tr("Adresse 1"), Line(QStringLiteral("Adresse1"), block));
  AddRow(grid, tr("Adresse 2"), Line(QStringLiteral("Adresse2"), block));
  AddPlace(grid, block);
  AddRow(grid, tr("Pays"), Line(QStringLiteral("Pays"), block));
  AddRow(grid, tr("Tel fixe"), Line(QStringLiteral("Tel"), block));
  AddRow(grid, tr("Mob"), Line(QStringLiteral("Mob"), block));
  AddRow(grid, tr("Courriel"), email_ = Line(QStringLiteral("Email"), block));
  prenom_->installEventFilter(this);
  email_->installEventFilter(this);
  return block;
}

QWidget* LetterSenderPane::MakeCareer() {
  auto* block = new QWidget(this);
  QGridLayout* grid = MakeGrid(block);
  AddRow(grid, tr("Dernier poste occupé"), Line(QStringLiteral("Poste"), block));
  AddRow(grid, tr("Dernière société"), Line(QStringLiteral("LastSociete"), block));
  AddRow(grid, tr("Compétences"), Line(QStringLiteral("Competences"), block));
  AddRow(grid, tr("Domaine"), Line(QStringLiteral("Domaine"), block));
  AddRow(grid, tr("Fonction"), Line(QStringLiteral("Fonction"), block));
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
  list_->setFixedHeight(CvRow * static_cast<int>(FormLettre::CvCount) + 4);
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
  cvs_->setVisible(form.ListeCVVisible);
}

bool LetterSenderPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    const auto& left = watched == email_ ? OnLeaveEmail : OnLeavePrénom;
    const bool staysHere = reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
    if (!staysHere && left) left();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace talvor
