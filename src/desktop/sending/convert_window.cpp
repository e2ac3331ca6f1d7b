#include "desktop/sending/convert_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {

ConvertWindow::ConvertWindow(FormConvert& form, const Theme& theme, QWidget* parent)
    : ScrollingDialog(parent), form_(form), theme_(theme) {
  setObjectName(QStringLiteral("FormConvert"));
  setWindowTitle(tr("Conversion du format"));
  constexpr int Width = 640;
  SetWanted({TextPixels(Width), 0});
  Body()->setProperty("plane", QStringLiteral("surface"));
  Body()->setAttribute(Qt::WA_StyledBackground);
  auto* body = new QVBoxLayout(Body());
  body->setContentsMargins(20, 16, 20, 20);
  body->setSpacing(16);
  body->addWidget(MakeProgram());
  body->addWidget(MakeLastVersion());
  body->addWidget(MakeFolder());
  body->addStretch(1);
  AddFoot(MakeLine(theme, this));
  AddFoot(MakeFoot());
  convert_->setFocus();
  connect(this, &QDialog::finished, this, [this] {
    if (OnClosed) OnClosed();
  });
}

QWidget* ConvertWindow::MakeProgram() {
  auto* box = new QWidget(this);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(5);
  auto* field = new QLineEdit(ToQt(form_.DocProgram), box);
  field->setObjectName(QStringLiteral("Text1"));
  field->setReadOnly(true);
  column->addWidget(
      MakeLabel(tr("Application associée au format .doc détectée sur votre poste"), field, box));
  column->addWidget(field);
  return box;
}

QWidget* ConvertWindow::MakeLastVersion() {
  auto* box = new QWidget(this);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(5);
  auto* card = new QFrame(box);
  card->setProperty("card", true);
  auto* row = new QHBoxLayout(card);
  row->setContentsMargins(10, 7, 10, 7);
  auto* caption = new QLabel(tr("Dernière version connue de ce CV au format MSWord"), box);
  caption->setProperty("role", QStringLiteral("label"));
  column->addWidget(caption);
  column->addWidget(card);
  if (!form_.infoLeads) {
    auto* none = new QLabel(ToQt(form_.Info), card);
    none->setObjectName(QStringLiteral("Info"));
    row->addWidget(none);
    return box;
  }
  const QString text = ToQt(form_.Info).replace(QLatin1Char('&'), QStringLiteral("&&"));
  auto* info = MakeLink(theme_, QStringLiteral("cv-word"), text, QStringLiteral("Info"), card);
  info->setAutoDefault(false);
  connect(info, &QPushButton::clicked, this, [this] { form_.OpenLastVersion(); });
  row->addWidget(info);
  row->addStretch(1);
  info->setAccessibleName(caption->text() + QStringLiteral("\u00A0: ") + ToQt(form_.Info));
  return box;
}

QWidget* ConvertWindow::MakeFolder() {
  auto* label = new QLabel(this);
  label->setObjectName(QStringLiteral("Label2"));
  label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  label->setFocusPolicy(Qt::StrongFocus);
  label->setWordWrap(true);
  const auto tell = [this, label] {
    label->setText(tr("Les CV convertis au format .doc sont placés dans votre dossier "
                      "<a href=\"#\" style=\"color: %1\">\"Documents\"</a>")
                       .arg(theme_.Color(QStringLiteral("primary")).name()));
    label->setStyleSheet(QStringLiteral("QLabel { background: %1; border-radius: 6px; padding: 10px 12px; }")
                             .arg(theme_.Color(QStringLiteral("newsoft")).name()));
  };
  connect(&theme_, &Theme::Changed, label, tell);
  tell();
  connect(label, &QLabel::linkActivated, this, [this] { form_.OpenDocumentsFolder(); });
  return label;
}

QWidget* ConvertWindow::MakeFoot() {
  QWidget* foot = MakePlane(QStringLiteral("window"), this);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(16, 12, 16, 12);
  row->setSpacing(8);
  const auto add = [&](const char* name, const QString& text, const QString& icon, bool primary,
                       auto&& action) {
    auto* button = new BoutonTLV(theme_, text, foot);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(primary);
    if (primary) button->setProperty("role", QStringLiteral("primary"));
    if (!icon.isEmpty())
      TintIcon(theme_, *button, icon, primary ? QStringLiteral("onprimary") : QStringLiteral("text"));
    connect(button, &QPushButton::clicked, this, action);
    row->addWidget(button);
    return button;
  };
  add("BoutonTLV3", tr("Ouverture du CV au format &HTML"), QStringLiteral("code"), false,
      [this] { form_.OpenPage(); });
  row->addStretch(1);
  add("ConvertirPDF", tr("&PDF"), QStringLiteral("cv-pdf"), false, [this] {
    Convert([this] { form_.ConvertToPdf(); });
  })->setAccessibleName(tr("Convertir au format PDF"));
  convert_ = add("BoutonTLV2", tr("&Convertir"), QStringLiteral("convert"), true,
                 [this] { Convert([this] { form_.ConvertToDoc(); }); });
  add("BoutonTLV1", tr("&Fermer"), {}, false, [this] { form_.Close(); });
  return foot;
}

void ConvertWindow::Convert(const std::function<void()>& conversion) {
  setEnabled(false);
  conversion();
}

}  // namespace talvor
