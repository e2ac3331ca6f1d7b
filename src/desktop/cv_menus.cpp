#include "desktop/cv_menus.h"

#include "desktop/text_edge.h"

namespace talvor {

CvMenus::CvMenus(const Theme& theme) : theme_(theme) { MakeMenus(); }

void CvMenus::MakeMenus() {
  QMenu* languages = AddMenu(u"MenuLangues");
  for (const auto& [name, caption] : {std::pair{u"MenuFrancais", QObject::tr("&Français")},
                                      std::pair{u"MenuAnglais", QObject::tr("&Anglais")}})
    AddItem(languages, name, caption)->setCheckable(true);

  QMenu* print = AddMenu(u"MenuImprimer");
  AddItem(print, u"PrévisualiserCV", QObject::tr("&Prévisualiser"), QStringLiteral("cv-pdf"));
  AddItem(print, u"ImprimerCV", QObject::tr("&Imprimer"), QStringLiteral("print"));
  print->addSeparator();
  AddItem(print, u"MessageTrames", QObject::tr("&Mise en page"));

  QMenu* convert = AddMenu(u"MenuConvertirWord");
  AddItem(convert, u"MenuConvFWord", QObject::tr("&Conversion du format"), QStringLiteral("convert"));
  AddItem(convert, u"ConsulterWord", QObject::tr("&Dernière version"), QStringLiteral("cv-word"));

  QMenu* photo = AddMenu(u"MenuPhoto");
  AddItem(photo, u"RattacherPhoto", QObject::tr("&Rattacher..."), QStringLiteral("folder"));
  AddItem(photo, u"CollerPhoto", QObject::tr("&Coller"), QStringLiteral("clip"));
  photo->addSeparator();
  AddItem(photo, u"SupprimerPhoto", QObject::tr("&Supprimer"), QStringLiteral("trash"));
}

QMenu* CvMenus::AddMenu(const char16_t* name) {
  auto& menu = menus_.emplace_back(std::make_unique<QMenu>());
  menu->setObjectName(ToQt(name));
  return menu.get();
}

QAction* CvMenus::AddItem(QMenu* menu, const char16_t* name, const QString& caption, const QString& icon) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(ToQt(name));
  if (!icon.isEmpty()) {
    const auto take = [this, item, icon] { item->setIcon(theme_.Icon(icon, QStringLiteral("text2"))); };
    QObject::connect(&theme_, &Theme::Changed, item, take);
    take();
  }
  QObject::connect(item, &QAction::triggered, &owner_, [this, name] {
    if (OnChosen) OnChosen(name);
  });
  return item;
}

QMenu* CvMenus::Menu(TextView menu) const {
  for (const auto& known : menus_)
    if (known->objectName() == ToQt(menu)) return known.get();
  return nullptr;
}

void CvMenus::Open(TextView menu) {
  QMenu* opened = Menu(menu);
  if (opened == nullptr || !anchor_) return;
  opened->popup(anchor_->mapToGlobal(QPoint(0, anchor_->height())));
}

void CvMenus::Enable(TextView item, bool enabled) {
  for (const auto& menu : menus_)
    if (auto* action = menu->findChild<QAction*>(ToQt(item))) action->setEnabled(enabled);
}

void CvMenus::Check(TextView item, bool checked) {
  for (const auto& menu : menus_)
    if (auto* action = menu->findChild<QAction*>(ToQt(item))) action->setChecked(checked);
}

}  // namespace talvor
