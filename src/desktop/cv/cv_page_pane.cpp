#include "desktop/cv/cv_page_pane.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "cv/editor_texts.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int CaptionGap = 8;
constexpr int EntryGap = 1;
constexpr int EntryIcon = 16;
constexpr int EntrySign = 16;  // of a menu
const QString FlatAtRest = QStringLiteral(
    "QPushButton:!checked:!hover:!focus { background: transparent; border-color: transparent; }");

}  // namespace

CvPagePane::CvPagePane(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setObjectName(QStringLiteral("FrameCV"));
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Page du CV"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeEntries());
  column->addWidget(MakeLine(theme, this));
  column->addWidget(MakeOptions());
  column->addWidget(MakeLine(theme, this));
  panels_ = new CvOptionPanels(theme, this);
  column->addWidget(panels_);

  QWidget* desk = MakePlane(QStringLiteral("sunken"), this);
  auto* around = new QVBoxLayout(desk);
  around->setContentsMargins(12, 12, 4, 0);
  view_ = new CvPageView(desk);
  view_->setObjectName(QStringLiteral("WebBrowser1"));
  view_->setAccessibleName(tr("Page du CV"));
  around->addWidget(view_);
  column->addWidget(desk, 1);
}

QWidget* CvPagePane::MakeEntries() {
  struct Entry {
    QString icon, caption;
    bool menu;
  };
  const std::array<Entry, 5> rows{{{QStringLiteral("para"), tr("Para&graphes"), false},
                                   {QStringLiteral("palette"), tr("&Couleurs"), false},
                                   {QStringLiteral("lang"), tr("L&angue"), true},
                                   {QStringLiteral("print"), tr("Im&primer"), true},
                                   {QStringLiteral("convert"), tr("Con&vertir"), true}}};
  auto* bar = new QWidget(this);
  bar->setMinimumHeight(TextPixels(43));
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(4, 0, 4, 0);
  row->setSpacing(EntryGap);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    auto* entry = new QPushButton(rows[i].caption, bar);
    entry->setObjectName(QStringLiteral("Entree%1").arg(i));
    entry->setProperty("dense", true);
    // Chosen by the form, never by the click itself.
    entry->setCheckable(!rows[i].menu);
    TintIcon(theme_, *entry, rows[i].icon, QStringLiteral("text"));
    connect(entry, &QPushButton::clicked, this, [this, i, entry] {
      entry->setFocus(Qt::ShortcutFocusReason);  // its key leaves the field that is typed in, as a click does
      if (OnEntry) OnEntry(i, *entry);
    });
    if (rows[i].menu) AddChevron(*entry);
    row->addWidget(entry);
    entries_[i] = entry;
  }
  row->addStretch(1);
  return bar;
}

// The sign of an entry that opens a menu.
void CvPagePane::AddChevron(QPushButton& entry) {
  auto* row = new QHBoxLayout(&entry);
  row->setContentsMargins(0, 0, 4, 0);
  auto* sign = new QLabel(&entry);
  sign->setAttribute(Qt::WA_TransparentForMouseEvents);
  const auto take = [this, sign] {
    sign->setPixmap(theme_.Pixmap(QStringLiteral("chev-d"), QStringLiteral("text2"), 14));
  };
  connect(&theme_, &Theme::Changed, sign, take);
  take();
  row->addStretch(1);
  row->addWidget(sign);
  entry.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

int CvPagePane::EntryPadding(bool icons) { return icons ? 8 : 4; }

int CvPagePane::EntriesWidth(bool icons) const {
  constexpr int Edges = 6;
  int width = 2 * Edges;
  for (const QPushButton* entry : entries_) {
    const int text = entry->fontMetrics().size(Qt::TextShowMnemonic, entry->text()).width();
    width += text + 2 * EntryPadding(icons) + Edges + EntryGap + (icons ? EntryIcon + 2 * TextGap : 0) +
             (entry->isCheckable() ? 0 : EntrySign);
  }
  return width;
}

// In a narrow pane words come before pictures, and the captions of the fields go before their row folds.
void CvPagePane::Fit() {
  const bool icons = width() >= EntriesWidth(true);
  for (QPushButton* entry : entries_) {
    entry->setIconSize(icons ? QSize(EntryIcon + TextGap, EntryIcon) : QSize(0, 0));
    const int side = EntryPadding(icons);
    entry->setStyleSheet(FlatAtRest + QStringLiteral("QPushButton { padding: 0 %1px 0 %2px; }")
                                          .arg(entry->isCheckable() ? side : side + EntrySign)
                                          .arg(side));
  }
  int captions = 0;
  for (const QLabel* caption : captions_) captions += caption->sizeHint().width() + CaptionGap;
  const int bare = options_->WholeWidth() - (captions_[0]->isHidden() ? 0 : captions);
  const bool hidden = bare <= width() && bare + captions > width();
  for (QLabel* caption : captions_)
    if (caption->isHidden() != hidden) caption->setHidden(hidden);
  setMinimumWidth(std::max({EntriesWidth(false), options_->minimumSizeHint().width(),
                            panels_->isHidden() ? 0 : panels_->minimumSizeHint().width()}));
}

void CvPagePane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Fit();
}

