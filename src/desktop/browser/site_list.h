// `List1`, the directory of job sites as a popup over the page.
#pragma once

#include <QFrame>
#include <functional>

#include "capture/site_directory.h"
#include "desktop/widgets/theme.h"

class QListWidget;

namespace talvor {

class SiteList : public QFrame {
 public:
  SiteList(const Theme& theme, QWidget* parent);

  std::function<void(std::size_t)> OnSite;
  std::function<void()> OnLeave;  // closed, by a choice as well, which is told behind it

  void Fill(const SiteDirectory& directory);
  // Shows the list with its top right corner at a place of the screen, no wider than given.
  void Open(QPoint topRight, int room);
  [[nodiscard]] QListWidget& Rows() { return *rows_; }

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  QListWidget* rows_;
};

}  // namespace talvor
