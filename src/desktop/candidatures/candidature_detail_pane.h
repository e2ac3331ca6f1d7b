// The middle pane of `FormCand`: the actions and the fields of one candidature. The fields bear the
// names of the view model's.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/choice_field.h"
#include "tracking/form_cand.h"

class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLineEdit;
class QPlainTextEdit;
class QScrollArea;
class QVBoxLayout;

namespace talvor {

class FoldingRow;

class CandidatureDetailPane : public QWidget {
 public:
  CandidatureDetailPane(const Theme& theme, QWidget* parent);

  std::function<void(DetailAction)> OnAction;
  std::function<void()> OnAnalyser;
  std::function<void()> OnPostuler;

  [[nodiscard]] ChoiceField& Statut() { return *statut_; }
  [[nodiscard]] ChoiceField& Nature() { return *nature_; }
  [[nodiscard]] QLineEdit& Title() { return *title_; }
  [[nodiscard]] QPlainTextEdit& Description() { return *description_; }
  [[nodiscard]] QLineEdit& Link() { return *link_; }  // `www`
  [[nodiscard]] QLineEdit& Interview() { return *interview_; }
  void ShowInternet(bool shown);
  void ShowPostuler(bool shown);
  // Follows the text of the status with its dot.
  void ShowStatusDot(TextView status);

  // The width at which every row of the single column stands on one line.
  [[nodiscard]] int RoomyWidth() const { return roomyWidth_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeActionBar();
  QWidget* MakePostBlock();
  QWidget* MakeCompanyBlock();
  QWidget* MakeAdvertisementBlock();
  QWidget* MakeFollowUpBlock();
  void FillChoices();
  void AddPair(QGridLayout* grid, const QString& first, QLineEdit* left, const QString& second,
               QLineEdit* right);
  void AlignLabels(int second);
  [[nodiscard]] int PartWidth(bool folded) const;
  [[nodiscard]] int EdgesWidth() const;
  void FitLabels();
  void Arrange(bool twoColumns);
  void ChainTabs();
  QLineEdit* Line(const QString& name, QWidget* parent);
  QPlainTextEdit* Lines(const QString& name, int height, QWidget* parent);

  const Theme& theme_;
  QWidget* actions_ = nullptr;
  QPushButton* internet_ = nullptr;
  QPushButton* postuler_ = nullptr;
  ChoiceField* statut_ = nullptr;
  ChoiceField* nature_ = nullptr;
  QLineEdit* title_ = nullptr;
  QPlainTextEdit* description_ = nullptr;
  QLineEdit* link_ = nullptr;
  QLineEdit* interview_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QHBoxLayout* columns_ = nullptr;
  QVBoxLayout* left_ = nullptr;
  QVBoxLayout* right_ = nullptr;
  QList<QFrame*> lines_;    // between the blocks
  QList<QWidget*> fields_;  // in reading order
  QList<FoldingRow*> pairs_;
  QList<QWidget*> parts_;  // post, company, advertisement, follow-up
  bool twoColumns_ = false;
  int roomyWidth_ = 0;
  QAction* statusDot_ = nullptr;
  QString dotOf_;
};

}  // namespace talvor
