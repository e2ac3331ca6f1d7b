// The two frames of the forms: `CadreBleu` with a title label, `NouveauCadre` with a header band.
#pragma once

#include <QFrame>

class QLabel;
class QVBoxLayout;

namespace talvor {

class CadreBleu : public QFrame {
  Q_OBJECT
  Q_PROPERTY(QString Text READ TitleText WRITE SetTitleText)

 public:
  explicit CadreBleu(const QString& title, QWidget* parent = nullptr);
  [[nodiscard]] QString TitleText() const;
  void SetTitleText(const QString& title);
  // Where the content goes.
  [[nodiscard]] QVBoxLayout* Content() { return content_; }

 private:
  QLabel* title_;
  QVBoxLayout* content_;
};

class NouveauCadre : public QFrame {
  Q_OBJECT

 public:
  explicit NouveauCadre(const QString& title, QWidget* parent = nullptr);
  [[nodiscard]] QVBoxLayout* Content() { return content_; }

 private:
  QVBoxLayout* content_;
};

}  // namespace talvor
