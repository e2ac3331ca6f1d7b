#include "desktop/cv/cv_zones_pane.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QImage>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "cv/editor_texts.h"
#include "desktop/cv/cv_zone_fields.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr QSize PhotoSize{92, 112};
constexpr int RowGap = 4;
constexpr int ColumnGap = 14;
constexpr int LeastPane = 520;
const char* const HelpIcon = "helpIcon";

struct HelpPlace {
  TextView field;
  int icon;
};
constexpr std::array<HelpPlace, 6> HelpPlaces{{{u"Etudes", 12},
                                               {u"Experiences", 14},
                                               {u"LanguesPlus", 15},
                                               {u"Fonction", 16},
                                               {u"Divers", 17},
                                               {u"Competences", 20}}};

QToolButton* MakeFlat(const Theme& theme, const QString& icon, const QString& name, const QString& spoken,
                      QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setProperty("role", QStringLiteral("flat"));
  button->setAccessibleName(spoken);
  button->setToolTip(spoken);
  TintIcon(theme, *button, icon, QStringLiteral("text2"));
  return button;
}

// A row of the identity: a label and one or two fields.
void AddFields(QGridLayout* grid, int row, int column, QLabel* label, QWidget* field,
               QWidget* second = nullptr, int narrow = 0) {
  grid->addWidget(label, row, column);
  if (second == nullptr) {
    grid->addWidget(field, row, column + 1);
    return;
  }
  auto* pair = new QHBoxLayout;
  pair->setSpacing(5);
  field->setFixedWidth(narrow);
  pair->addWidget(field);
  pair->addWidget(second, 1);
  grid->addLayout(pair, row, column + 1);
}

}  // namespace

CvZonesPane::CvZonesPane(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setObjectName(QStringLiteral("FrameZones"));
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(ToQt(editor_texts::ZonesLabel));
  setMinimumWidth(LeastPane);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeTitleBar());
  column->addWidget(MakeLine(theme, this));

  scroll_ = new QScrollArea(this);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  content_ = MakePlane(QStringLiteral("surface"), scroll_);
  content_->setObjectName(QStringLiteral("Frame1"));
  auto* stack = new QVBoxLayout(content_);
  stack->setContentsMargins(12, 9, 12, 10);
  stack->setSpacing(RowGap);
  stack->addWidget(identityBox_ = MakeIdentityBox());
  stack->addWidget(MakeIdentity());
  stack->addWidget(MakeFunction());
  zones_ = new QGridLayout;
  zones_->setContentsMargins(0, 0, 0, 0);
  zones_->setHorizontalSpacing(ColumnGap);
  zones_->setVerticalSpacing(RowGap);
  stack->addLayout(zones_, 1);
  MakeZones();
  PlaceZones();
  scroll_->setWidget(content_);
  column->addWidget(scroll_, 1);
}

QWidget* CvZonesPane::MakeTitleBar() {
  auto* bar = new QWidget(this);
  bar->setFixedHeight(39);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(12, 0, 8, 0);
  row->setSpacing(2);
  title_ = new QLabel(bar);
  title_->setObjectName(QStringLiteral("Label5"));
  title_->setProperty("role", QStringLiteral("title"));
  title_->setTextFormat(Qt::PlainText);
  title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(title_, 1);
  auto* generate =
      MakeFlat(theme_, QStringLiteral("refresh"), QStringLiteral("Génère"), tr("Actualiser la page"), bar);
  compactButton_ = MakeFlat(theme_, QStringLiteral("strip"), QStringLiteral("BoutonTLV1"),
                            tr("Disposition compacte"), bar);
  for (QToolButton* button : {generate, compactButton_}) {
    button->setFixedSize(30, 30);
    row->addWidget(button);
  }
  connect(generate, &QToolButton::clicked, this, [this] {
    if (OnGenerate) OnGenerate();
  });
  connect(compactButton_, &QToolButton::clicked, this, [this] {
    if (OnCompact) OnCompact();
  });
  return bar;
}

QWidget* CvZonesPane::MakeIdentityBox() {
  auto* box = new QWidget(content_);
  box->setObjectName(QStringLiteral("FrameIdentite"));
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 6);
  column->setSpacing(RowGap);
  constexpr int Height = 120;
  QPlainTextEdit* text = MakeTextField(u"Identite", Height, box);
  text->setFixedHeight(Height);
  QLabel* label = MakeZoneLabel(u"Identite", QLatin1Char('I'), text, box);
  column->addWidget(label);
  column->addWidget(text);
  auto* detailed =
      MakeLink(theme_, QStringLiteral("edit"),
               ToQt(editor_texts::DetailButton).replace(QStringLiteral("ll"), QStringLiteral("&ll")),
               QStringLiteral("SaiseDetaillee"), box);
  connect(detailed, &QPushButton::clicked, this, [this] {
    if (OnDetailed) OnDetailed();
  });
  column->addWidget(detailed, 0, Qt::AlignLeft);
  column->addWidget(MakeLine(theme_, box));
  return box;
}

