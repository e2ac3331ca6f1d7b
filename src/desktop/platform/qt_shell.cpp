#include "desktop/platform/qt_shell.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <utility>

#include "desktop/widgets/field_binder.h"

namespace talvor {

QtShell::Form& QtShell::Page(TextView name, Maker make) {
  Form& form = entries_[Text{name}].form;
  form.make = std::move(make);
  return form;
}

QtShell::Form& QtShell::Over(TextView name, Maker make) {
  Form& form = Page(name, std::move(make));
  form.place = Place::Over;
  return form;
}

void QtShell::SetFrame(QWidget* frame, QStackedWidget* pages) {
  frame_ = frame;
  pages_ = pages;
}

QWidget* QtShell::WindowOf(TextView form) const {
  const auto found = entries_.find(form);
  return found == entries_.end() ? nullptr : found->second.widget.data();
}

QtShell::Entry* QtShell::Loaded(TextView form) {
  const auto found = entries_.find(form);
  if (found == entries_.end() || !found->second.form.make) return nullptr;
  Entry& entry = found->second;
  if (entry.widget) return &entry;
  const bool page = entry.form.place == Place::Page;
  entry.widget = entry.form.make(page ? pages_.data() : frame_.data());
  if (page) pages_->addWidget(entry.widget);
  if (entry.form.onLoad == OnLoad::Shown) BringForward(form, entry);
  if (entry.form.loaded) entry.form.loaded();
  return &entry;
}

void QtShell::BringForward(TextView name, Entry& entry) {
  entry.shown = true;
  if (entry.form.place == Place::Over) {
    entry.widget->show();
    entry.widget->raise();
    return;
  }
  std::erase(pageOrder_, Text{name});
  pageOrder_.emplace_back(name);
  pages_->setCurrentWidget(entry.widget);
  if (OnPageChanged) OnPageChanged(name);
}

void QtShell::Load(TextView form) { Loaded(form); }

void QtShell::Show(TextView form) {
  Entry* entry = Loaded(form);
  if (entry == nullptr || !entry->widget) return;
  BringForward(form, *entry);
}

void QtShell::Unload(TextView form) {
  const auto found = entries_.find(form);
  if (found == entries_.end() || !found->second.widget) return;
  Entry& entry = found->second;
  QWidget* widget = std::exchange(entry.widget, nullptr);
  entry.shown = false;
  widget->hide();
  if (entry.form.place == Place::Page) {
    pages_->removeWidget(widget);
    std::erase(pageOrder_, Text{form});
    if (!pageOrder_.empty()) pages_->setCurrentWidget(WindowOf(pageOrder_.back()));
    if (OnPageChanged) OnPageChanged(pageOrder_.empty() ? Text{} : pageOrder_.back());
  }
  // An event of this very window may be under way.
  widget->deleteLater();
  if (entry.form.unloaded) entry.form.unloaded();
}

bool QtShell::FormeVisible(TextView form) const {
  const auto found = entries_.find(form);
  if (found == entries_.end() || !found->second.widget) return false;
  // A page behind another one counts as visible: it stands, covered.
  return found->second.form.place == Place::Page ? found->second.shown : found->second.widget->isVisible();
}

void QtShell::Focus(TextView form, TextView field) {
  if (const QWidget* window = WindowOf(form)) WidgetNamed(*window, field).setFocus(Qt::OtherFocusReason);
}

void QtShell::PumpEvents() { QCoreApplication::processEvents(); }

void QtShell::Wait(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace talvor
