#include "desktop/cv/cv_desk.h"

#include <QLabel>
#include <QPrinter>
#include <QPrinterInfo>

#include "base/line_file.h"
#include "desktop/platform/printing.h"
#include "desktop/shell/guide_panel.h"
#include "desktop/widgets/text_edge.h"
#include "platform/twips.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"
#include "workspace/systeme.h"
#include "workspace/workspace_paths.h"

namespace talvor {
namespace {

std::shared_ptr<QPrinter> DefaultPrinter() {
  const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  return printer.isNull() ? nullptr : std::make_shared<QPrinter>(printer, QPrinter::HighResolution);
}

}  // namespace

CvDesk::CvDesk(Program program)
    : makePrinter(&DefaultPrinter),
      program_(program),
      menus_(program.theme, {u"MenuImprimer", u"MenuPhoto", u"MenuLangues", u"MenuConvertirWord"}) {
  menus_.OnChosen = [this](TextView item) { Chosen(item); };
  MakeForm();
}

void CvDesk::MakeForm() {
  form_.emplace(FormRédigerCV::Surroundings{.principale = program_.principale,
                                            .shell = program_.shell,
                                            .dialogs = program_.dialogs,
                                            .pickers = program_.pickers,
                                            .menus = menus_,
                                            .webBrowser1 = preview_,
                                            .clipboard = clipboard_,
                                            .environment = program_.environment,
                                            .clock = program_.clock,
                                            .showHelp = [this](TextView text) { ShowHelp(text); },
                                            .layOut =
                                                [this] {
                                                  if (window_) window_->Refresh();
                                                }});
}

QWidget* CvDesk::MakeWindow(QWidget* parent) {
  MakeForm();
  window_ = new CvWindow(*form_, menus_, program_.theme, parent);
  preview_.SetView(&window_->Page());
  window_->OnActed = [this] {
    if (OnActed) OnActed();
  };
  window_->OnHelp = [this](int icon) {
    if (icon >= 0) return form_->MouseOverImage6(icon);
    program_.shell.Unload(EditorHelpForm);
  };
  return window_;
}

void CvDesk::Register() {
  documents_.OnRefused = [this](TextView target) { TellNotOpened(target, program_.dialogs); };
  program_.shell.Register(EditorForm, {.onLoad = QtShell::OnLoad::Shown,
                                       .make = [this](QWidget* parent) { return MakeWindow(parent); },
                                       .loaded =
                                           [this] {
                                             const int width = window_->window()->width() * TwipsPerPixel;
                                             window_->Do([&] { form_->Open(width); });
                                           },
                                       .unloaded =
                                           [this] {
                                             // The window looks at the model until it is gone, so it goes at once.
                                             delete window_.data();
                                             program_.shell.Unload(EditorHelpForm);
                                           }});
  program_.shell.Register(EditorHelpForm,
                          {.place = QtShell::Place::Over,
                           .make = [](QWidget* parent) -> QWidget* { return new AidePanel(parent); }});
}

void CvDesk::KeepTyping() {
  if (window_) window_->KeepTyping();
}

void CvDesk::OpenFile(TextView name) {
  KeepTyping();
  program_.shell.Show(EditorForm);
  if (!window_) return;
  window_->Do([&] { form_->ChargerFichierCV(FileIn(workspace_paths::CvFolder(), name)); });
}

void CvDesk::OpenNew() {
  program_.shell.Unload(EditorForm);
  program_.shell.Show(EditorForm);
}

void CvDesk::ShowHelp(TextView text) {
  auto* panel = static_cast<AidePanel*>(program_.shell.WindowOf(EditorHelpForm));
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

void CvDesk::Chosen(TextView item) {
  if (!window_) return;
  if (item == u"MenuFrancais") return window_->Do([&] { form_->MenuFrancais(); });
  if (item == u"MenuAnglais") return window_->Do([&] { form_->MenuAnglais(); });
  if (item == u"RattacherPhoto") return window_->Do([&] { form_->RattacherPhoto(); });
  if (item == u"CollerPhoto") return window_->Do([&] { form_->CollerPhoto(); });
  if (item == u"SupprimerPhoto") return window_->Do([&] { form_->SupprimerPhoto(); });
  if (item == u"PrévisualiserCV") return Preview();
  if (item == u"ImprimerCV") return Print();
  if (item == u"MessageTrames") return program_.shell.Show(PrintAdviceForm);
  if (item == u"MenuConvFWord") return program_.shell.Show(ConvertForm);
  if (item == u"ConsulterWord") return OpenLastWordVersion();
}

// In "Documents", whatever the layout of the folders is.
void CvDesk::OpenLastWordVersion() {
  const auto version = ConvertedCv(program_.environment, DocumentsLayout::Newer, form_->NomCV, u".doc");
  OuvrirDocument(TextOf(ExistingFile(version).value_or(version)).value_or(Text{}), documents_,
                 program_.dialogs);
}

// The page as it stands on the disk, as it will be printed.
void CvDesk::Preview() {
  if (!window_) return;
  const auto pdf = ConvertedCv(program_.environment, DocumentsLayout::Newer, form_->NomCV, u".pdf");
  printPreview_ = new PrintPreviewWindow(program_.theme,
                                         {.file = ToQt(preview_.LocationURL()),
                                          .reach = Reach::Folder,
                                          .layout = CvPageLayout(),
                                          .pdf = ToQt(TextOf(pdf).value_or(Text{}))},
                                         window_);
  printPreview_->show();
}

void CvDesk::Print() {
  if (!window_) return;
  const std::shared_ptr<QPrinter> printer = makePrinter();
  if (!printer) return program_.dialogs.Tell(u"Aucune imprimante n’est installée.");
  printer->setPageLayout(CvPageLayout());
  PrintPage(window_->Page(), printer, [this](bool printed) {
    if (!printed) program_.dialogs.Tell(u"L’impression n’a pas abouti.");
  });
}

}  // namespace talvor