QWidget* CvZonesPane::MakeIdentity() {
  auto* block = new QWidget(content_);
  auto* row = new QHBoxLayout(block);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(ColumnGap);
  auto* grid = identity_ = new QGridLayout;
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(RowGap);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(4, 1);
  grid->setColumnMinimumWidth(2, ColumnGap - 12);
  row->addLayout(grid, 1);
  // Made in the order of reading, which is that of the Tab key.
  AddAddress(*grid, block);
  AddMailAndSituation(*grid, block);
  AddBirthAndFamily(*grid, block);
  row->addWidget(MakePhotoBox());
  return block;
}

// Rows 0 to 3: name, address, telephone.
void CvZonesPane::AddAddress(QGridLayout& grid, QWidget* block) {
  const auto pair = [&](int row, TextView left, TextView right, QChar key = {}) {
    QLineEdit* first = MakeLineField(left, block);
    QLineEdit* second = MakeLineField(right, block);
    AddFields(&grid, row, 0, MakeZoneLabel(left, key, first, block), first);
    AddFields(&grid, row, 3, MakeZoneLabel(right, {}, second, block), second);
  };
  pair(0, u"Nom", u"Prénom", QLatin1Char('N'));
  pair(1, u"Adresse1", u"Adresse2");
  QLineEdit* code = MakeLineField(u"CP", block);
  QLineEdit* town = MakeLineField(u"Ville", block);
  QLineEdit* country = MakeLineField(u"Pays", block);
  constexpr int LeastTown = 56;
  town->setMinimumWidth(LeastTown);
  const int digits = fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 20;
  AddFields(&grid, 2, 0, MakeZoneLabel(u"CP", {}, code, block), code, town, digits);
  AddFields(&grid, 2, 3, MakeZoneLabel(u"Pays", {}, country, block), country);
  code->setAccessibleName(tr("Code postal"));
  town->setAccessibleName(tr("Ville"));
  pair(3, u"Tel", u"Mob");
}

// Row 4.
void CvZonesPane::AddMailAndSituation(QGridLayout& grid, QWidget* block) {
  QLineEdit* mail = MakeLineField(u"Email", block);
  auto* situation = new QComboBox(block);
  situation->setObjectName(QStringLiteral("ListeSituations"));
  situation->setEditable(true);
  situation->setInsertPolicy(QComboBox::NoInsert);
  situation->setCompleter(nullptr);
  for (const TextView text : editor_texts::Situations) situation->addItem(ToQt(text));
  situation->setCurrentIndex(-1);
  situation->lineEdit()->setObjectName(QStringLiteral("Situation"));
  situation->lineEdit()->setStyleSheet(
      QStringLiteral("border: 0; padding: 0; min-height: 0; background: transparent;"));
  situation->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  connect(situation, &QComboBox::activated, this, [this](int index) {
    if (OnSituation) OnSituation(static_cast<std::size_t>(index));
  });
  AddFields(&grid, 4, 0, MakeZoneLabel(u"Email", {}, mail, block), mail);
  AddFields(&grid, 4, 3, MakeZoneLabel(u"Situation", {}, situation, block), situation);
  situation->lineEdit()->setAccessibleName(ZoneCaption(u"Situation"));
}

// Row 5.
void CvZonesPane::AddBirthAndFamily(QGridLayout& grid, QWidget* block) {
  QLineEdit* birth = MakeLineField(u"DateNaissance", block);
  QLineEdit* place = MakeLineField(u"LieuNaissance", block);
  const int date = fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 24;
  AddFields(&grid, 5, 0, MakeZoneLabel(u"DateNaissance", {}, birth, block), birth, place, date);
  birthRow_ = static_cast<QHBoxLayout*>(grid.itemAtPosition(5, 1)->layout());
  birthplace_ = place;
  place->setPlaceholderText(tr("Lieu"));
  birth->setAccessibleName(tr("Date de naissance"));
  place->setAccessibleName(tr("Lieu de naissance"));
  QLineEdit* age = MakeLineField(u"Age", block);
  QLineEdit* children = MakeLineField(u"NbEnfants", block);
  grid.addWidget(MakeZoneLabel(u"Age", {}, age, block), 5, 3);
  auto* family = new QHBoxLayout;
  family->setSpacing(5);
  age->setFixedWidth(36);
  children->setFixedWidth(34);
  family->addWidget(age);
  family->addStretch(1);
  family->addWidget(children);
  family->addWidget(MakeZoneLabel(u"NbEnfants", {}, children, block));
  grid.addLayout(family, 5, 4);
  children->setAccessibleName(tr("Nombre d’enfants"));
}