void CvPagePane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Fit();
}

QLineEdit* CvPagePane::MakeChoice(const char16_t* name, const QString& image, const QString& spoken,
                                  std::function<void()> CvPagePane::* open, QWidget* bar) {
  auto* field = new QLineEdit(bar);
  field->setObjectName(QString::fromUtf16(name));
  field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  field->setCursorPosition(0);
  field->installEventFilter(this);
  auto* opener = field->addAction(QIcon(), QLineEdit::TrailingPosition);
  opener->setObjectName(image);
  opener->setToolTip(spoken);
  const auto take = [this, opener] {
    opener->setIcon(theme_.Icon(QStringLiteral("chev-d"), QStringLiteral("text2")));
  };
  connect(&theme_, &Theme::Changed, opener, take);
  take();
  connect(opener, &QAction::triggered, this, [this, open] {
    if (this->*open) (this->*open)();
  });
  return field;
}

// As wide as its longest entry, but for a name of the user that is longer than most.
void CvPagePane::GiveRoom(QLineEdit& field, const QString& entry) {
  constexpr int Sign = 26;
  constexpr int MostLeast = 170;
  const int wanted = FieldWidth(field, entry) + Sign;
  field.setMinimumWidth(std::max(field.minimumWidth(), std::min(wanted, TextPixels(MostLeast))));
  const int most = field.maximumWidth() == QWIDGETSIZE_MAX ? 0 : field.maximumWidth();
  field.setMaximumWidth(std::max({most, wanted, field.minimumWidth()}));
}

QWidget* CvPagePane::MakeOptions() {
  options_ = new FoldingRow(this);
  options_->SetLeastHeight(TextPixels(39));
  options_->Row().setContentsMargins(12, 3, 12, 3);
  options_->Row().setSpacing(8);
  template_ = MakeChoice(u"NomModele", QStringLiteral("Image2"), tr("Choisir un modèle"),
                         &CvPagePane::OnTemplates, options_);
  // A name that is typed would be that of no file: the list chooses.
  template_->setReadOnly(true);
  font_ = MakeChoice(u"Police", QStringLiteral("Image3"), tr("Choisir une police"), &CvPagePane::OnFonts,
                     options_);
  captions_ = {MakeLabel(tr("Modèle"), template_, options_), MakeLabel(tr("Police"), font_, options_)};
  auto* choices = new QHBoxLayout;
  choices->setSpacing(CaptionGap);
  choices->addWidget(captions_[0]);
  choices->addWidget(template_, 3);  // the names of templates are the users' own
  choices->addWidget(captions_[1]);
  choices->addWidget(font_, 1);
  choices->addStretch(0);
  options_->Row().addLayout(choices, 1);
  for (const TextView font : editor_texts::Fonts) GiveRoom(*font_, ToQt(font));
  auto* checks = new QHBoxLayout;
  checks->setSpacing(8);
  for (std::size_t i = 0; i < dispositions_.size(); ++i) {
    auto* box = new QCheckBox(QLatin1Char('&') + ToQt(editor_texts::DispositionLabels[i]), options_);
    box->setObjectName(QStringLiteral("CheckDisposition%1").arg(i));
    connect(box, &QCheckBox::clicked, this, [this, i] {
      if (OnDisposition) OnDisposition(i);
    });
    checks->addWidget(box);
    dispositions_[i] = box;
  }
  checks->addStretch(1);
  options_->Row().addLayout(checks);
  return options_;
}

void CvPagePane::Show(const FormRedigerCV& form) {
  using Panel = FormRedigerCV::Panel;
  entries_[0]->setChecked(form.openPanel == Panel::Paragraph);
  entries_[1]->setChecked(form.openPanel == Panel::Colours);
  for (std::size_t i = 0; i < dispositions_.size(); ++i)
    dispositions_[i]->setChecked(form.CheckDisposition[i]);
  for (const Text& name : form.templateRows) GiveRoom(*template_, ToQt(name));
  panels_->Show(form);
  Fit();
}

void CvPagePane::StepFont(int step) {
  const QString now = font_->text();
  const auto& fonts = editor_texts::Fonts;
  const auto at = std::find_if(fonts.begin(), fonts.end(), [&](TextView name) { return ToQt(name) == now; });
  const auto index = at == fonts.end() ? 0 : static_cast<int>(at - fonts.begin()) + step;
  if (index >= 0 && index < static_cast<int>(fonts.size()) && panels_->OnFont)
    panels_->OnFont(static_cast<std::size_t>(index));
}

bool CvPagePane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && watched == template_ && template_->hasFocus() &&
      OnTemplates)
    OnTemplates();
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool down = key == Qt::Key_Down;
  if (down || key == Qt::Key_Up) {
    if (watched == font_) return StepFont(down ? 1 : -1), true;
    if (OnTemplates && !panels_->TemplatesStand()) OnTemplates();
    return panels_->StepTemplate(down ? 1 : -1), true;
  }
  if (watched == template_ && (key == Qt::Key_Return || key == Qt::Key_Enter) &&
      panels_->CurrentTemplate() >= 0 && panels_->OnTemplate) {
    panels_->OnTemplate(static_cast<std::size_t>(panels_->CurrentTemplate()));
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace talvor
