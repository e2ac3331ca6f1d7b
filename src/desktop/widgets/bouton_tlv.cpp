#include "desktop/widgets/bouton_tlv.h"

#include "desktop/widgets/text_edge.h"
#include "shell/button_glyph.h"

namespace talvor {
namespace {

constexpr int NarrowWidth = 41;  // of a button that shows one character
constexpr int NarrowFont = 18;

// The pictures of the labels of one character, the arrows of the forms.
QString PictureOf(QChar label) {
  switch (label.unicode()) {
    case u'3':
    case u'7':
      return QStringLiteral("left");
    case u'4':
    case u'8':
      return QStringLiteral("right");
    case u'a':
      return QStringLiteral("check");
    case u'r':
      return QStringLiteral("cross");
    case u's':
      return QStringLiteral("help");
    case u'q':
      return QStringLiteral("refresh");
    default:
      return QStringLiteral("doc-new");
  }
}

}  // namespace

BoutonTLV::BoutonTLV(const Theme& theme, const QString& libelle, QWidget* parent)
    : QPushButton(parent), theme_(theme) {
  setIconSize({16 + TextGap, 16});
  connect(&theme, &Theme::Changed, this, &BoutonTLV::TakeGlyph);
  SetLibelle(libelle);
}

void BoutonTLV::SetLibelle(const QString& libelle) {
  libelle_ = libelle;
  TakeGlyph();
}

void BoutonTLV::TakeGlyph() {
  const QString plain = QString(libelle_).remove(QLatin1Char('&'));
  const Text label = FromQt(plain);
  if (IsPictureLabel(label)) {
    setText({});
    setIcon(theme_.Icon(PictureOf(plain.front()), QStringLiteral("text")));
    setAccessibleName(plain);
  } else {
    setText(libelle_);
    switch (GlyphOf(label)) {
      case ButtonGlyph::None:
        setIcon({});
        break;
      case ButtonGlyph::Check:
        setIcon(theme_.Icon(QStringLiteral("check"), QStringLiteral("ok"), 16, TextGap));
        break;
      case ButtonGlyph::Cross:
        setIcon(theme_.Icon(QStringLiteral("cross"), QStringLiteral("bad"), 16, TextGap));
        break;
      case ButtonGlyph::NewPage:
        setIcon(theme_.Icon(QStringLiteral("doc-new"), QStringLiteral("new"), 16, TextGap));
        break;
    }
  }
  if (label.size() != 1) return;
  setFixedWidth(NarrowWidth);
  setStyleSheet(QStringLiteral("padding: 0; font-size: %1px;").arg(NarrowFont));
}

}  // namespace talvor
