#include "desktop/cv/cv_window.h"

#include <utility>

#include <QApplication>
#include <QHBoxLayout>
#include <QShortcut>
#include <QSplitter>

#include "desktop/platform/printing.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

QList<int> WideSizes() { return {TextPixels(684), TextPixels(590)}; }

}  // namespace

CvWindow::CvWindow(FormRedigerCV& form, QtMenus& menus, const Theme& theme, QWidget* parent)
    : QWidget(parent), form_(form), menus_(menus), shown_(form) {
  setObjectName(ToQt(EditorForm));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  splitter_ = new QSplitter(Qt::Horizontal, this);
  splitter_->setHandleWidth(6);
  splitter_->setChildrenCollapsible(false);
  zones_ = new CvZonesPane(theme, splitter_);
  page_ = new CvPagePane(theme, splitter_);
  splitter_->setStretchFactor(0, 0);
  splitter_->setStretchFactor(1, 1);
  splitter_->setSizes(WideSizes());
  row->addWidget(splitter_);

  BindFields();
  ConnectZones();
  ConnectPage();
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { MoveFocus(now); });
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, [this] { Do([&] { form_.ClosePanels(); }); });
  connect(&theme, &Theme::Changed, this, &CvWindow::Refresh);
  Refresh();
}

CvWindow::~CvWindow() { OutliveWhilePrinting(Page()); }

void CvWindow::BindFields() {
  // The others are boxes to tick, the title of the zones, or written into the file alone.
  binder_.BindByName(*this, CvFields, static_cast<CvDocument&>(shown_),
                     {u"LangueCV", u"Langues", u"NomCV", u"Modèle", u"Souligné", u"Gras", u"Indentation",
                      u"Saut", u"List1"});
  binder_.OnEdited = [this](QWidget& widget) {
    const Text name = FromQt(widget.objectName());
    if (const auto* field = FindField(CvFields, name))
      Do([&] { form_.Change(name, Text{shown_.*(field->text)}); });
    saving_.start();
  };
  constexpr int SaveMilliseconds = 3000;
  saving_.setSingleShot(true);
  saving_.setInterval(SaveMilliseconds);
  connect(&saving_, &QTimer::timeout, this, [this] { SaveWhileTyping(); });
}

// The name of the file comes from these two fields, so they are waited for.
void CvWindow::SaveWhileTyping() {
  if (focused_ == QStringLiteral("Nom") || focused_ == QStringLiteral("Prénom")) return saving_.start();
  Do([&] { form_.EnregistrerSaisie(); });
}

void CvWindow::ConnectZones() {
  zones_->OnDetailed = [this] { Do([&] { form_.HideIdentityBox(); }); };
  zones_->OnGenerate = [this] { Do([&] { form_.Render(); }); };
  zones_->OnCompact = [this] { Do([&] { form_.CompactLayout(); }); };
  zones_->OnBrowsePhoto = [this] { Do([&] { form_.RattacherPhoto(); }); };
  zones_->OnPhoto = [this](QWidget& photo) {
    menus_.SetAnchor(&photo);
    menus_.Open(u"MenuPhoto");
  };
  zones_->OnSituation = [this](std::size_t row) { Do([&] { form_.ChooseSituation(row); }); };
  zones_->OnHelp = [this](int icon) {
    if (OnHelp) OnHelp(icon);
  };
  zones_->Languages().OnClick = [this](TextView group, std::size_t language) {
    Do([&] { form_.ToggleLanguage(group, language); });
  };
}

void CvWindow::ConnectPage() {
  page_->OnEntry = [this](std::size_t entry, QWidget& button) {
    menus_.SetAnchor(&button);
    Do([&] { form_.OpenEntry(entry); });
  };
  page_->OnTemplates = [this] { Do([&] { form_.OpenTemplates(); }); };
  page_->OnFonts = [this] { Do([&] { form_.OpenFonts(); }); };
  page_->OnDisposition = [this](std::size_t i) { Do([&] { form_.ToggleOrder(i); }); };
  CvOptionPanels& panels = page_->Panels();
  panels.OnTemplate = [this](std::size_t row) { Do([&] { form_.ChooseTemplate(row); }); };
  panels.OnFont = [this](std::size_t i) { Do([&] { form_.ChooseFont(i); }); };
  panels.OnParagraph = [this](std::size_t i) { Do([&] { form_.ToggleParagraph(i); }); };
  panels.OnSwatch = [this](std::size_t i) { Do([&] { form_.ChooseSwatch(i); }); };
  panels.OnOtherColour = [this] { Do([&] { form_.ChooseOtherColour(); }); };
}

void CvWindow::Do(const std::function<void()>& action) {
  const QPointer<CvWindow> self(this);
  action();
  if (!self) return;
  Refresh();
  if (OnActed) OnActed();
}

// The name of the field that a widget shows, empty for every other widget.
QString CvWindow::FieldOf(const QWidget* widget) const {
  const bool ours = widget != nullptr && isAncestorOf(widget);
  return ours && FindField(CvFields, FromQt(widget->objectName())) ? widget->objectName() : QString();
}

// The box of the pasted block is left by the user alone: when it is hidden because the CV has fields
// already, reading it again would undo what was corrected in them.
void CvWindow::LeaveField(const QString& name) {
  const bool hidden = name == QStringLiteral("Identite") && !form_.IdentityBoxVisible;
  if (!name.isEmpty() && !hidden) form_.Leave(FromQt(name));
}

void CvWindow::KeepTyping() {
  const QString left = std::exchange(focused_, QString());
  Do([&] {
    LeaveField(left);
    form_.EnregistrerSaisie();
  });
  // The field is there still, and will be left again.
  focused_ = FieldOf(QApplication::focusWidget());
}

// A field is left when the focus comes to another place of the program. An open panel is part of the
// field that it was opened from, another window of nothing.
void CvWindow::MoveFocus(QWidget* now) {
  if (now == nullptr || now->window() != window()) return;
  if (page_->Panels().isAncestorOf(now)) return;
  const QString name = FieldOf(now);
  if (name == focused_) return;
  const QString left = std::exchange(focused_, name);
  Do([&] {
    LeaveField(left);
    if (!name.isEmpty()) form_.Enter(FromQt(name));
  });
}

void CvWindow::Refresh() {
  shown_ = form_;
  binder_.Refresh();
  zones_->SetTitle(form_.ZonesTitle);
  zones_->ShowIdentityBox(form_.IdentityBoxVisible);
  zones_->ShowPhoto(form_.Photo);
  zones_->SetCompact(form_.compact);
  zones_->Languages().Show(form_);
  page_->Show(form_);
}

// In a narrow window both panes come near their least widths.
void CvWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  constexpr int NarrowWindow = 1200;
  const bool narrow = width() < TextPixels(NarrowWindow);
  if (narrow == narrow_) return;
  narrow_ = narrow;
  const int zones = zones_->minimumSizeHint().width();
  splitter_->setSizes(narrow ? QList<int>{zones, width() - zones - splitter_->handleWidth()} : WideSizes());
}

void CvWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  WidgetNamed(*this, form_.IdentityBoxVisible ? u"Identite" : u"Nom").setFocus(Qt::OtherFocusReason);
}

}  // namespace talvor
