#include "desktop/browser_pane.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWebEngineView>

#include "desktop/pane.h"
#include "desktop/start_page.h"

namespace talvor {

BrowserPane::BrowserPane(const Theme& theme, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("CadreWeb"));
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Navigateur"));
  setMinimumWidth(250);
  column_ = new QVBoxLayout(this);
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(0);

  auto* bar = new QWidget(this);
  bar->setFixedHeight(43);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(10, 0, 10, 0);
  auto* address = new QLineEdit(bar);
  address->setObjectName(QStringLiteral("AdresseWeb"));
  address->setAccessibleName(tr("Adresse de la page"));
  auto* globe = address->addAction(theme.Icon(QStringLiteral("globe"), QStringLiteral("text2")),
                                   QLineEdit::LeadingPosition);
  connect(&theme, &Theme::Changed, globe,
          [globe, &theme] { globe->setIcon(theme.Icon(QStringLiteral("globe"), QStringLiteral("text2"))); });
  connect(address, &QLineEdit::returnPressed, this, [this] {
    if (OnGo) OnGo();
  });
  row->addWidget(address);
  column_->addWidget(bar);
  column_->addWidget(MakeLine(theme, this));
  blank_ = new QWidget(this);
  column_->addWidget(blank_, 1);
}

QWebEngineView* BrowserPane::MakeView() {
  if (view_ != nullptr) return view_;
  view_ = new QWebEngineView(this);
  InstallStartPage(*view_->page()->profile());
  view_->setObjectName(QStringLiteral("WebBrowser1"));
  view_->setAccessibleName(tr("Page"));
  delete blank_;
  column_->addWidget(view_, 1);
  return view_;
}

}  // namespace talvor
