// The text field of `DateRDV`. A save comes every few seconds, also in the middle of a date, and the
// database takes no other text there: what the user types becomes the date of the row once it is one.
#pragma once

#include "tracking/candidature.h"

namespace talvor {

class InterviewField {
 public:
  // The row must outlive the field.
  explicit InterviewField(Candidature& row) : row_(row) {}
  InterviewField(const InterviewField&) = delete;
  InterviewField& operator=(const InterviewField&) = delete;

  Text Texte;  // what stands in the field

  // The user has typed into `Texte`.
  void Typed();
  // Before the field is shown: another row, or a date that came into the row from elsewhere, takes the place
  // of what was typed.
  void Follow();
  // Shows the date of the row whatever was typed.
  void Restart();
  [[nodiscard]] bool IsDate() const;

 private:
  Candidature& row_;
  Text date_;  // of the row, when field and row were last alike
  Text num_;   // and its number
};

}  // namespace talvor
