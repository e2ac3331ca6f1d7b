#include "desktop/browser/page_notice.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/widgets/pane.h"

namespace talvor {

PageNotice::PageNotice(const Theme& theme, QWidget* parent) : QWidget(parent) {
  constexpr int Side = 28;
  constexpr int Margin = 24;
  constexpr int Gap = 12;
  setProperty("plane", QStringLiteral("surface"));
  setAttribute(Qt::WA_StyledBackground);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(Margin, Margin, Margin, Margin);
  column->setSpacing(Gap);
  auto* sign = new QLabel(this);
  const auto take = [sign, &theme] {
    sign->setPixmap(theme.Pixmap(QStringLiteral("warn"), QStringLiteral("warn"), Side));
  };
  connect(&theme, &Theme::Changed, sign, take);
  take();
  text_ = new QLabel(this);
  text_->setObjectName(QStringLiteral("AvisPage"));
  text_->setWordWrap(true);
  text_->setTextFormat(Qt::PlainText);
  text_->setAlignment(Qt::AlignHCenter);
  auto* reload = new QPushButton(tr("Charger à nouveau"), this);
  reload->setObjectName(QStringLiteral("Recharger"));
  TintIcon(theme, *reload, QStringLiteral("refresh"), QStringLiteral("primary"));
  connect(reload, &QPushButton::clicked, this, [this] {
    if (OnReload) OnReload();
  });
  column->addStretch(1);
  column->addWidget(sign, 0, Qt::AlignHCenter);
  column->addWidget(text_);
  column->addWidget(reload, 0, Qt::AlignHCenter);
  column->addStretch(2);
}

void PageNotice::ShowText(const QString& text) { text_->setText(text); }

}  // namespace talvor
