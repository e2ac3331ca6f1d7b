#include "desktop/browser/download_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "desktop/widgets/pane.h"

namespace talvor {

DownloadBar::DownloadBar(const Theme& theme, QWidget* parent) : QFrame(parent) {
  constexpr int Side = 18;
  setObjectName(QStringLiteral("FichierProposé"));
  setProperty("plane", QStringLiteral("window"));
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Fichier proposé par la page"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 6, 8, 6);
  row->setSpacing(8);
  auto* sign = new QLabel(this);
  const auto take = [sign, &theme] {
    sign->setPixmap(theme.Pixmap(QStringLiteral("warn"), QStringLiteral("warn"), Side));
  };
  connect(&theme, &Theme::Changed, sign, take);
  take();
  row->addWidget(sign, 0, Qt::AlignTop);
  text_ = new QLabel(this);
  text_->setObjectName(QStringLiteral("TexteFichierProposé"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  row->addWidget(text_, 1);
  QPushButton* save = MakeLink(theme, QStringLiteral("save"), tr("Enregistrer…"),
                               QStringLiteral("EnregistrerFichierProposé"), this);
  save->setFocusPolicy(Qt::TabFocus);
  connect(save, &QPushButton::clicked, this, [this] {
    if (OnSave) OnSave();
  });
  row->addWidget(save);
  auto* dismiss = new QToolButton(this);
  dismiss->setObjectName(QStringLiteral("IgnorerFichierProposé"));
  dismiss->setProperty("role", QStringLiteral("flat"));
  dismiss->setAccessibleName(tr("Ne pas enregistrer"));
  dismiss->setToolTip(tr("Ne pas enregistrer"));
  dismiss->setFocusPolicy(Qt::TabFocus);
  TintIcon(theme, *dismiss, QStringLiteral("cross"), QStringLiteral("text"));
  connect(dismiss, &QToolButton::clicked, this, [this] {
    if (OnDismiss) OnDismiss();
  });
  row->addWidget(dismiss);
  hide();
}

void DownloadBar::ShowText(const QString& text) {
  if (text == text_->text() && isHidden() == text.isEmpty()) return;
  text_->setText(text);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  setAccessibleDescription(text);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace talvor
