#include "base/failure_cause.h"

#include <gtest/gtest.h>

#include <exception>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>

#include "base/result.h"

namespace talvor {
namespace {

TEST(FailureCause, EveryFailureIsReportedInFrench) {
  const auto report = [](const std::exception& failure) { return ToUtf8(ReportOf(failure)); };
  const auto full = std::make_error_code(std::errc::no_space_on_device);
  EXPECT_EQ(report(std::filesystem::filesystem_error("cannot copy", "a.dat", full)),
            "«\u00A0a.dat\u00A0»\u00A0: il n’y a plus de place sur le support.");
  EXPECT_EQ(report(std::bad_alloc()), "La mémoire est insuffisante.");
  EXPECT_EQ(report(std::system_error(full, "write")),
            "Le système a refusé une opération\u00A0: il n’y a plus de place sur le support.");
  EXPECT_EQ(report(std::runtime_error("La base est introuvable.")), "La base est introuvable.");
  EXPECT_EQ(report(std::out_of_range("vector::at")),
            "Erreur interne du programme\u00A0: «\u00A0vector::at\u00A0».");
}

TEST(FailureCause, ACauseWithoutWordsIsToldByItsNumber) {
  EXPECT_EQ(CauseOf({ECHILD, std::generic_category()}), u"erreur n°\u00A010");
}

TEST(Results, AFailedStepTellsItsCauseAndACodeOfNoErrorIsNoFailure) {
  EXPECT_FALSE(Result<>(std::error_code{}).Failed());
  EXPECT_EQ(Result<>(std::make_error_code(std::errc::permission_denied)).Why().Cause(),
            u"l’accès est refusé");
  const Result<int> own = Failure(u"La page manque.");
  EXPECT_TRUE(own.Failed());
  EXPECT_EQ(own.Why().Cause(), u"La page manque.");
  EXPECT_FALSE(own == Result<int>(0));
}

}  // namespace
}  // namespace talvor
