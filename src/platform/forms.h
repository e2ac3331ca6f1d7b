#pragma once

#include "base/text.h"

namespace talvor {

// The names under which the windows of the program are loaded, shown and asked for.
inline constexpr TextView MainForm = u"Principale";
inline constexpr TextView HomeForm = u"AssistantTexte";
inline constexpr TextView AssistantForm = u"Assistant";  // the small figure beside the home panel
inline constexpr TextView GuideForm = u"Guide";          // a hint that passes
inline constexpr TextView UserGuideForm = u"ModeEmploi";
inline constexpr TextView AboutForm = u"APropos";
inline constexpr TextView SplashForm = u"Depart";
inline constexpr TextView SplashShadowForm = u"Ombre";
inline constexpr TextView CandidatureForm = u"FormCand";
inline constexpr TextView ApplyForm = u"FormPostuler";
inline constexpr TextView StatisticsForm = u"FormStat";
inline constexpr TextView EditorForm = u"FormRédigerCV";
inline constexpr TextView EditorHelpForm = u"Aide";
inline constexpr TextView PrintAdviceForm = u"MiseEnPage";
inline constexpr TextView ConvertForm = u"FormConvert";
inline constexpr TextView LetterForm = u"FormLettre";
inline constexpr TextView LoadSaveForm = u"FormLoadSave";

}  // namespace talvor
