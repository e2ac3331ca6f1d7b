#include "desktop/candidatures/candidature_detail_pane.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "ads/contracts.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/status_dot.h"
#include "desktop/widgets/text_edge.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

constexpr int LabelColumn = 122;
constexpr int ShortField = 102;
constexpr int ShortLabel = 98;
constexpr int ColumnWidth = 420;  // two columns from twice that on, at the usual size of text
constexpr int ColumnGap = 24;
constexpr int LabelGap = 8;
constexpr int RowGap = 5;
const QString FirstColumn = QStringLiteral("libelle");  // names of the labels in them
const QString SecondColumn = QStringLiteral("libelle2");

QGridLayout* MakeGrid(QWidget* block) {
  auto* grid = new QGridLayout(block);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(LabelGap);
  grid->setVerticalSpacing(RowGap);
  grid->setColumnStretch(1, 1);
  return grid;
}

QLabel* MakeFirstLabel(const QString& caption, QWidget* field) {
  QLabel* label = MakeLabel(caption, field, field->parentWidget());
  label->setObjectName(FirstColumn);
  return label;
}

void AddRow(QGridLayout* grid, const QString& caption, QWidget* field) {
  const int row = grid->rowCount();
  grid->addWidget(MakeFirstLabel(caption, field), row, 0);
  grid->addWidget(field, row, 1);
}

// A field of several lines: its label stands at the top.
void AddTallRow(QGridLayout* grid, const QString& caption, QWidget* field, QWidget* under = nullptr) {
  const int row = grid->rowCount();
  auto* side = new QVBoxLayout;
  side->setContentsMargins(0, 5, 0, 0);
  side->setSpacing(2);
  side->addWidget(MakeFirstLabel(caption, field));
  if (under != nullptr) side->addWidget(under, 0, Qt::AlignLeft);
  side->addStretch(1);
  grid->addLayout(side, row, 0);
  grid->addWidget(field, row, 1);
  grid->setRowStretch(row, 1);
}

}  // namespace

CandidatureDetailPane::CandidatureDetailPane(const Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme) {
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Candidature"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeActionBar());
  column->addWidget(MakeLine(theme, this));

  scroll_ = new QScrollArea(this);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  QWidget* content = MakePlane(QStringLiteral("surface"), scroll_);
  columns_ = new QHBoxLayout(content);
  columns_->setContentsMargins(11, 10, 11, 12);
  for (QVBoxLayout** half : {&left_, &right_}) {
    *half = new QVBoxLayout;
    (*half)->setSpacing(8);
    columns_->addLayout(*half, half == &left_ ? 1 : 0);
  }
  for (int i = 0; i < 3; ++i) lines_.append(MakeLine(theme, content));
  for (QWidget* part : {MakePostBlock(), MakeCompanyBlock(), MakeAdvertisementBlock(), MakeFollowUpBlock()})
    parts_.append(part);
  Arrange(false);
  scroll_->setWidget(content);
  FitLabels();
  column->addWidget(scroll_, 1);
  FillChoices();
  ChainTabs();
}

int CandidatureDetailPane::EdgesWidth() const {
  const QMargins margins = columns_->contentsMargins();
  return margins.left() + margins.right() + scroll_->verticalScrollBar()->sizeHint().width();
}

QWidget* CandidatureDetailPane::MakeActionBar() {
  auto* bar = actions_ = new QWidget(this);
  bar->setFixedHeight(TextPixels(43));
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(10, 0, 10, 0);
  row->setSpacing(6);
  const auto add = [&](const QString& libelle, DetailAction action) {
    auto* button = new BoutonTLV(theme_, libelle, bar);
    button->setObjectName(QStringLiteral("Action%1").arg(static_cast<int>(action)));
    button->setProperty("dense", true);
    connect(button, &QPushButton::clicked, this, [this, action] {
      if (OnAction) OnAction(action);
    });
    row->addWidget(button);
    return button;
  };
  add(tr("&Nouvelle"), DetailAction::New);
  add(tr("&Valider"), DetailAction::Save);
  add(tr("Su&pprimer"), DetailAction::Delete);
  row->addStretch(1);
  internet_ = add(tr("&Internet"), DetailAction::ShowBrowser);
  internet_->setCheckable(true);
  TintIcon(theme_, *internet_, QStringLiteral("globe"), QStringLiteral("primary"));
  return bar;
}

