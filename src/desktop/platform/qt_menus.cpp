#include "desktop/platform/qt_menus.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

struct ItemLook {
  TextView name;
  const char16_t* mnemonic;  // the part of the caption that begins with it
  const char16_t* icon = u"";
  bool checkable = false;
};

constexpr std::array<ItemLook, 36> Looks{{
    {u"MenuNouveauCV", u"Rédiger", u"doc-new"},
    {u"MenuRattacherCV", u"attacher", u"clip"},
    {u"MenuOuvrirCV", u"Ouvrir", u"folder"},
    {u"MenuSupprimerCV", u"Supprimer", u"trash"},
    {u"Renommer", u"nommer", u"edit"},
    {u"MenuDupliquerCV", u"Dupliquer"},
    {u"MenuConvertirCV", u"Convertir", u"convert"},
    {u"MenuOuvrirWord", u"Word", u"cv-word"},
    {u"MenuImprimerCV", u"Imprimer", u"print"},
    {u"MenuEnvoyerAmi", u"un ami"},
    {u"MenuEnvoyerRecruteur", u"Envoyer", u"send"},
    {u"MenuRédigerLettre", u"Rédiger", u"doc-new"},
    {u"MenuOuvrirLettre", u"Ouvrir", u"folder"},
    {u"MenuDuppliquerLettre", u"Dupliquer"},
    {u"RenommerLettre", u"nommer", u"edit"},
    {u"MenuSupprimerLettre", u"Supprimer", u"trash"},
    {u"MenuOuvrirCand", u"Ouvrir", u"case"},
    {u"MenuRechercherOffres", u"Rechercher", u"globe"},
    {u"MenuImprimerListe", u"Imprimer", u"print"},
    {u"MenuJustificatif", u"Justificatif"},
    {u"MenuSupprimer", u"Tout", u"trash"},
    {u"PrévisualiserCV", u"Prévisualiser", u"cv-pdf"},
    {u"ImprimerCV", u"Imprimer", u"print"},
    {u"MessageTrames", u"Mise"},
    {u"RattacherPhoto", u"Rattacher", u"folder"},
    {u"CollerPhoto", u"Coller", u"clip"},
    {u"SupprimerPhoto", u"Supprimer", u"trash"},
    {u"MenuFrancais", u"Français", u"", true},
    {u"MenuAnglais", u"Anglais", u"", true},
    {u"MenuConvFWord", u"Conversion", u"convert"},
    {u"ConsulterWord", u"Dernière", u"cv-word"},
    {u"MenuConsulterInternet", u"Internet", u"globe"},
    {u"MenuConsulterOrigine", u"origine", u"link"},
    {u"MenuPostuler", u"Postuler", u"send"},
    {u"MenuImprimerCand", u"mprimer", u"print"},
    {u"MenuSupprimerCand", u"Supprimer", u"trash"},
}};

ItemLook LookOf(TextView name) {
  for (const ItemLook& look : Looks)
    if (look.name == name) return look;
  return {name, u""};
}

QString Caption(TextView caption, const char16_t* mnemonic) {
  QString shown = ToQt(caption).trimmed();
  return shown.insert(shown.indexOf(QString::fromUtf16(mnemonic)), QLatin1Char('&'));
}

}  // namespace

QtMenus::QtMenus(const Theme& theme, std::initializer_list<TextView> names) : theme_(theme) {
  for (const MenuTree& tree : MenuTrees())
    if (std::find(names.begin(), names.end(), tree.name) != names.end()) MakeMenu(tree);
}

void QtMenus::MakeMenu(const MenuTree& tree) {
  auto& menu = menus_.emplace_back(std::make_unique<QMenu>());
  menu->setObjectName(ToQt(tree.name));
  for (const MenuItem& item : tree.items)
    if (item.caption.empty())
      menu->addSeparator()->setObjectName(ToQt(item.name));
    else
      AddItem(*menu, item);
}

void QtMenus::AddItem(QMenu& menu, const MenuItem& item) {
  const ItemLook look = LookOf(item.name);
  QAction* action = menu.addAction(Caption(item.caption, look.mnemonic));
  action->setObjectName(ToQt(item.name));
  action->setCheckable(look.checkable);
  if (const QString icon = QString::fromUtf16(look.icon); !icon.isEmpty()) {
    const auto take = [this, action, icon] { action->setIcon(theme_.Icon(icon, QStringLiteral("text2"))); };
    QObject::connect(&theme_, &Theme::Changed, action, take);
    take();
  }
  QObject::connect(action, &QAction::triggered, &owner_, [this, name = item.name] {
    if (OnChosen) OnChosen(name);
  });
}

QMenu* QtMenus::Menu(TextView menu) const {
  for (const auto& known : menus_)
    if (known->objectName() == ToQt(menu)) return known.get();
  return nullptr;
}

void QtMenus::Open(TextView menu) {
  if (anchor_) OpenAt(menu, anchor_->mapToGlobal(QPoint(0, anchor_->height())));
}

void QtMenus::OpenAt(TextView menu, QPoint place) {
  if (QMenu* opened = Menu(menu)) opened->popup(place);
}

void QtMenus::Pick(const std::function<void(QAction&)>& action, TextView item) const {
  bool known = false;
  for (const auto& menu : menus_)
    if (auto* found = menu->findChild<QAction*>(ToQt(item))) {
      action(*found);
      known = true;
    }
  if (!known) throw std::logic_error("no menu has an item " + ToUtf8(item));
}

void QtMenus::Enable(TextView item, bool enabled) {
  Pick([enabled](QAction& action) { action.setEnabled(enabled); }, item);
}

void QtMenus::Check(TextView item, bool checked) {
  Pick([checked](QAction& action) { action.setChecked(checked); }, item);
}

}  // namespace talvor
