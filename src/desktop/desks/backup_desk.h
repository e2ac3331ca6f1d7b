// The data on a memory key in the program: the form `FormLoadSave`.
#pragma once

#include "app/form_load_save.h"
#include "desktop/desks/desk.h"

namespace talvor {

class BackupDesk : public Desk {
 public:
  explicit BackupDesk(const DeskSurroundings& around);

  void Close() override;

  [[nodiscard]] FormLoadSave& Form() { return form_; }

 private:
  QWidget* MakeWindow(QWidget* parent);

  DeskSurroundings around_;
  FormLoadSave form_;
};

}  // namespace talvor
