#include "desktop/shell/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QQuickWidget>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/platform/window_place.h"
#include "desktop/widgets/scrolling.h"

namespace talvor {
namespace {

constexpr QSize FirstSize{1280, 800};
// The header fits in; what does not fit of a page scrolls.
constexpr QSize LeastSize{840, 440};

}  // namespace

MainWindow::MainWindow(Principale& principale, QtShell& shell, const Theme& theme) : menu_(shell) {
  setObjectName(QStringLiteral("Principale"));
  setWindowTitle(QStringLiteral("Talvor"));
  setWindowIcon(QIcon(QStringLiteral(":/icons/logo.svg")));
  setMinimumSize(LeastSize);
  resize(FirstSizeOn(screen()->availableSize()));

  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  header_ = new HeaderBar(principale, theme, centre);
  pages_ = new PageStack(centre);
  column->addWidget(header_);
  auto* scroll = new QScrollArea(centre);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(pages_);
  column->addWidget(scroll, 1);
  // What has the focus is in view with the beginning of its row, however it came there.
  constexpr int Around = 24;
  connect(qApp, &QApplication::focusChanged, scroll, [this, scroll](QWidget*, QWidget* now) {
    if (now != nullptr && pages_->isAncestorOf(now)) scroll->ensureWidgetVisible(now, Around, Around);
  });
  setCentralWidget(centre);

  shell.SetFrame(this, pages_);
  shell.OnPageChanged = [this](TextView page) {
    page_ = page;
    Refresh();
  };
  header_->OnLogo = [this] { menu_.OpenAbout(); };
  header_->OnMenu = [this] {
    if (BeforeMenu) BeforeMenu();
    menu_.GoHome();
  };
  header_->OnSave = [this] { menu_.OpenBackup(); };
  AddShortcuts();
  KeepSurface();
}

// The kind of a window's surface is settled when the window is made. The first page of the web engine would
// need another kind, and the window would be made again: it would flash, and lose its place and its state. A
// hidden child of the kind that the page brings asks for the right surface from the start.
void MainWindow::KeepSurface() { (new QQuickWidget(this))->hide(); }

bool MainWindow::RestorePlace() { return talvor::RestorePlace(*this); }

QSize MainWindow::FirstSizeOn(QSize available) {
  constexpr int TitleBar = 40;  // about: the system draws it
  return FirstSize.boundedTo(available - QSize(0, TitleBar)).expandedTo(LeastSize);
}

void MainWindow::Refresh() { header_->Refresh(page_); }

void MainWindow::AddShortcuts() {
  const auto add = [this](const QKeySequence& keys, auto action) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
  };
  add(QKeySequence(QKeySequence::Print), [this] {
    if (header_->OnPrint) header_->OnPrint();
  });
  add(QKeySequence(Qt::CTRL | Qt::Key_G), [this] { menu_.OpenCandidatures(); });
  // Ctrl+1 to Ctrl+9, then Ctrl+0, open the slots 0 to 9 as a double click does.
  for (int slot = 0; slot < 10; ++slot)
    add(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + (slot + 1) % 10)), [this, slot] {
      if (header_->OnSlotOpen) header_->OnSlotOpen(static_cast<std::size_t>(slot));
    });
  add(QKeySequence(Qt::Key_F6), [this] { StepPane(1); });
  add(QKeySequence(Qt::SHIFT | Qt::Key_F6), [this] { StepPane(-1); });
  add(QKeySequence(Qt::Key_F1), [this] {
    if (OnHelp) OnHelp();
  });
  add(QKeySequence(Qt::SHIFT | Qt::Key_F1), [this] {
    if (OnUserGuide) OnUserGuide();
  });
}

// The panes of the page at the front are its widgets with the property "pane", in reading order; the
// header comes first.
void MainWindow::StepPane(int step) {
  QList<QWidget*> panes{header_};
  if (QWidget* page = pages_->currentWidget())
    for (QWidget* widget : page->findChildren<QWidget*>())
      if (widget->property("pane").toBool() && widget->isVisible()) panes.append(widget);
  qsizetype at = 0;
  for (qsizetype i = 0; i < panes.size(); ++i)
    if (QWidget* focused = QApplication::focusWidget(); focused && panes[i]->isAncestorOf(focused)) at = i;
  QWidget* next = panes[(at + step + panes.size()) % panes.size()];
  for (QWidget* widget = next->nextInFocusChain(); widget != next; widget = widget->nextInFocusChain())
    if (next->isAncestorOf(widget) && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus)) {
      widget->setFocus(Qt::TabFocusReason);
      return;
    }
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) menu_.Activate();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  menu_.Resize();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  KeepPlace(*this);
  menu_.Unload();
  event->accept();
  if (OnClosed) OnClosed();
}

}  // namespace talvor
