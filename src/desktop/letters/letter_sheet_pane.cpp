#include "desktop/letters/letter_sheet_pane.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/letters/letter_tags.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/segment_button.h"

namespace talvor {
namespace {

constexpr int LeastSheet = 340;

void Check(QButtonGroup& group, const FlagPair& flags) {
  group.setExclusive(false);
  for (QAbstractButton* option : group.buttons())
    option->setChecked(flags[static_cast<std::size_t>(group.id(option))]);
  group.setExclusive(true);
}

void Announce(QWidget* widget) {
  QAccessibleEvent alert(widget, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace

LetterSheetPane::LetterSheetPane(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setProperty("plane", QStringLiteral("window"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Lettre"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeHead());
  column->addWidget(MakeLine(theme, this));
  column->addWidget(MakePaper(), 1);
  connect(&theme, &Theme::Changed, this, &LetterSheetPane::TellNotes);
  TellNotes();
}

QWidget* LetterSheetPane::MakeHead() {
  QWidget* head = MakePlane(QStringLiteral("surface"), this);
  auto* column = new QVBoxLayout(head);
  column->setContentsMargins(14, 10, 14, 10);
  column->setSpacing(7);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  auto* name = new QLineEdit(head);
  name->setObjectName(QStringLiteral("NomLettre"));
  auto* recompose = new QPushButton(tr("Rec&omposer"), head);
  recompose->setObjectName(QStringLiteral("Picture2"));
  recompose->setAccessibleName(tr("Recomposer la lettre"));
  recompose->setProperty("dense", true);
  TintIcon(theme_, *recompose, QStringLiteral("refresh"), QStringLiteral("text"));
  connect(recompose, &QPushButton::clicked, this, [this] {
    if (OnRecompose) OnRecompose();
  });
  row->addWidget(MakeLabel(tr("Modèle"), name, head));
  row->addWidget(name, 1);
  row->addWidget(recompose);
  column->addLayout(row);
  fields_ << name << recompose;
  modele_ = MakeSegments(QStringLiteral("Check_Modele"), tr("Forme du modèle"),
                         {tr("Modèle à &imprimer"), tr("Modèle à envoyer par courri&el")},
                         &LetterSheetPane::OnModele, column);
  candidature_ = MakeSegments(QStringLiteral("Check_candidature"), tr("Nature de la candidature"),
                              {tr("Candidature &spontanée"), tr("Réponse à une &annonce")},
                              &LetterSheetPane::OnCandidature, column);
  column->addWidget(MakeObject(head));
  return head;
}

QButtonGroup* LetterSheetPane::MakeSegments(const QString& name, const QString& spoken,
                                            const std::array<QString, 2>& captions,
                                            std::function<void(std::size_t)> LetterSheetPane::* click,
                                            QVBoxLayout* column) {
  auto* segments = new QFrame(this);
  segments->setProperty("seg", true);
  segments->setAccessibleName(spoken);
  auto* inner = new QVBoxLayout(segments);
  inner->setContentsMargins(2, 2, 2, 2);
  auto* pair = new FoldingRow(segments);
  pair->Row().setSpacing(2);
  inner->addWidget(pair);
  auto* group = new QButtonGroup(segments);
  for (std::size_t i = 0; i < captions.size(); ++i) {
    auto* option = new SegmentButton(captions[i], pair);
    option->setObjectName(QStringLiteral("%1%2").arg(name).arg(i));
    option->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    option->setToolTip(QString(captions[i]).remove(QLatin1Char('&')));
    group->addButton(option, static_cast<int>(i));
    pair->Row().addWidget(option, 1);
    fields_.append(option);
  }
  // Of an exclusive pair only the one that was not chosen is turned over.
  connect(group, &QButtonGroup::idToggled, this, [this, group, click](int id, bool checked) {
    if (group->exclusive() && checked && this->*click) (this->*click)(static_cast<std::size_t>(id));
  });
  column->addWidget(segments);
  return group;
}

QWidget* LetterSheetPane::MakeObject(QWidget* parent) {
  object_ = new QWidget(parent);
  object_->setObjectName(QStringLiteral("CadreObjet"));
  auto* row = new QHBoxLayout(object_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  auto* field = new QLineEdit(object_);
  field->setObjectName(QStringLiteral("Objet"));
  row->addWidget(MakeLabel(tr("Objet"), field, object_));
  row->addWidget(field, 1);
  fields_.append(field);
  return object_;
}

QWidget* LetterSheetPane::MakePaper() {
  auto* desk = new QWidget(this);
  auto* column = new QVBoxLayout(desk);
  column->setContentsMargins(14, 12, 14, 10);
  column->setSpacing(6);
  letter_ = new QPlainTextEdit(desk);
  letter_->setObjectName(QStringLiteral("Text1"));
  letter_->setAccessibleName(tr("Lettre composée"));
  letter_->setTabChangesFocus(true);
  letter_->setMinimumWidth(TextPixels(LeastSheet));
  letter_->document()->setDocumentMargin(14);
  new TagHighlighter(theme_, *letter_);
  column->addWidget(letter_, 1);
  fields_.append(letter_);
  edit_ = MakeNote(QStringLiteral("NoteRetouche"), desk);
  failure_ = MakeNote(QStringLiteral("NoteEnregistrement"), desk);
  failure_.line->hide();
  column->addWidget(edit_.line);
  column->addWidget(failure_.line);
  return desk;
}

LetterSheetPane::Note LetterSheetPane::MakeNote(const QString& name, QWidget* parent) {
  Note note{new QWidget(parent), new QLabel(parent), new QLabel(parent)};
  auto* row = new QHBoxLayout(note.line);
  row->setContentsMargins(2, 0, 2, 0);
  row->setSpacing(6);
  note.text->setObjectName(name);
  note.text->setWordWrap(true);
  row->addWidget(note.icon, 0, Qt::AlignTop);
  row->addWidget(note.text, 1);
  return note;
}

void LetterSheetPane::TellNote(const Note& note, const QString& icon, const QString& token,
                               const QString& text) {
  note.icon->setPixmap(theme_.Pixmap(icon, token, 16));
  note.text->setText(text);
  note.text->setStyleSheet(
      QStringLiteral("color: %1; font-size: %2px;").arg(theme_.Color(token).name()).arg(TextPixels(12)));
}

// The height of a text on several lines depends on its width: the pane cannot know it beforehand.
void LetterSheetPane::FitNotes() {
  for (const Note& note : {edit_, failure_}) {
    note.text->setMinimumHeight(0);
    note.text->setMinimumHeight(note.text->heightForWidth(note.text->width()));
  }
  // With such a text in it the layout takes the wanted height of the letter for its least, too.
  setMinimumHeight(layout()->totalHeightForWidth(width()));
}

void LetterSheetPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitLater();
}

// When the layout under way is done.
void LetterSheetPane::FitLater() {
  QMetaObject::invokeMethod(this, [this] { FitNotes(); }, Qt::QueuedConnection);
}

void LetterSheetPane::TellNotes() {
  if (edited_)
    TellNote(
        edit_, QStringLiteral("warn"), QStringLiteral("warn"),
        tr("Lettre retouchée à la main\u00A0: la retouche sera perdue à la prochaine composition "
           "(autre formule, autre type de modèle, reprise d’un CV, sortie du champ Courriel, Recomposer)."));
  else
    TellNote(edit_, QStringLiteral("info"), QStringLiteral("text3"),
             tr("Une retouche faite ici est gardée jusqu’à la prochaine composition de la lettre."));
  TellNote(
      failure_, QStringLiteral("warn"), QStringLiteral("bad"),
      tr("Le modèle n’a pas pu être enregistré. Vérifiez son nom et la place disponible\u00A0; un nouvel "
         "essai suivra le prochain changement de la lettre."));
  FitLater();
}

void LetterSheetPane::ShowState(const FormLettre& form, bool edited) {
  Check(*modele_, form.Check_Modele);
  Check(*candidature_, form.Check_candidature);
  if (object_->isHidden() == form.SubjectVisible) {
    object_->setVisible(form.SubjectVisible);
    FitLater();
  }
  if (edited != edited_) {
    edited_ = edited;
    TellNotes();
    if (edited) Announce(edit_.text);
  }
  if (form.saveFailed != failure_.line->isHidden()) return;
  failure_.line->setVisible(form.saveFailed);
  FitLater();
  if (form.saveFailed) Announce(failure_.text);
}

}  // namespace talvor
