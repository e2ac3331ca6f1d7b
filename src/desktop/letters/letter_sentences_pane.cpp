#include "desktop/letters/letter_sentences_pane.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QShortcut>

#include "desktop/letters/letter_tags.h"
#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/scrolling.h"

namespace talvor {
namespace {

constexpr int LeastSentence = 58;  // three lines
constexpr int NarrowPane = 370;    // below it the buttons go without their arrows
constexpr int Arrow = 14;

// The number of a group, in a disc.
QLabel* MakeNumber(std::size_t number, const Theme& theme, QWidget* parent) {
  const int side = TextPixels(20);
  auto* disc = new QLabel(QString::number(number), parent);
  disc->setFixedSize(side, side);
  disc->setAlignment(Qt::AlignCenter);
  const auto take = [disc, side, &theme] {
    disc->setStyleSheet(
        QStringLiteral("background: %1; color: %2; border-radius: %3px; font-size: %4px; font-weight: 700;")
            .arg(theme.Color(QStringLiteral("psoft")).name(), theme.Color(QStringLiteral("onpsoft")).name())
            .arg(side / 2)
            .arg(TextPixels(11)));
  };
  QObject::connect(&theme, &Theme::Changed, disc, take);
  take();
  return disc;
}

}  // namespace

LetterSentencesPane::LetterSentencesPane(const Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme) {
  setProperty("plane", QStringLiteral("window"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Formules"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeHead());
  column->addWidget(MakeLine(theme, this));

  auto* scroll = new PaneScroll(this);
  QWidget* content = MakePlane(QStringLiteral("window"), scroll);
  auto* cards = new QVBoxLayout(content);
  cards->setContentsMargins(12, 10, 12, 10);
  cards->setSpacing(8);
  const std::array names{tr("Introduction"), tr("Adequation"), tr("Motivation"), tr("Disposition"),
                         tr("Politesse")};
  for (std::size_t i = 0; i < CorpsCount; ++i) cards->addWidget(MakeCard(i, names[i], content), 1);
  scroll->setWidget(content);
  column->addWidget(scroll, 1);
}

QWidget* LetterSentencesPane::MakeHead() {
  auto* head = new FoldingRow(this);
  head->setProperty("plane", QStringLiteral("surface"));
  head->setAttribute(Qt::WA_StyledBackground);
  head->SetLeastHeight(TextPixels(39));
  QBoxLayout* row = &head->Row();
  row->setContentsMargins(12, 3, 8, 3);
  auto* title = new QLabel(tr("Formules"), head);
  title->setProperty("role", QStringLiteral("title"));
  QPushButton* edit = MakeLink(theme_, QStringLiteral("edit"), tr("Modifier les p&ropositions"),
                               QStringLiteral("Command1"), head);
  connect(edit, &QPushButton::clicked, this, [this] {
    if (OnPropositions) OnPropositions();
  });
  fields_.append(edit);
  row->addWidget(title);
  row->addStretch(1);
  row->addWidget(edit);
  return head;
}

QWidget* LetterSentencesPane::MakeCard(std::size_t group, const QString& name, QWidget* parent) {
  auto* card = new QFrame(parent);
  card->setProperty("card", true);
  auto* column = new QVBoxLayout(card);
  column->setContentsMargins(6, 4, 6, 6);
  column->setSpacing(2);
  column->addWidget(MakeCardHead(group, name, card));
  auto* sentence = new QPlainTextEdit(card);
  sentence->setObjectName(QStringLiteral("Corps%1").arg(group));
  sentence->setAccessibleName(name);
  sentence->setTabChangesFocus(true);
  sentence->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // the lines are broken
  sentence->setMinimumHeight(TextPixels(LeastSentence));
  sentence->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  sentence->document()->setDocumentMargin(3);
  sentence->setStyleSheet(
      QStringLiteral("QPlainTextEdit:!focus { border: 2px solid transparent; "
                     "background: transparent; padding: 1px 3px; }"));
  new TagHighlighter(theme_, *sentence);
  sentences_[group] = sentence;
  fields_.append(sentence);
  column->addWidget(sentence, 1);
  return card;
}

QWidget* LetterSentencesPane::MakeCardHead(std::size_t group, const QString& name, QWidget* card) {
  auto* head = new FoldingRow(card);
  head->Row().setContentsMargins(6, 0, 0, 0);
  head->Row().setSpacing(6);
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  auto* title = new QLabel(name, head);
  QFont bold = title->font();
  bold.setWeight(QFont::DemiBold);
  title->setFont(bold);
  row->addWidget(MakeNumber(group + 1, theme_, head));
  row->addWidget(title, 1);
  auto* steps = new QHBoxLayout;
  steps->setSpacing(6);
  for (const bool next : {false, true}) steps->addWidget(MakeButton(group, name, next, head));
  head->Row().addLayout(row, 1);
  head->Row().addLayout(steps);
  return head;
}

QPushButton* LetterSentencesPane::MakeButton(std::size_t group, const QString& name, bool next,
                                             QWidget* head) {
  const QString caption = next ? tr("Suivant") : tr("Précédent");
  auto* button = new BoutonTLV(theme_, caption, head);
  button->setObjectName(QStringLiteral("BoutonTLV%1_%2").arg(next ? 2 : 1).arg(group));
  button->setAccessibleName(tr("%1\u00A0: %2").arg(caption, name));
  button->setProperty("dense", true);
  if (next) button->setLayoutDirection(Qt::RightToLeft);  // the arrow behind the text
  TintIcon(theme_, *button, next ? QStringLiteral("chev-r") : QStringLiteral("chev-l"),
           QStringLiteral("text2"), Arrow);
  const auto press = [this, group, next] {
    if (const auto& act = next ? OnNext : OnPrevious) act(group);
  };
  connect(button, &QPushButton::clicked, this, press);
  const auto digit = static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(group));
  const QKeySequence keys(next ? Qt::ALT | digit : Qt::ALT | Qt::SHIFT | digit);
  button->setToolTip(keys.toString(QKeySequence::NativeText));
  auto* shortcut = new QShortcut(keys, this);
  // On a French keyboard the digits need Shift: the same keys without it.
  constexpr std::array FrenchDigits{Qt::Key_Ampersand, Qt::Key_Eacute, Qt::Key_QuoteDbl, Qt::Key_Apostrophe,
                                    Qt::Key_ParenLeft};
  if (next) shortcut->setKeys({keys, QKeySequence(Qt::ALT | FrenchDigits[group])});
  connect(shortcut, &QShortcut::activated, this, press);
  steps_.append(button);
  fields_.append(button);
  return button;
}

void LetterSentencesPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const QSize arrow = width() < TextPixels(NarrowPane) ? QSize(0, 0) : QSize(Arrow + TextGap, Arrow);
  for (QAbstractButton* step : steps_) step->setIconSize(arrow);
}

}  // namespace talvor
