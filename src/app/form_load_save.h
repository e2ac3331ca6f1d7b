// `FormLoadSave`, the form that carries the data on a memory key: a copy there, back from there, or work
// from there until the program ends.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>

#include "app/folder_copy.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/pickers.h"
#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

class FormLoadSave {
 public:
  struct Link {
    TextView name;
    TextView text;
    TextView explanation;
  };
  static const std::array<Link, 3> Links;
  static constexpr TextView Title = u"Charger ou sauvegarder la base";
  static const Text Explanation;

  struct Surroundings {
    Principale& principale;
    Shell& shell;
    Dialogs& dialogs;
    Pickers& pickers;
    const Clock& clock;
  };
  // `steps` are those of the copies; the usual ones when there are none.
  explicit FormLoadSave(Surroundings surroundings, std::unique_ptr<CopySteps> steps = nullptr);

  bool busy = false;      // a copy is under way; no other action begins
  CopyProgress progress;  // of the copy under way
  std::function<void()> OnProgress;
  // The data is about to change under the open forms: they save and close what they hold.
  std::function<void()> fermerDocuments;

  // The links. Each asks for the place of a "Talvor.mdb" and does nothing when the user gives up; a
  // failure is told and leaves the form open. True when the action has been done. Events run during a
  // copy.
  bool Sauver();
  bool Charger();
  bool Nouvel();
  // Stops the copy under way.
  void Annuler() { stopped_ = true; }
  void Close();

  // Copies the workspace into the folder of the answer, under its own name.
  bool SauverDans(const std::filesystem::path& answer);
  // Copies the folder `source` over the folder `destination`.
  bool Restaurer(const std::filesystem::path& source, const std::filesystem::path& destination);

 private:
  template <class Action>
  bool Try(TextView problem, Action&& action);
  [[nodiscard]] CopyOptions Options();
  [[nodiscard]] static bool RemoveOldDatabase(const std::filesystem::path& answer);
  void CheckArrived(const std::filesystem::path& arrived, const std::filesystem::path& source) const;
  static void CheckDatabase(const std::filesystem::path& folder);
  [[nodiscard]] std::filesystem::path KeptFolder() const;
  void Done(TextView message);

  Surroundings around_;
  std::unique_ptr<CopySteps> steps_;
  bool stopped_ = false;
};

}  // namespace talvor