QWidget* CvZonesPane::MakePhotoBox() {
  auto* box = new QWidget(content_);
  box->setFixedWidth(PhotoSize.width());
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(RowGap);
  photo_ = new QToolButton(box);
  photo_->setObjectName(QStringLiteral("Photo"));
  photo_->setProperty("role", QStringLiteral("flat"));
  photo_->setFixedSize(PhotoSize);
  photo_->setIconSize(PhotoSize - QSize(2, 2));
  connect(photo_, &QToolButton::clicked, this, [this] {
    if (OnPhoto) OnPhoto(*photo_);
  });
  connect(&theme_, &Theme::Changed, this, [this] {
    photoShown_ = false;
    ShowPhoto(std::string(shownPhoto_));
  });
  column->addWidget(photo_);
  column->addWidget(MakeZoneLabel(u"Photo", {}, photo_, box));
  auto* browse = new QPushButton(ZoneCaption(u"CopierPhoto"), box);
  browse->setObjectName(QStringLiteral("CopierPhoto"));
  browse->setProperty("dense", true);
  browse->setAccessibleName(tr("Parcourir...\u00A0: photographie"));
  connect(browse, &QPushButton::clicked, this, [this] {
    if (OnBrowsePhoto) OnBrowsePhoto();
  });
  column->addWidget(browse);
  column->addStretch(1);
  return box;
}

QToolButton* CvZonesPane::MakeHelp(TextView field, QWidget* parent) {
  for (const auto& place : HelpPlaces) {
    if (place.field != field) continue;
    auto* help = new QToolButton(parent);
    help->setObjectName(QStringLiteral("Image6_%1").arg(place.icon));
    help->setProperty("role", QStringLiteral("flat"));
    help->setProperty(HelpIcon, place.icon);
    help->setStyleSheet(QStringLiteral("min-height: 0; padding: 0;"));
    help->setFixedSize(24, 22);
    help->setAccessibleName(tr("Aide\u00A0: %1").arg(ZoneCaption(field)));
    TintIcon(theme_, *help, QStringLiteral("help"), QStringLiteral("new"));
    help->installEventFilter(this);
    return help;
  }
  return nullptr;
}

QWidget* CvZonesPane::MakeFunction() {
  auto* block = new QWidget(content_);
  auto* row = new QHBoxLayout(block);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  QLineEdit* function = MakeLineField(u"Fonction", block);
  constexpr int LabelColumn = 60;
  QLabel* label = MakeZoneLabel(u"Fonction", QLatin1Char('F'), function, block);
  label->setMinimumWidth(LabelColumn);
  row->addWidget(label);
  row->addWidget(function, 1);
  row->addWidget(MakeHelp(u"Fonction", block));
  return block;
}

QWidget* CvZonesPane::MakeZone(TextView field, QChar key, int height) {
  auto* zone = new QWidget(content_);
  auto* column = new QVBoxLayout(zone);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  QPlainTextEdit* text = MakeTextField(field, height, zone);
  auto* head = new QHBoxLayout;
  head->setSpacing(4);
  QLabel* label = MakeZoneLabel(field, key, text, zone);
  label->setStyleSheet(QStringLiteral("font-size: 12px;"));
  label->setMinimumHeight(22);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  label->setToolTip(ZoneCaption(field));
  head->addWidget(label, 1);
  if (QToolButton* help = MakeHelp(field, zone)) head->addWidget(help);
  column->addLayout(head);
  column->addWidget(text, 1);
  return zone;
}

