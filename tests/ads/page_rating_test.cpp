#include "ads/page_rating.h"

#include <gtest/gtest.h>

#include <ostream>

#include "ads/job_words.h"

namespace talvor {
namespace {

// A page with that many terms of an advertisement and that many job words. The terms are taken behind
// "REFERENCE", which holds "REF" as well.
Text Page(std::size_t terms, std::size_t jobs) {
  Text page = u"page";
  for (std::size_t i = 0; i < terms; ++i) page.append(u" ").append(MotsValid[i + 2]);
  for (std::size_t i = 0; i < jobs; ++i) page.append(u" ").append(ListeMetiers[i]);
  return page + u" fin";
}

struct Rated {
  const char* reason;
  Text page;
  Text address;
  double score;
  int jobs;
  double width;
  bool opens;
  friend void PrintTo(const Rated& row, std::ostream* out) { *out << row.reason; }
};

class Ratings : public testing::TestWithParam<Rated> {};

TEST_P(Ratings, TellAnAdvertisementFromAList) {
  const PageRating rating = RatePage(GetParam().page, GetParam().address);
  EXPECT_DOUBLE_EQ(rating.ScoreAnnonce, GetParam().score);
  EXPECT_EQ(rating.ScoreMetiers, GetParam().jobs);
  EXPECT_DOUBLE_EQ(rating.Niveau, GetParam().width);
  EXPECT_EQ(rating.stripOpens, GetParam().opens);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, Ratings,
    testing::Values(
        Rated{"four terms are no advertisement", Page(4, 0), u"http://a/", 4, 0, 1, false},
        Rated{"five are", Page(5, 0), u"http://a/", 5, 0, 250, true},
        Rated{"twelve get two more", Page(12, 3), u"http://a/", 14, 3, 700, true},
        Rated{"ten job words halve the score and the width", Page(13, 10), u"http://a/", 6.5, 10, 162.5,
              true},
        Rated{"six terms among twenty jobs are a list", Page(6, 20), u"http://a/", 3, 20, 1, false},
        Rated{"a search engine scores nothing", Page(12, 3), u"https://www.google.fr/x", 0, 3, 1, false},
        Rated{"a term inside a word counts, a job word does not", u"l'offreur cherche des acheteurs ici", u"",
              1, 0, 1, false},
        Rated{"the first and last word do not count as job words", u"acheteur et vendeur et avocat", u"", 0,
              1, 1, false},
        Rated{"a row that stands twice counts twice", u"un couvreur et un expert ici", u"", 0, 4, 1, false},
        Rated{"a row of two words counts here", u"un middle office ici", u"", 0, 1, 1, false},
        Rated{"what lies behind 32000 characters is not seen", Text(32000, u'x') + Page(12, 3), u"", 0, 0, 1,
              false},
        Rated{"no text at all", u"", u"", 0, 0, 1, false}));

}  // namespace
}  // namespace talvor
