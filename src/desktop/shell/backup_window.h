// The window of `FormLoadSave`: three links, and the progress of a copy.
#pragma once

#include <QPointer>
#include <array>
#include <functional>

#include "app/form_load_save.h"
#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/card_button.h"
#include "desktop/widgets/scrolling.h"

class QLabel;
class QProgressBar;

namespace talvor {

// A link on a card: picture, text, explanation.
class BackupLink : public CardButton {
 public:
  BackupLink(const Theme& theme, const FormLoadSave::Link& link, const QString& icon, qsizetype mnemonic,
             QWidget* parent);
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRect TextRoom(int width) const;
  [[nodiscard]] QFont Title() const;

  QString icon_;
  QString explanation_;
};

class BackupWindow : public ScrollingDialog {
 public:
  // The view model must outlive the window.
  BackupWindow(FormLoadSave& form, const Theme& theme, QWidget* parent);

  // Called after each action, for what other windows show.
  std::function<void()> OnActed;
  // Shows the view model as it stands.
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  void AddLinks(QLayout& column);
  QWidget* MakeProgress();
  void Do(const std::function<void()>& action);

  FormLoadSave& form_;
  const Theme& theme_;
  std::array<BackupLink*, 3> links_{};
  QWidget* copying_ = nullptr;
  QProgressBar* bar_ = nullptr;
  QLabel* count_ = nullptr;
  BoutonTLV* close_ = nullptr;
};

}  // namespace talvor
