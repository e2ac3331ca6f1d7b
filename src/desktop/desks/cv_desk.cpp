#include "desktop/desks/cv_desk.h"

#include <QLabel>
#include <QPrinter>
#include <QPrinterInfo>

#include "base/line_file.h"
#include "desktop/platform/page_pdf.h"
#include "desktop/platform/printing.h"
#include "desktop/shell/advice_box.h"
#include "desktop/shell/guide_panel.h"
#include "desktop/widgets/text_edge.h"
#include "platform/twips.h"
#include "workspace/document_keeping.h"
#include "workspace/systeme.h"
#include "workspace/workspace_paths.h"

namespace talvor {
namespace {

std::shared_ptr<QPrinter> DefaultPrinter() {
  const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  return printer.isNull() ? nullptr : std::make_shared<QPrinter>(printer, QPrinter::HighResolution);
}

}  // namespace

CvDesk::CvDesk(const DeskSurroundings& around)
    : makePrinter(&DefaultPrinter),
      around_(around),
      menus_(around.theme, {u"MenuImprimer", u"MenuPhoto", u"MenuLangues", u"MenuConvertirWord"}),
      printAdvice_(around.shell, around.dialogs) {
  menus_.OnChosen = [this](TextView item) {
    if (window_) window_->Do([&] { form_->Choose(item); });
  };
  documents_.OnRefused = [this](TextView target) { TellNotOpened(target, around_.dialogs); };
  printAdvice_.previsualiser = [this] { Preview(); };
  MakeForm();
  around_.ways.cvEditor = [this]() -> FormRedigerCV& { return *form_; };
  around_.ways.openCv = [this](TextView name) { OpenFile(name); };
  around_.ways.printCv = [this] { Print(); };
  RegisterForms();
}

void CvDesk::MakeForm() {
  form_.emplace(FormRedigerCV::Surroundings{
      .principale = around_.principale,
      .shell = around_.shell,
      .dialogs = around_.dialogs,
      .pickers = around_.pickers,
      .menus = menus_,
      .preview = preview_,
      .clipboard = clipboard_,
      .environment = around_.environment,
      .clock = around_.clock,
      .showHelp = [this](TextView text) { ShowHelp(text); },
      .layOut =
          [this] {
            if (window_) window_->Refresh();
          },
      .previsualiser = [this] { Preview(); },
      .imprimer = [this] { Print(); },
      .ouvrirDocument =
          [this](TextView document) { OuvrirDocument(document, documents_, around_.dialogs); }});
}

QWidget* CvDesk::MakeWindow(QWidget* parent) {
  MakeForm();
  window_ = new CvWindow(*form_, menus_, around_.theme, parent);
  preview_.SetView(&window_->Page());
  window_->OnActed = around_.ways.refresh;
  window_->OnHelp = [this](int icon) {
    if (icon >= 0) return form_->ShowHelpOf(icon);
    around_.shell.Unload(EditorHelpForm);
  };
  return window_;
}

void CvDesk::RegisterForms() {
  QtShell& shell = around_.shell;
  QtShell::Form& page = shell.Page(EditorForm, [this](QWidget* parent) { return MakeWindow(parent); });
  page.onLoad = QtShell::OnLoad::Shown;
  page.loaded = [this] { Loaded(); };
  page.unloaded = [this] { Unloaded(); };
  shell.Over(EditorHelpForm, [](QWidget* parent) { return new AidePanel(parent); });
  shell.Over(PrintAdviceForm,
             [this](QWidget* parent) { return new AdviceBox(printAdvice_, around_.theme, parent); });
}

void CvDesk::Loaded() {
  const int width = window_->window()->width() * TwipsPerPixel;
  window_->Do([&] { form_->Open(width); });
}

// The window looks at the model until it is gone, so it goes at once.
void CvDesk::Unloaded() {
  delete window_.data();
  around_.shell.Unload(EditorHelpForm);
}

void CvDesk::CloseDocuments() { around_.shell.Unload(EditorForm); }

void CvDesk::KeepTyping() {
  if (window_) window_->KeepTyping();
}

void CvDesk::OpenFile(TextView name) {
  KeepTyping();
  around_.shell.Show(EditorForm);
  if (!window_) return;
  window_->Do([&] { form_->ChargerFichierCV(FileIn(workspace_paths::CvFolder(), name)); });
}

void CvDesk::OpenNew() {
  around_.shell.Unload(EditorForm);
  around_.shell.Show(EditorForm);
}

void CvDesk::ShowHelp(TextView text) {
  auto* panel = static_cast<AidePanel*>(around_.shell.WindowOf(EditorHelpForm));
  if (panel == nullptr || !window_) return;
  panel->Info().setText(ShownText(text));
  PlaceHelp(*panel);
}

// At the bottom of the page.
void CvDesk::PlaceHelp(QWidget& panel) {
  constexpr int Margin = 16;
  panel.setFixedHeight(panel.heightForWidth(panel.width()));
  const QWidget& page = window_->PagePane();
  const QPoint corner = page.mapTo(window_->window(), QPoint(page.width(), page.height()));
  panel.move(corner - QPoint(panel.width() + Margin, panel.height() + Margin));
}

// The page as it stands on the disk, as it will be printed.
void CvDesk::Preview() {
  if (!window_) return;
  printPreview_ = new PrintPreviewWindow(around_.theme,
                                         {.file = ToQt(preview_.LocationURL()),
                                          .reach = Reach::Folder,
                                          .layout = CvPageLayout(),
                                          .pdf = ToQt(TextOf(form_->VersionPDF()).value_or(Text{}))},
                                         window_);
  printPreview_->show();
}

void CvDesk::Print() {
  if (!window_) return;
  const std::shared_ptr<QPrinter> printer = makePrinter();
  if (!printer) return around_.dialogs.Tell(u"Aucune imprimante n’est installée.");
  printer->setPageLayout(CvPageLayout());
  PrintPage(window_->Page(), printer, [this](bool printed) {
    if (!printed) around_.dialogs.Tell(u"L’impression n’a pas abouti.");
  });
}

}  // namespace talvor
