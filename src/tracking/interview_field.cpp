#include "tracking/interview_field.h"

#include "base/day.h"

namespace talvor {

void InterviewField::Typed() {
  if (IsDate()) row_.DateRDV = date_ = Texte;
}

void InterviewField::Follow() {
  if (row_.DateRDV != date_ || row_.Num != num_) Restart();
}

void InterviewField::Restart() {
  Texte = date_ = row_.DateRDV;
  num_ = row_.Num;
}

bool InterviewField::IsDate() const { return DateValide(Texte); }

}  // namespace talvor
