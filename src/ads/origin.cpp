// The address of the page, the site that it comes from, and how company, contact and origin stand in
// for one another.

#include <array>

#include "ads/delivered_sites.h"
#include "ads/rules.h"
#include "base/fonctionnel.h"

namespace talvor::ads {
namespace {

Text OriginOf(TextView address, Text& origin) {
  // The first label of the host goes, whatever it is; an address without "." stays whole.
  const auto dot = address.find(u'.');
  origin = dot == TextView::npos ? address : address.substr(dot + 1);
  const auto slash = origin.find(u'/');
  if (slash == Text::npos) throw AnalysisFailure{};

  Text site = origin.substr(0, slash);
  for (const TextView piece : {u"www", u".fr", u".com", u".net"}) site = ReplaceAll(site, piece, u"");
  site = Normaliser(site);
  for (const TextView piece : {u"EMPLOI ", u"RECRUT ", u"RECRUTEMENT ", u"OFFRES "})
    site = ReplaceAll(site, piece, u"");
  return site;
}

}  // namespace

void FindOrigin(Run& run) {
  AdFields& record = run.record;
  if (run.context.address == BlankPage || !record.www.empty()) return;
  record.www = run.context.address;
  if (record.Origine.empty()) record.Origine = OriginOf(record.www, record.Origine);
}

void FillCompanyAndOrigin(AdFields& record) {
  if (IsCompanySentence(record.Societe)) record.Societe.clear();
  // The one blank of a role address counts as a contact.
  if (record.Societe.empty() && !record.NomContact.empty()) record.Societe = record.NomContact;
  if (!record.Societe.empty() && record.Origine.empty()) record.Origine = record.Societe;
  for (const SiteAlias& alias : SiteAliases)
    if (record.Origine == alias.digits) record.Origine = alias.name;
  if (record.Societe.empty()) record.Societe = record.Origine;
}

}  // namespace talvor::ads
