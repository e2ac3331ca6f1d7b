#include "desktop/widgets/frames.h"

#include <QLabel>
#include <QVBoxLayout>

namespace talvor {
namespace {

QLabel* MakeTitle(const QString& title, QWidget* parent) {
  auto* label = new QLabel(title, parent);
  label->setProperty("role", QStringLiteral("title"));
  return label;
}

}  // namespace

CadreBleu::CadreBleu(const QString& title, QWidget* parent) : QFrame(parent) {
  setProperty("card", true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(12, 10, 12, 12);
  column->setSpacing(8);
  title_ = MakeTitle(title, this);
  column->addWidget(title_);
  content_ = new QVBoxLayout;
  column->addLayout(content_, 1);
}

QString CadreBleu::TitleText() const { return title_->text(); }
void CadreBleu::SetTitleText(const QString& title) { title_->setText(title); }

NouveauCadre::NouveauCadre(const QString& title, QWidget* parent) : QFrame(parent) {
  setProperty("card", true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, 1, 1, 1);
  column->setSpacing(0);
  auto* band = new QWidget(this);
  band->setProperty("plane", QStringLiteral("sunken"));
  band->setAttribute(Qt::WA_StyledBackground);
  auto* row = new QVBoxLayout(band);
  row->setContentsMargins(12, 8, 12, 8);
  row->addWidget(MakeTitle(title, band));
  column->addWidget(band);
  content_ = new QVBoxLayout;
  content_->setContentsMargins(12, 10, 12, 12);
  column->addLayout(content_, 1);
}

}  // namespace talvor
