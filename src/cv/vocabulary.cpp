#include "cv/vocabulary.h"

#include "cv/vocabulary_table.h"

namespace talvor {

Text TraduireCV(TextView texte) {
  Text english{texte};
  for (const auto& row : Vocabulary)
    if (Contains(english, row.french)) english = ReplaceAll(english, row.french, row.english);
  return english;
}

}  // namespace talvor
