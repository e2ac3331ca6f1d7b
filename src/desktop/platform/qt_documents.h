#pragma once

#include "platform/documents.h"

namespace talvor {

// The freedesktop tools xdg-open and xdg-mime; window titles from the X server where there is one.
class QtDocuments : public Documents {
 public:
  bool Open(TextView target) override;
  Text ProgramFor(TextView file) const override;
  std::vector<Text> WindowTitles() const override;
};

}  // namespace talvor
