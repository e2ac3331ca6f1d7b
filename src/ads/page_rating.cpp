#include "ads/page_rating.h"

#include <algorithm>

#include "ads/job_words.h"
#include "base/fonctionnel.h"

namespace talvor {
namespace {

// A page with more job words than this is a list of advertisements and not one of them.
constexpr int JobWordsOfOne = 9;

constexpr double LeastScore = 5;
constexpr double WidthOfOne = 50;

int CountJobWords(TextView normal) {
  // With a blank on both sides: the first and the last word have none outside.
  return static_cast<int>(std::count_if(ListeMetiers.begin(), ListeMetiers.end(), [&](TextView row) {
    return Contains(normal, u" " + Text{row} + u" ");
  }));
}

}  // namespace

PageRating RatePage(TextView bodyText, TextView address) {
  const Text normal = Normaliser(bodyText.substr(0, CharactersRated));
  PageRating rating;
  rating.ScoreAnnonce = static_cast<double>(std::count_if(
      MotsValid.begin(), MotsValid.end(), [&](TextView term) { return Contains(normal, term); }));
  rating.ScoreMetiers = CountJobWords(normal);
  const bool list = rating.ScoreMetiers > JobWordsOfOne;
  if (Contains(address, u"google")) rating.ScoreAnnonce = 0;
  if (list) rating.ScoreAnnonce /= 2;

  if (rating.ScoreAnnonce < LeastScore) return rating;
  rating.stripOpens = true;
  if (rating.ScoreAnnonce > 10 && rating.ScoreAnnonce < 16) rating.ScoreAnnonce += 2;
  rating.Niveau = rating.ScoreAnnonce * WidthOfOne;
  if (list) rating.Niveau /= 2;
  return rating;
}

}  // namespace talvor
