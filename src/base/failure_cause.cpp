#include "base/failure_cause.h"

#include <array>
#include <new>
#include <stdexcept>

namespace talvor {
namespace {

struct Cause {
  std::errc condition;
  TextView words;
};

constexpr std::array<Cause, 20> Causes{{
    {std::errc::no_space_on_device, u"il n’y a plus de place sur le support"},
    {std::errc::file_too_large, u"le fichier est trop grand pour ce support"},
    {std::errc::permission_denied, u"l’accès est refusé"},
    {std::errc::operation_not_permitted, u"l’accès est refusé"},
    {std::errc::read_only_file_system, u"le support est en lecture seule"},
    {std::errc::no_such_file_or_directory, u"ce fichier ou ce dossier n’existe pas"},
    {std::errc::file_exists, u"ce nom est déjà pris"},
    {std::errc::filename_too_long, u"le nom est trop long"},
    {std::errc::io_error, u"le support ne répond pas"},
    {std::errc::no_such_device, u"le support a été retiré"},
    {std::errc::no_such_device_or_address, u"le support a été retiré"},
    {std::errc::not_a_directory, u"un fichier se trouve à la place d’un dossier"},
    {std::errc::is_a_directory, u"un dossier se trouve à la place du fichier"},
    {std::errc::directory_not_empty, u"un dossier porte déjà ce nom"},
    {std::errc::invalid_argument, u"le support refuse ce nom"},
    {std::errc::device_or_resource_busy, u"le fichier est en cours d’utilisation"},
    {std::errc::text_file_busy, u"le fichier est en cours d’utilisation"},
    {std::errc::too_many_symbolic_link_levels, u"le lien tourne en rond"},
    {std::errc::cross_device_link, u"le fichier se trouve sur un autre support"},
    {std::errc::not_supported, u"le support ne le permet pas"},
}};

}  // namespace

Text CauseOf(const std::error_code& failure) {
  for (const Cause& cause : Causes)
    if (failure == cause.condition) return Text{cause.words};
  return u"erreur n°\u00A0" + NumberText(failure.value());
}

Text ReportOf(const std::filesystem::filesystem_error& failure) {
  // A working folder whose support has gone, and a temporary folder that is none, have no path.
  const Text path = FromUtf8(failure.path1().native()).value_or(Text{});
  const Text what = path.empty() ? Text{u"Le dossier de travail ou le dossier temporaire"} : Quoted(path);
  return what + u"\u00A0: " + CauseOf(failure.code()) + u".";
}

Text ReportOf(const std::exception& failure) {
  if (const auto* ofFile = dynamic_cast<const std::filesystem::filesystem_error*>(&failure))
    return ReportOf(*ofFile);
  if (dynamic_cast<const std::bad_alloc*>(&failure)) return u"La mémoire est insuffisante.";
  if (const auto* ofSystem = dynamic_cast<const std::system_error*>(&failure))
    return u"Le système a refusé une opération\u00A0: " + CauseOf(ofSystem->code()) + u".";
  const Text said = FromUtf8(failure.what()).value_or(Text{});
  if (dynamic_cast<const std::runtime_error*>(&failure)) return said;
  return u"Erreur interne du programme\u00A0: " + Quoted(said) + u".";
}

}  // namespace talvor