QLineEdit* CandidatureDetailPane::Line(const QString& name, QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(name);
  fields_.append(field);
  return field;
}

QPlainTextEdit* CandidatureDetailPane::Lines(const QString& name, int height, QWidget* parent) {
  auto* field = new QPlainTextEdit(parent);
  field->setObjectName(name);
  field->setTabChangesFocus(true);
  field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // the lines are broken
  field->document()->setDocumentMargin(3);
  field->setMinimumHeight(TextPixels(height));
  field->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  fields_.append(field);
  return field;
}

// Two short fields, on one row where there is room for both.
void CandidatureDetailPane::AddPair(QGridLayout* grid, const QString& first, QLineEdit* left,
                                    const QString& second, QLineEdit* right) {
  const int row = grid->rowCount();
  // Folded, the label stands beside the first of the two.
  QLabel* caption = MakeFirstLabel(first, left);
  caption->setMinimumHeight(left->sizeHint().height());
  grid->addWidget(caption, row, 0, Qt::AlignTop);
  auto* pair = new FoldingRow(left->parentWidget());
  pair->Row().setSpacing(LabelGap);
  for (QLineEdit* field : {left, right}) {
    const bool date = field->objectName().startsWith(QStringLiteral("Date"));
    field->setMinimumWidth(FieldWidth(*field, date ? QStringLiteral("00/00/0000") : tr("Indéterminée")));
  }
  QLabel* label = MakeLabel(second, right, right->parentWidget());
  label->setObjectName(SecondColumn);
  auto* behind = new QHBoxLayout;
  behind->setSpacing(LabelGap);
  behind->addWidget(label);
  behind->addWidget(right, 1);
  pair->Row().addWidget(left, ShortField);
  pair->Row().addLayout(behind, ShortField + ShortLabel);
  pairs_.append(pair);
  grid->addWidget(pair, row, 1);
}

QWidget* CandidatureDetailPane::MakePostBlock() {
  auto* block = new QWidget(this);
  QGridLayout* grid = MakeGrid(block);
  title_ = Line(QStringLiteral("Intitule"), block);
  AddRow(grid, tr("Intitulé du poste"), title_);
  title_->setAccessibleDescription(tr("obligatoire"));
  nature_ = new ChoiceField(theme_, QStringLiteral("Image1"), QStringLiteral("ListeContrats"), block);
  nature_->setObjectName(QStringLiteral("Nature"));
  fields_.append(nature_);
  AddRow(grid, tr("Nature du contrat"), nature_);
  AddRow(grid, tr("Lieu d'exécution"), Line(QStringLiteral("Lieu"), block));
  QLineEdit* duration = Line(QStringLiteral("Duree"), block);
  AddPair(grid, tr("Durée"), duration, tr("Salaire proposé"), Line(QStringLiteral("Salaire"), block));
  description_ = Lines(QStringLiteral("Description"), 58, block);
  QPushButton* analyse =
      MakeLink(theme_, QStringLiteral("analyse"), tr("Anal&yser"), QStringLiteral("Analyser"), block);
  connect(analyse, &QPushButton::clicked, this, [this] {
    if (OnAnalyser) OnAnalyser();
  });
  fields_.append(analyse);
  AddTallRow(grid, tr("D&escription du poste"), description_, analyse);
  return block;
}

QWidget* CandidatureDetailPane::MakeCompanyBlock() {
  auto* block = new QWidget(this);
  QGridLayout* grid = MakeGrid(block);
  AddRow(grid, tr("Société"), Line(QStringLiteral("Societe"), block));
  AddRow(grid, tr("Nom du contact"), Line(QStringLiteral("NomContact"), block));
  AddRow(grid, tr("Téléphone"), Line(QStringLiteral("Telephone"), block));
  AddRow(grid, tr("Courriel"), Line(QStringLiteral("Email"), block));

  const int row = grid->rowCount();
  QLineEdit* street = Line(QStringLiteral("Adresse"), block);
  QLineEdit* postcode = Line(QStringLiteral("CP"), block);
  QLineEdit* town = Line(QStringLiteral("Ville"), block);
  QLabel* caption = MakeFirstLabel(tr("Adresse"), street);
  caption->setMinimumHeight(street->sizeHint().height());
  grid->addWidget(caption, row, 0, Qt::AlignTop);
  postcode->setAccessibleName(tr("Code postal"));
  postcode->setFixedWidth(FieldWidth(*postcode, QStringLiteral("000000")));
  town->setAccessibleName(tr("Ville"));
  street->setMinimumWidth(FieldWidth(*street, tr("18 quai des")));
  town->setMinimumWidth(FieldWidth(*town, tr("Grenoble")));
  auto* address = new FoldingRow(block);
  address->Row().setSpacing(5);
  auto* place = new QHBoxLayout;
  place->setSpacing(5);
  place->addWidget(postcode);
  place->addWidget(town, 1);
  address->Row().addWidget(street, 2);
  address->Row().addLayout(place, 1);
  pairs_.append(address);
  grid->addWidget(address, row, 1);
  return block;
}

