#pragma once

#include <QObject>
#include <functional>
#include <vector>

#include "platform/documents.h"

namespace talvor {

// The freedesktop tools xdg-open and xdg-mime; window titles from the X server where there is one.
class QtDocuments : public Documents {
 public:
  // A target that was taken and then refused, shortly after it was opened: no program for it, most often.
  std::function<void(TextView target)> OnRefused;

  bool Open(TextView target) override;
  Text ProgramFor(TextView file) const override;
  std::vector<Text> WindowTitles() const override;

 private:
  QObject life_;  // nothing is heard of an opener after this object
};

}  // namespace talvor
