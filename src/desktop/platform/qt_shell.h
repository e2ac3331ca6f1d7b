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

  // Makes the window with that parent, hidden; the shell owns it.
  using Maker = std::function<QWidget*(QWidget* parent)>;

  struct Form {
    Place place = Place::Page;
    OnLoad onLoad = OnLoad::Hidden;
    Maker make;
    // The form has been loaded, and shown if that is its way.
    std::function<void()> loaded;
    // The window is gone.
    std::function<void()> unloaded;
  };

  // A page of the main window; a window over it. The caller adds to the answer what else there is to say of
  // the form.
  Form& Page(TextView name, Maker make);
  Form& Over(TextView name, Maker make);
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