QWidget* CandidatureDetailPane::MakeAdvertisementBlock() {
  auto* block = new QWidget(this);
  QGridLayout* grid = MakeGrid(block);
  QLineEdit* reference = Line(QStringLiteral("Reference"), block);
  AddPair(grid, tr("Ref"), reference, tr("Date de diffusion"), Line(QStringLiteral("DateDiffusion"), block));
  AddRow(grid, tr("Origine de l'annonce"), Line(QStringLiteral("Origine"), block));
  AddRow(grid, tr("Adresse Internet"), link_ = Line(QStringLiteral("www"), block));
  return block;
}

QWidget* CandidatureDetailPane::MakeFollowUpBlock() {
  auto* block = new QWidget(this);
  QGridLayout* grid = MakeGrid(block);
  statut_ = new ChoiceField(theme_, QStringLiteral("Image2"), QStringLiteral("ListeStatuts"), block);
  statut_->setObjectName(QStringLiteral("Statut"));
  QFont strong = statut_->font();
  strong.setWeight(QFont::DemiBold);
  statut_->setFont(strong);
  statusDot_ = statut_->addAction(QIcon(), QLineEdit::LeadingPosition);
  statusDot_->setVisible(false);
  fields_.append(statut_);
  postuler_ = new QPushButton(tr("P&ostuler"), block);
  postuler_->setObjectName(QStringLiteral("PicturePostuler"));
  postuler_->setProperty("role", QStringLiteral("primary"));
  postuler_->setProperty("dense", true);
  TintIcon(theme_, *postuler_, QStringLiteral("send"), QStringLiteral("onprimary"));
  connect(postuler_, &QPushButton::clicked, this, [this] {
    if (OnPostuler) OnPostuler();
  });
  fields_.append(postuler_);
  const int row = grid->rowCount();
  grid->addWidget(MakeFirstLabel(tr("Statut candidature"), statut_), row, 0);
  auto* status = new QHBoxLayout;
  status->setSpacing(6);
  status->addWidget(statut_, 1);
  status->addWidget(postuler_);
  grid->addLayout(status, row, 1);

  QLineEdit* sent = Line(QStringLiteral("DateEnvoi"), block);
  AddPair(grid, tr("Date d'envoi"), sent, tr("limite rép."), Line(QStringLiteral("DateLimite"), block));
  interview_ = Line(QStringLiteral("DateRDV"), block);
  AddPair(grid, tr("Date RDV"), interview_, tr("CV"), Line(QStringLiteral("CV"), block));
  AddTallRow(grid, tr("Lettre"), Lines(QStringLiteral("Lettre"), 40, block));
  AddTallRow(grid, tr("Remar&ques"), Lines(QStringLiteral("Remarques"), 54, block));
  return block;
}

void CandidatureDetailPane::FillChoices() {
  for (const TextView contract : ListeContrats) nature_->AddRow(ToQt(contract));
  for (const TextView status : ListeStatuts) statut_->AddRow(ToQt(status), StatusDot(theme_, status));
  connect(&theme_, &Theme::Changed, this, [this] {
    for (std::size_t i = 0; i < ListeStatuts.size(); ++i)
      statut_->SetRowIcon(static_cast<int>(i), StatusDot(theme_, ListeStatuts[i]));
    dotOf_.clear();
    ShowStatusDot(FromQt(statut_->text()));
  });
}

// The fields follow one another as they are read.
void CandidatureDetailPane::ChainTabs() {
  for (qsizetype i = 1; i < fields_.size(); ++i) setTabOrder(fields_[i - 1], fields_[i]);
}

