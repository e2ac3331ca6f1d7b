#include "desktop/report_preview.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QProgressBar>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <QWebEngineView>

#include "desktop/bouton_tlv.h"
#include "desktop/pane.h"
#include "desktop/sealed_page.h"
#include "desktop/text_edge.h"

namespace talvor {

ReportWindow::ReportWindow(const Theme& theme, QWidget* parent)
    : QDialog(parent),
      view_(new QWebEngineView(this)),
      progress_(new QProgressBar(this)),
      printer_(QPrinter::HighResolution) {
  setObjectName(QStringLiteral("AperçuImpression"));
  setWindowTitle(tr("Aperçu avant impression"));
  printer_.setPageSize(QPageSize(QPageSize::A4));
  printer_.setPageOrientation(QPageLayout::Landscape);
  view_->setPage(new SealedPage(view_));
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  progress_->setTextVisible(false);
  progress_->setFixedHeight(3);
  progress_->setAccessibleName(tr("Chargement"));
  connect(view_, &QWebEngineView::loadProgress, progress_, &QProgressBar::setValue);
  connect(view_, &QWebEngineView::loadFinished, this, [this] {
    complete_ = true;
    progress_->setVisible(false);
  });
  connect(view_, &QWebEngineView::printFinished, this, [this](bool printed) {
    if (!printed) Tell(tr("L’impression n’a pas abouti."));
  });

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(MakeTools(theme));
  column->addWidget(progress_);
  column->addWidget(view_, 1);
  resize(980, 680);
}

QLayout* ReportWindow::MakeTools(const Theme& theme) {
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

void ReportWindow::LoadReport(const QUrl& file) {
  complete_ = false;
  progress_->setVisible(true);
  static_cast<SealedPage*>(view_->page())->LoadFile(file);
}

void ReportWindow::Print() {
  QPrintDialog dialog(&printer_, this);
  if (dialog.exec() == QDialog::Accepted) view_->print(&printer_);
}

void ReportWindow::SetUpPage() { QPageSetupDialog(&printer_, this).exec(); }

void ReportWindow::Zoom(qreal factor) {
  constexpr qreal Smallest = 0.3;
  constexpr qreal Largest = 3;
  view_->setZoomFactor(qBound(Smallest, view_->zoomFactor() * factor, Largest));
}

void ReportWindow::Tell(const QString& text) { QMessageBox::warning(this, windowTitle(), text); }

void ReportWindow::AskForPdf() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString file = QFileDialog::getSaveFileName(
      this, tr("Enregistrer en PDF"), folder + QStringLiteral("/Talvor.pdf"), tr("Documents PDF (*.pdf)"));
  if (file.isEmpty()) return;
  SavePdf(file, [this, file](bool saved) {
    if (!saved) Tell(tr("Le fichier « %1 » n’a pas pu être écrit.").arg(file));
  });
}

void ReportWindow::SavePdf(const QString& file, const std::function<void(bool)>& done) {
  // One connection an order: the page answers each of them once.
  auto* const page = view_->page();
  connect(
      page, &QWebEnginePage::pdfPrintingFinished, this, [done](const QString&, bool saved) { done(saved); },
      Qt::SingleShotConnection);
  page->printToPdf(file, printer_.pageLayout());
}

void QtPagePreview::Navigate(TextView address) {
  delete window_.data();
  window_ = new ReportWindow(theme_, frame_);
  window_->setAttribute(Qt::WA_DeleteOnClose);
  window_->LoadReport(QUrl(ToQt(address)));
}

void QtPagePreview::Preview() {
  if (window_) window_->show();
}

}  // namespace talvor
