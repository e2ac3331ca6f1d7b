// `FormCand`: the choices of status and contract, with the dates and remarks that a status stamps.

#include <algorithm>
#include <array>

#include "ads/contracts.h"
#include "tracking/form_cand.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

// Answers begin at this index and interviews at that one.
constexpr std::size_t FirstAnswer = 3;
constexpr std::size_t FirstInterview = 5;

template <std::size_t N>
void Toggle(ChoiceList& list, const std::array<TextView, N>& rows, TextView value) {
  const auto row = std::find(rows.begin(), rows.end(), value);
  list.selected.reset();
  if (row != rows.end()) list.selected = static_cast<std::size_t>(row - rows.begin());
  list.visible = !list.visible;
}

}  // namespace

void FormCand::ToggleStatusList() {
  Toggle(StatusList, ListeStatuts, Statut);
  shell_.Focus(CandidatureForm, u"Statut");
}

void FormCand::ChooseStatus(std::size_t index) {
  const TextView entry = ListeStatuts.at(index);
  if (Statut == entry) return;
  Statut = entry;
  if (Statut != ListeStatuts.front() && DateEnvoi.empty()) DateEnvoi = Today();
  // The first stamp goes into empty remarks only, the second behind whatever stands there.
  if (index >= FirstAnswer && Remarques.empty()) Remarques = u"Réponse le " + Today() + Text{LineEnd};
  if (index >= FirstInterview && DateRDV.empty()) {
    DateRDV = Today();
    Remarques.append(LineEnd).append(u"Prise de rendez-vous le ").append(Today()).append(LineEnd);
  }
  StatusList.visible = false;
  if (!Num.empty()) Valider();
}

void FormCand::CloseStatusList() { StatusList.visible = false; }

void FormCand::ToggleContractList() {
  Toggle(ContractList, ListeContrats, Nature);
  shell_.Focus(CandidatureForm, u"Nature");
}

void FormCand::ChooseContract(std::size_t index) {
  Nature = ListeContrats.at(index);
  ContractList.visible = false;
}

void FormCand::CloseContractList() { ContractList.visible = false; }

}  // namespace talvor
