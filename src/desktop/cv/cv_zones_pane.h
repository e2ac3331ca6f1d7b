// The left pane of the editor of CVs: every zone to fill, under the names of the fields.
#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <string>

#include "cv/cv_document.h"
#include "desktop/cv/cv_language_grid.h"
#include "desktop/widgets/theme.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QToolButton;
class QVBoxLayout;

namespace talvor {

class CvIdentityForm;

class CvZonesPane : public QWidget {
 public:
  CvZonesPane(const Theme& theme, QWidget* parent);

  std::function<void()> OnDetailed;                  // «Préférer une saisie détaillée»
  std::function<void()> OnGenerate;                  // the button `Génère`
  std::function<void()> OnCompact;                   // `BoutonTLV1`
  std::function<void()> OnBrowsePhoto;               // «Parcourir...»
  std::function<void(QWidget&)> OnPhoto;             // a click on the photo, with the widget
  std::function<void(std::size_t row)> OnSituation;  // a row of `ListeSituations`
  // The pointer or the focus comes to a help icon, by its index, or leaves it: -1.
  std::function<void(int icon)> OnHelp;

  void SetTitle(TextView title);
  void ShowIdentityBox(bool shown);
  // The bytes of the photo, whatever their kind; a sign stands for an empty or unreadable one.
  void ShowPhoto(const std::string& bytes);
  void SetCompact(bool compact);
  [[nodiscard]] CvLanguageGrid& Languages() { return *languages_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* MakeTitleBar();
  QWidget* MakeIdentityBox();
  QWidget* MakeIdentity();
  QLineEdit* AddLine(TextView field, const QString& usual, QChar key = {});
  void AddAddress();
  void AddMailAndSituation();
  void AddBirthAndFamily();
  QWidget* MakePhotoBox();
  QWidget* MakeFunction();
  QWidget* MakeZone(TextView field, QChar key, int height);
  QToolButton* MakeHelp(TextView field, QWidget* parent);
  void MakeZones();
  void PlaceZones();

  const Theme& theme_;
  QLabel* title_;
  QWidget* content_;
  QWidget* identityBox_;
  CvIdentityForm* identity_;
  QGridLayout* zones_;
  std::array<QWidget*, 7> zoneOf_{};
  CvLanguageGrid* languages_;
  QWidget* languageZone_;
  QToolButton* photo_;
  QToolButton* compactButton_;
  std::string shownPhoto_;
  bool photoShown_ = false;
  bool compact_ = false;
};

}  // namespace talvor
