#include "desktop/shell/about_box.h"

#include <QLabel>
#include <QVBoxLayout>

#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"
#include "shell/a_propos.h"

namespace talvor {

AboutBox::AboutBox(const Theme& theme, QWidget* parent) : ScrollingDialog(parent) {
  setObjectName(QStringLiteral("APropos"));
  setWindowTitle(tr("À propos de Talvor"));
  auto* column = new QVBoxLayout(Body());
  column->setContentsMargins(32, 24, 32, 20);
  column->setSpacing(8);
  auto* logo = new QLabel(this);
  constexpr int Side = 64;
  logo->setPixmap(QIcon(QStringLiteral(":/icons/logo.svg")).pixmap(Side, Side));
  logo->setAlignment(Qt::AlignCenter);
  column->addWidget(logo);
  auto* name = new QLabel(QStringLiteral("Talvor"), this);
  name->setProperty("role", QStringLiteral("title"));
  name->setAlignment(Qt::AlignCenter);
  column->addWidget(name);
  for (const TextView text : {a_propos::Version, a_propos::FirstDate}) {
    auto* line = new QLabel(ToQt(text), this);
    line->setProperty("role", QStringLiteral("label"));
    line->setAlignment(Qt::AlignCenter);
    column->addWidget(line);
  }
  column->addSpacing(8);
  auto* guide =
      MakeLink(theme, QStringLiteral("help"), tr("&Guide d’utilisation"), QStringLiteral("LienGuide"), this);
  connect(guide, &QPushButton::clicked, this, [this] {
    if (OnGuide) OnGuide();
  });
  column->addWidget(guide, 0, Qt::AlignCenter);
  column->addSpacing(8);
  auto* close = new BoutonTLV(theme, tr("&Fermer"), this);
  close->setObjectName(QStringLiteral("BoutonTLV1"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  column->addWidget(close, 0, Qt::AlignCenter);
}

}  // namespace talvor
