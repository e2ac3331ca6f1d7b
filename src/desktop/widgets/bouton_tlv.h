// `BoutonTLV`, the button of all forms, with the sign that its label calls for.
#pragma once

#include <QPushButton>

#include "desktop/widgets/theme.h"

namespace talvor {

class BoutonTLV : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(QString Libelle READ Libelle WRITE SetLibelle)

 public:
  BoutonTLV(const Theme& theme, const QString& libelle, QWidget* parent = nullptr);

  // The label; a mnemonic mark in it is not part of the text that is looked at.
  [[nodiscard]] QString Libelle() const { return libelle_; }
  void SetLibelle(const QString& libelle);

 private:
  void TakeGlyph();

  const Theme& theme_;
  QString libelle_;
};

}  // namespace talvor
