// `FormCand`: the tree of the candidatures, its sort options, its clicks and the search panel.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>

#include "base/fonctionnel.h"
#include "tracking/form_cand.h"
#include "tracking/form_cand_messages.h"
#include "workspace/workspace_paths.h"

namespace talvor {
namespace {

// A whole text of digits as a signed 16-bit number.
std::optional<std::int16_t> ShortNumber(TextView text) {
  const bool digits =
      std::all_of(text.begin(), text.end(), [](char16_t c) { return c >= u'0' && c <= u'9'; });
  const double value = ValeurNumerique(text);
  if (!digits || value > std::numeric_limits<std::int16_t>::max()) return std::nullopt;
  return static_cast<std::int16_t>(value);
}

}  // namespace

void FormCand::InitListe() {
  ListVisible = false;
  Liste = {};
  try {
    base_ = Database::Open(clock_);
    if (ChosenSort) Liste = CandidatureTree::Build(base_, *ChosenSort);
  } catch (const StoreError&) {
    // A base that cannot be opened leaves the tree empty, without a message.
  }
  if (!Liste.Empty())
    principale_.ImageMenu[Principale::CandidatureSlot].picture = SlotPicture::ImageCandidature;
  base_.Close();
  ListVisible = true;
  ++ListVersion;
}

void FormCand::SortBy(Tri tri) {
  ChosenSort = tri;
  InitListe();
}

void FormCand::OpenNode(TextView key) {
  const TextView behindFirst = key.substr(std::min<std::size_t>(1, key.size()));
  // A company of one letter and a number passes as a leaf here, too.
  if (ValeurNumerique(behindFirst) > 0) {
    const auto num = ShortNumber(behindFirst);
    if (!num) {
      dialogs_.Tell(messages::OutOfReach);
      return;
    }
    ChargerCandidature(*num);
    HideWebPane();
  }
  const TreeNode* node = Liste.Find(key);
  if (node == nullptr || node->childCount != 0 || !BoutonDroit) return;
  ApplyItemEnabled = DateEnvoi.empty();
  if (openItemMenu) openItemMenu();
}

// The rows go only once a copy of them stands.
void FormCand::DeleteAllRows() {
  Database database = Database::Open(clock_);
  if (database.CountRows() > 0) {
    std::error_code exists;
    std::filesystem::create_directories(workspace_paths::BackupFolder(), exists);
    database.BackUp(workspace_paths::BackupFolder() / "Avant suppression.mdb");
  }
  database.DeleteAllRows();
}

void FormCand::ToutSupprimer() {
  if (!dialogs_.Confirm(messages::ConfirmDeleteAll)) return;
  DeleteAllRows();
  principale_.ImageMenu[Principale::CandidatureSlot].picture = SlotPicture::ImageNew;
  InitListe();
}

void FormCand::MenuSupprimer() {
  if (!dialogs_.Confirm(messages::ConfirmDeleteAllFromMenu)) return;
  DeleteAllRows();
  principale_.ImageMenu[Principale::CandidatureSlot].picture = SlotPicture::ImageNew;
  Liste = {};
  ++ListVersion;
}

void FormCand::Rechercher(std::size_t index) {
  if (index == 0 && !WebPaneVisible) MontrerCadreWeb();
}

}  // namespace talvor