// Every label of the first column has the width of the widest, so that the fields of all blocks stand in one
// line; those of the second column have one of their own, or what each of them asks for.
void CandidatureDetailPane::AlignLabels(int second) {
  int widest = TextPixels(LabelColumn);
  for (const QWidget* part : parts_)
    for (const QLabel* label : part->findChildren<QLabel*>(FirstColumn))
      widest = std::max(widest, label->sizeHint().width());
  for (QWidget* part : parts_) {
    for (QLabel* label : part->findChildren<QLabel*>(FirstColumn)) label->setFixedWidth(widest);
    for (QLabel* label : part->findChildren<QLabel*>(SecondColumn))
      label->setMinimumWidth(std::max(second, label->sizeHint().width()));
    static_cast<QGridLayout*>(part->layout())->setColumnMinimumWidth(0, widest);
  }
}

// The widest block, with its pairs on one row or folded.
int CandidatureDetailPane::PartWidth(bool folded) const {
  int width = 0;
  for (const QWidget* part : parts_) {
    part->layout()->activate();
    width = std::max(width, part->layout()->minimumSize().width());
  }
  if (folded) return width;
  const int label = parts_.front()->layout()->itemAt(0)->minimumSize().width() + LabelGap;
  for (const FoldingRow* pair : pairs_) width = std::max(width, label + pair->WholeWidth());
  return width;
}

// Nothing of the form slides out of sight sideways: where the pane is narrow the second labels lose their
// alignment first, then the pairs stand on two rows.
void CandidatureDetailPane::FitLabels() {
  const int columns = twoColumns_ ? 2 : 1;
  const int room = (width() - EdgesWidth() - (columns - 1) * ColumnGap) / columns;
  AlignLabels(TextPixels(ShortLabel));
  roomyWidth_ = PartWidth(false) + EdgesWidth();
  setMinimumWidth(std::max(actions_->minimumSizeHint().width(), PartWidth(true) + EdgesWidth()));
  if (PartWidth(false) <= room) return;
  AlignLabels(0);
  if (PartWidth(false) > room) AlignLabels(TextPixels(ShortLabel));
}

// One column, or post and advertisement on the left, company and follow-up on the right.
void CandidatureDetailPane::Arrange(bool twoColumns) {
  twoColumns_ = twoColumns;
  enum { Post, Company, Advertisement, FollowUp };
  const QList<int> order = twoColumns ? QList<int>{Post, Advertisement, Company, FollowUp}
                                      : QList<int>{Post, Company, Advertisement, FollowUp};
  for (QWidget* part : parts_) {
    left_->removeWidget(part);
    right_->removeWidget(part);
  }
  for (QFrame* line : lines_) {
    left_->removeWidget(line);
    right_->removeWidget(line);
    line->hide();
  }
  qsizetype line = 0;
  for (const int part : order) {
    QVBoxLayout* column = twoColumns && (part == Company || part == FollowUp) ? right_ : left_;
    if (column->count() > 0) {
      column->addWidget(lines_[line]);
      lines_[line++]->show();
    }
    column->addWidget(parts_[part], part == Post || part == FollowUp ? 1 : 0);
  }
  columns_->setStretch(1, twoColumns ? 1 : 0);
  columns_->setSpacing(twoColumns ? ColumnGap : 0);
}

void CandidatureDetailPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  FitLabels();
}

void CandidatureDetailPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const bool twoColumns =
      width() >= std::max(2 * TextPixels(ColumnWidth), 2 * PartWidth(true) + ColumnGap + EdgesWidth());
  if (twoColumns != twoColumns_) Arrange(twoColumns);
  FitLabels();
}

void CandidatureDetailPane::ShowInternet(bool shown) { internet_->setChecked(shown); }
void CandidatureDetailPane::ShowPostuler(bool shown) { postuler_->setVisible(shown); }

void CandidatureDetailPane::ShowStatusDot(TextView status) {
  const QString shown = ToQt(status);
  if (shown == dotOf_ && statusDot_->isVisible() != shown.isEmpty()) return;
  dotOf_ = shown;
  statusDot_->setIcon(StatusDot(theme_, status));
  statusDot_->setVisible(!shown.isEmpty());
}

}  // namespace talvor
