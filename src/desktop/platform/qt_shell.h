// The windows of the program by the names of their forms: the real part of `Shell`.
#pragma once

#include <QPointer>
#include <QStackedWidget>
#include <functional>
#include <map>
#include <vector>

#include "platform/shell.h"

namespace talvor {

class QtShell : public Shell {
 public:
  // How a form stands: as a page inside the main window, or over it.
  enum class Place { Page, Over };
  // Whether a load alone shows the form.
  enum class OnLoad { Hidden, Shown };

  struct Form {
    Place place = Place::Page;
    OnLoad onLoad = OnLoad::Hidden;
    // Makes the window with that parent, hidden; the shell owns it.
    std::function<QWidget*(QWidget* parent)> make;
    // The form has been loaded, and shown if that is its way.
    std::function<void()> loaded;
    // The window is gone.
    std::function<void()> unloaded;
  };

  void Register(TextView name, Form form);
  // The main window, with the stack that takes the pages.
  void SetFrame(QWidget* frame, QStackedWidget* pages);
  // Called when another page comes to the front; empty when none is left.
  std::function<void(TextView)> OnPageChanged;

  // The window of a loaded form, or null.
  [[nodiscard]] QWidget* WindowOf(TextView form) const;

  // A form that nobody has registered is passed over.
  void Show(TextView form) override;
  void Load(TextView form) override;
  void Unload(TextView form) override;
  bool FormeVisible(TextView form) const override;
  void Focus(TextView form, TextView field) override;
  void PumpEvents() override;
  // The interface stays live meanwhile.
  void Wait(int milliseconds) override;

 private:
  struct Entry {
    Form form;
    QPointer<QWidget> widget;
    bool shown = false;
  };
  Entry* Loaded(TextView form);
  void BringForward(TextView name, Entry& entry);

  std::map<Text, Entry, std::less<>> entries_;
  std::vector<Text> pageOrder_;  // shown pages, the front one last
  QPointer<QWidget> frame_;
  QPointer<QStackedWidget> pages_;
};

}  // namespace talvor
