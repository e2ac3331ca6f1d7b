#include "desktop/cv/cv_zones_pane.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QImage>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <string>

#include "cv/editor_texts.h"
#include "desktop/cv/cv_identity_form.h"
#include "desktop/cv/cv_zone_fields.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr QSize PhotoSize{92, 112};
constexpr int RowGap = 4;
constexpr int ColumnGap = 14;
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

// Several fields that count as one.
QWidget* Together(const QList<QWidget*>& fields, QWidget* parent) {
  auto* together = new QWidget(parent);
  auto* row = new QHBoxLayout(together);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(5);
  for (QWidget* field : fields) row->addWidget(field);
  return together;
}

}  // namespace

CvZonesPane::CvZonesPane(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setObjectName(QStringLiteral("FrameZones"));
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(ToQt(editor_texts::ZonesLabel));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeTitleBar());
  column->addWidget(MakeLine(theme, this));

  auto* scroll = new PaneScroll(this);
  content_ = MakePlane(QStringLiteral("surface"), scroll);
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
  scroll->setWidget(content_);
  column->addWidget(scroll, 1);
}

QWidget* CvZonesPane::MakeTitleBar() {
  auto* bar = new QWidget(this);
  bar->setMinimumHeight(TextPixels(39));
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(12, 0, 8, 0);
  row->setSpacing(2);
  title_ = MakeElidedLabel(bar);
  title_->setObjectName(QStringLiteral("Label5"));
  title_->setProperty("role", QStringLiteral("title"));
  row->addWidget(title_, 1);
  auto* generate =
      MakeFlat(theme_, QStringLiteral("refresh"), QStringLiteral("Génère"), tr("Actualiser la page"), bar);
  compactButton_ = MakeFlat(theme_, QStringLiteral("strip"), QStringLiteral("BoutonTLV1"),
                            tr("Disposition compacte"), bar);
  for (QToolButton* button : {generate, compactButton_}) {
    button->setFixedSize(TextPixels(28) + 2, TextPixels(28) + 2);
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
  text->setFixedHeight(TextPixels(Height));
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
  identity_ = new CvIdentityForm(block);
  row->addWidget(identity_, 1);
  // Made in the order of reading, which is that of the Tab key.
  AddAddress();
  AddMailAndSituation();
  AddBirthAndFamily();
  row->addWidget(MakePhotoBox());
  return block;
}

// `usual` is a text that the field shows whole.
QLineEdit* CvZonesPane::AddLine(TextView field, const QString& usual, QChar key) {
  QLineEdit* line = MakeLineField(field, identity_);
  line->setMinimumWidth(FieldWidth(*line, usual));
  identity_->Add(MakeZoneLabel(field, key, line, identity_), line);
  return line;
}

// Name, address, telephone.
void CvZonesPane::AddAddress() {
  AddLine(u"Nom", tr("Marchand"), QLatin1Char('N'));
  AddLine(u"Prénom", tr("Jean-Christophe"));
  AddLine(u"Adresse1", tr("18 quai des Tanneurs"));
  AddLine(u"Adresse2", tr("18 quai des Tanneurs"));
  QLineEdit* code = MakeLineField(u"CP", identity_);
  QLineEdit* town = MakeLineField(u"Ville", identity_);
  code->setFixedWidth(FieldWidth(*code, QStringLiteral("00000")));
  town->setMinimumWidth(FieldWidth(*town, tr("Grenoble")));
  identity_->Add(MakeZoneLabel(u"CP", {}, code, identity_), Together({code, town}, identity_));
  code->setAccessibleName(tr("Code postal"));
  town->setAccessibleName(tr("Ville"));
  AddLine(u"Pays", tr("Française"));
  AddLine(u"Tel", tr("06 00 00 00 00"));
  AddLine(u"Mob", tr("06 00 00 00 00"));
}

void CvZonesPane::AddMailAndSituation() {
  AddLine(u"Email", tr("prenom.nom@fournisseur.com"));
  auto* situation = new QComboBox(identity_);
  situation->setObjectName(QStringLiteral("ListeSituations"));
  situation->setEditable(true);
  situation->setInsertPolicy(QComboBox::NoInsert);
  situation->setCompleter(nullptr);
  for (const TextView text : editor_texts::Situations) situation->addItem(ToQt(text));
  situation->setCurrentIndex(-1);
  situation->lineEdit()->setObjectName(QStringLiteral("Situation"));
  situation->lineEdit()->setStyleSheet(
      QStringLiteral("border: 0; padding: 0; min-height: 0; background: transparent;"));
  connect(situation, &QComboBox::activated, this, [this](int index) {
    if (OnSituation) OnSituation(static_cast<std::size_t>(index));
  });
  identity_->Add(MakeZoneLabel(u"Situation", {}, situation, identity_), situation);
  situation->lineEdit()->setAccessibleName(ZoneCaption(u"Situation"));
}

void CvZonesPane::AddBirthAndFamily() {
  QLineEdit* birth = MakeLineField(u"DateNaissance", identity_);
  QLineEdit* place = MakeLineField(u"LieuNaissance", identity_);
  birth->setFixedWidth(FieldWidth(*birth, QStringLiteral("00/00/0000")));
  place->setMinimumWidth(FieldWidth(*place, tr("Grenoble")));
  identity_->Add(MakeZoneLabel(u"DateNaissance", {}, birth, identity_), Together({birth, place}, identity_));
  place->setPlaceholderText(tr("Lieu"));
  birth->setAccessibleName(tr("Date de naissance"));
  place->setAccessibleName(tr("Lieu de naissance"));
  QLineEdit* age = MakeLineField(u"Age", identity_);
  QLineEdit* children = MakeLineField(u"NbEnfants", identity_);
  for (QLineEdit* number : {age, children}) number->setFixedWidth(FieldWidth(*number, QStringLiteral("00")));
  QWidget* family =
      Together({age, children, MakeZoneLabel(u"NbEnfants", {}, children, identity_)}, identity_);
  static_cast<QHBoxLayout*>(family->layout())->insertStretch(1, 1);
  identity_->Add(MakeZoneLabel(u"Age", {}, age, identity_), family);
  children->setAccessibleName(tr("Nombre d’enfants"));
}

QWidget* CvZonesPane::MakePhotoBox() {
  auto* box = new QWidget(content_);
  box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
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
  column->addWidget(photo_, 0, Qt::AlignHCenter);
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
  QLabel* label = MakeZoneLabel(u"Fonction", QLatin1Char('F'), function, block);
  // In one line with the fields above.
  for (const TextView above : {u"Nom", u"Adresse1", u"CP", u"Tel", u"Email", u"DateNaissance"})
    label->setMinimumWidth(
        std::max(label->minimumWidth(), fontMetrics().horizontalAdvance(ZoneCaption(above))));
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
  label->setStyleSheet(QStringLiteral("font-size: %1px;").arg(TextPixels(12)));
  label->setMinimumHeight(TextPixels(22));
  label->setWordWrap(true);
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

bool CvZonesPane::eventFilter(QObject* watched, QEvent* event) {
  const QVariant icon = watched->property(HelpIcon);
  if (icon.isValid() && OnHelp) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) OnHelp(icon.toInt());
    if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) OnHelp(-1);
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace talvor