void CvZonesPane::MakeZones() {
  constexpr int Record = 92;
  constexpr int Studies = 74;
  constexpr int Short = 42;
  constexpr int Remarks = 57;
  zoneOf_[0] = MakeZone(u"Etudes", QLatin1Char('E'), Studies);
  zoneOf_[1] = MakeZone(u"Formations", {}, Studies);
  zoneOf_[2] = MakeZone(u"Experiences", QLatin1Char('o'), Record);
  zoneOf_[3] = MakeZone(u"Competences", QLatin1Char('t'), Record);
  languageZone_ = new QWidget(content_);
  auto* column = new QVBoxLayout(languageZone_);
  column->setContentsMargins(0, 2, 0, 0);
  languages_ = new CvLanguageGrid(languageZone_);
  column->addWidget(languages_);
  column->addStretch(1);
  zoneOf_[4] = MakeZone(u"Objectifs", {}, Short);
  zoneOf_[5] = MakeZone(u"Divers", {}, Short);
  zoneOf_[6] = MakeZone(u"LanguesPlus", {}, Remarks);
}

// Two by two, with the grid beside the last three; one below the other in the compact layout.
void CvZonesPane::PlaceZones() {
  // The right column holds the longest labels.
  constexpr int LeftShare = 300;
  constexpr int RightShare = 346;
  zones_->setColumnStretch(0, LeftShare);
  zones_->setColumnStretch(1, compact_ ? 0 : RightShare);
  if (compact_) {
    for (int i = 0; i < 4; ++i) zones_->addWidget(zoneOf_[static_cast<std::size_t>(i)], i, 0);
    zones_->addWidget(languageZone_, 4, 0);
    for (int i = 4; i < 7; ++i) zones_->addWidget(zoneOf_[static_cast<std::size_t>(i)], i + 1, 0);
    return;
  }
  for (int i = 0; i < 4; ++i) zones_->addWidget(zoneOf_[static_cast<std::size_t>(i)], i / 2, i % 2);
  zones_->addWidget(languageZone_, 2, 0, 3, 1);
  for (int i = 4; i < 7; ++i) zones_->addWidget(zoneOf_[static_cast<std::size_t>(i)], i - 2, 1);
}

void CvZonesPane::SetTitle(TextView title) {
  title_->setText(ToQt(title));
  title_->setToolTip(ToolTipText(title));
}

void CvZonesPane::ShowIdentityBox(bool shown) { identityBox_->setVisible(shown); }

void CvZonesPane::ShowPhoto(const std::string& bytes) {
  if (photoShown_ && bytes == shownPhoto_) return;
  shownPhoto_ = bytes;
  photoShown_ = true;
  // Told by its content: the name of the file says nothing of its kind.
  const QImage picture = QImage::fromData(QByteArray::fromStdString(bytes));
  const QSize room = photo_->iconSize() * 2;
  QPixmap shown =
      picture.isNull()
          ? theme_.Pixmap(QStringLiteral("photo"), QStringLiteral("edge"), 28)
          : QPixmap::fromImage(picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  if (!picture.isNull()) shown.setDevicePixelRatio(2);
  photo_->setIcon(shown);
  photo_->setStyleSheet(
      QStringLiteral("QToolButton:!focus { border: 1px solid %1; background: %2; }")
          .arg(theme_.Color(QStringLiteral("line2")).name(), theme_.Color(QStringLiteral("psoft")).name()));
  photo_->setAccessibleName(picture.isNull() ? tr("Photographie\u00A0: aucune") : tr("Photographie"));
}

void CvZonesPane::SetCompact(bool compact) {
  compactButton_->setEnabled(!compact);
  if (compact == compact_) return;
  compact_ = compact;
  PlaceZones();
}

// The fields never slide out of sight sideways.
void CvZonesPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  constexpr int ScrollBar = 12;
  setMinimumWidth(std::max(LeastPane, content_->minimumSizeHint().width() + ScrollBar));
  PlaceBirthplace();
}

// Beside its date, or on a row of its own where too little of the row is left.
void CvZonesPane::PlaceBirthplace() {
  constexpr int Row = 6;
  constexpr int Column = 1;
  constexpr int LeastPlace = 60;
  // What the pane has beyond its least width goes to both columns of fields alike.
  const bool below = width() < minimumWidth() + 2 * (LeastPlace - LeastField);
  if (below == birthplaceBelow_) return;
  birthplaceBelow_ = below;
  if (below) {
    birthRow_->removeWidget(birthplace_);
    birthRow_->addStretch(1);
    identity_->addWidget(birthplace_, Row, Column);
  } else {
    identity_->removeWidget(birthplace_);
    delete birthRow_->takeAt(1);
    birthRow_->addWidget(birthplace_, 1);
  }
}

void CvZonesPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceBirthplace();
}

bool CvZonesPane::eventFilter(QObject* watched, QEvent* event) {
  const QVariant icon = watched->property(HelpIcon);
  if (icon.isValid() && OnHelp) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) OnHelp(icon.toInt());
    if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) OnHelp(-1);
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace talvor
