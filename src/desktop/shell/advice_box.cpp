#include "desktop/shell/advice_box.h"

#include <QLabel>
#include <QVBoxLayout>

#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int BoxWidth = 520;

}  // namespace

AdviceBox::AdviceBox(MiseEnPage& form, const Theme& theme, QWidget* parent)
    : ScrollingDialog(parent), form_(form) {
  setObjectName(ToQt(PrintAdviceForm));
  setWindowTitle(tr("Mise en page"));
  SetWanted({TextPixels(BoxWidth), 0});
  auto* column = new QVBoxLayout(Body());
  column->setContentsMargins(20, 18, 20, 16);
  column->setSpacing(12);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  const auto addAdvice = [&](TextView advice) {
    auto* label = new QLabel(ToQt(advice), this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    column->addWidget(label);
  };
  const auto addButton = [&](const char16_t* name, const QString& libelle, void (MiseEnPage::*action)()) {
    auto* button = new BoutonTLV(theme, libelle, this);
    button->setObjectName(QString::fromUtf16(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, action] { (form_.*action)(); });
    buttons->addWidget(button);
  };
  addAdvice(MiseEnPage::HeadersAdvice);
  addAdvice(MiseEnPage::ColoursAdvice);
  addButton(u"BoutonTLV1", tr("Paramètres &Internet"), &MiseEnPage::TellAboutColours);
  buttons->addStretch(1);
  addButton(u"BoutonTLV2", tr("&Prévisualiser"), &MiseEnPage::Preview);
  addButton(u"BoutonTLV3", tr("&Fermer"), &MiseEnPage::Close);
  column->addSpacing(4);
  column->addLayout(buttons);
}

}  // namespace talvor
