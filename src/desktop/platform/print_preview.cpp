#include "desktop/platform/print_preview.h"

#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProgressBar>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <QWebEngineScript>
#include <QWebEngineView>

#include "desktop/platform/file_dialog.h"
#include "desktop/platform/printing.h"
#include "desktop/platform/sheet_script.h"
#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr qreal SmallestZoom = 0.3;

// The file in its folder, or in another of the user's where that one does not exist.
QString ProposedFile(const QString& file) {
  const QFileInfo wanted(file);
  for (const QString& folder :
       {wanted.path(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)})
    if (QFileInfo(folder).isDir()) return folder + QLatin1Char('/') + wanted.fileName();
  return QDir::homePath() + QLatin1Char('/') + wanted.fileName();
}

}  // namespace

PrintPreviewWindow::PrintPreviewWindow(const Theme& theme, PrintedPage page, QWidget* parent)
    : ScrollingDialog(parent),
      theme_(theme),
      printed_(std::move(page)),
      view_(new QWebEngineView(this)),
      progress_(new QProgressBar(this)),
      printer_(std::make_shared<QPrinter>(QPrinter::HighResolution)) {
  setObjectName(QStringLiteral("AperçuImpression"));
  setWindowTitle(tr("Aperçu avant impression"));
  setAttribute(Qt::WA_DeleteOnClose);
  printer_->setPageLayout(printed_.layout);
  auto* sealed = new SealedPage(printed_.reach, view_);
  view_->setPage(sealed);
  view_->setAccessibleName(tr("Page à imprimer"));
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  progress_->setTextVisible(false);
  progress_->setFixedHeight(3);
  progress_->setAccessibleName(tr("Chargement"));
  connect(view_, &QWebEngineView::loadProgress, progress_, &QProgressBar::setValue);
  connect(view_, &QWebEngineView::loadFinished, this, [this] {
    complete_ = true;
    progress_->setVisible(false);
    LayOnDesk();
  });
  connect(&theme, &Theme::Changed, this, &PrintPreviewWindow::LayOnDesk);

  auto* column = new QVBoxLayout(Body());
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(MakeTools(theme));
  column->addWidget(progress_);
  column->addWidget(view_, 1);
  SetWanted({TextPixels(980), 680});
  sealed->ShowFile(printed_.file);
}

PrintPreviewWindow::~PrintPreviewWindow() { OutliveWhilePrinting(*view_); }

QLayout* PrintPreviewWindow::MakeTools(const Theme& theme) {
  auto* tools = new QHBoxLayout;
  tools->setContentsMargins(12, 8, 12, 8);
  tools->setSpacing(8);
  const auto add = [&](const QString& name, const QString& text, auto&& action) {
    auto* button = new BoutonTLV(theme, text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    tools->addWidget(button);
    return button;
  };
  constexpr qreal ZoomStep = 1.25;
  add(QStringLiteral("Imprimer"), tr("&Imprimer…"), [this] {
    Print();
  })->setProperty("role", QStringLiteral("primary"));
  add(QStringLiteral("MiseEnPage"), tr("&Mise en page…"), [this] { SetUpPage(); });
  add(QStringLiteral("EnregistrerPdf"), tr("Enregistrer en &PDF…"), [this] { AskForPdf(); });
  tools->addStretch(1);
  add(QStringLiteral("Reduire"), tr("&Réduire"), [this] { Zoom(1 / ZoomStep); });
  add(QStringLiteral("Agrandir"), tr("&Agrandir"), [this] { Zoom(ZoomStep); });
  add(QStringLiteral("Fermer"), tr("&Fermer"), [this] { close(); });
  return tools;
}

void PrintPreviewWindow::Print() {
  printer_->setDocName(QFileInfo(printed_.pdf).completeBaseName());
  // Where there is no printer the sheet can only go to a file, beside the other documents of the user.
  if (QPrinterInfo::availablePrinterNames().isEmpty() && printer_->outputFileName().isEmpty())
    printer_->setOutputFileName(ProposedFile(printed_.pdf));
  QPrintDialog dialog(printer_.get(), this);
  if (dialog.exec() != QDialog::Accepted) return;
  PrintPage(*view_, printer_, [self = QPointer<PrintPreviewWindow>(this)](bool printed) {
    if (!printed && self) self->Tell(tr("L’impression n’a pas abouti."));
  });
}

void PrintPreviewWindow::SetUpPage() {
  QPageSetupDialog(printer_.get(), this).exec();
  LayOnDesk();
}

void PrintPreviewWindow::showEvent(QShowEvent* event) {
  ScrollingDialog::showEvent(event);
  LayOnDesk();  // the width is known
}

// The sheet as it lies now, as wide as the window at most.
void PrintPreviewWindow::LayOnDesk() {
  if (!complete_) return;
  constexpr int PixelsAnInch = 96;
  constexpr int ScrollBar = 16;
  const QPageLayout sheet = printer_->pageLayout();
  view_->page()->runJavaScript(SheetScript(sheet, {.desk = theme_.Color(QStringLiteral("sunken")).name(),
                                                   .edge = theme_.Color(QStringLiteral("edge")).name()}),
                               QWebEngineScript::ApplicationWorld);
  const qreal wide = sheet.fullRect(QPageLayout::Inch).width() * PixelsAnInch + 2 * DeskMargin;
  // The page may stand before the window is shown and its view has a size.
  view_->setZoomFactor(qBound(SmallestZoom, (width() - ScrollBar) / wide, 1.0));
}

void PrintPreviewWindow::Zoom(qreal factor) {
  constexpr qreal Largest = 3;
  view_->setZoomFactor(qBound(SmallestZoom, view_->zoomFactor() * factor, Largest));
}

void PrintPreviewWindow::Tell(const QString& text) { QMessageBox::warning(this, windowTitle(), text); }

void PrintPreviewWindow::AskForPdf() {
  const QString file = PickPdf();
  if (file.isEmpty()) return;
  SavePdf(file, [self = QPointer<PrintPreviewWindow>(this), file](bool saved) {
    if (!saved && self) self->Tell(tr("Le fichier «\u00A0%1\u00A0» n’a pas pu être écrit.").arg(file));
  });
}

// The file is asked for until one may be written; empty when the user gives up.
QString PrintPreviewWindow::PickPdf() {
  QString proposed = ProposedFile(printed_.pdf);
  for (;;) {
    QString file =
        QFileDialog::getSaveFileName(this, tr("Enregistrer en PDF"), proposed, tr("Documents PDF (*.pdf)"),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (file.isEmpty()) return {};
    // A name with a point in it has no ending yet; the file that may stand there is that with the ending.
    const QString ending = QStringLiteral(".pdf");
    if (!file.endsWith(ending, Qt::CaseInsensitive)) file += ending;
    if (!QFileInfo::exists(file) || MayReplace(file)) return file;
    proposed = file;
  }
}

bool PrintPreviewWindow::MayReplace(const QString& file) {
  const QString name = QFileInfo(file).fileName();
  return QMessageBox::warning(this, windowTitle(),
                              tr("Le fichier «\u00A0%1\u00A0» existe déjà. Le remplacer\u00A0?").arg(name),
                              QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

void PrintPreviewWindow::SavePdf(const QString& file, const std::function<void(bool)>& done) {
  WritePdf(*view_, file, printer_->pageLayout(), done);
}

void QtPagePreview::Navigate(TextView address) {
  delete window_.data();
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QPageLayout layout = QPrinter(QPrinter::HighResolution).pageLayout();
  layout.setPageSize(QPageSize(QPageSize::A4));
  layout.setOrientation(QPageLayout::Landscape);
  window_ = new PrintPreviewWindow(theme_,
                                   {.file = QUrl(ToQt(address)).toLocalFile(),
                                    .reach = Reach::File,
                                    .layout = layout,
                                    .pdf = folder + QStringLiteral("/Talvor.pdf")},
                                   frame_);
}

void QtPagePreview::Preview() {
  if (window_) window_->show();
}

}  // namespace talvor
