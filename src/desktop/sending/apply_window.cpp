#include "desktop/sending/apply_window.h"

#include <utility>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSignalBlocker>

#include "desktop/widgets/pane.h"

namespace talvor {
namespace {

constexpr int ChoicesWidth = 304;
constexpr int ChoicesEdges = 14;

QLabel* MakeHeading(const QString& text, QWidget* parent) {
  auto* heading = new QLabel(text, parent);
  QFont bold = heading->font();
  bold.setWeight(QFont::DemiBold);
  heading->setFont(bold);
  return heading;
}

QString IconOf(const QString& cv) {
  if (cv.contains(QStringLiteral(".doc")) || cv.contains(QStringLiteral(".rtf")))
    return QStringLiteral("cv-word");
  return cv.contains(QStringLiteral(".pdf")) ? QStringLiteral("cv-pdf") : QStringLiteral("cv");
}

// Shows the name of a file, whose end is an ellipsis where it has no room; it is no place for mnemonics.
void ShowName(QPushButton& row, TextView name) {
  constexpr int Edges = 52;  // of the row and its card, with the icon
  const int room = TextPixels(ChoicesWidth) - 2 * ChoicesEdges - Edges;
  row.setText(row.fontMetrics()
                  .elidedText(ToQt(name), Qt::ElideRight, room)
                  .replace(QLatin1Char('&'), QStringLiteral("&&")));
  row.setToolTip(ToolTipText(name));
  row.setAccessibleName(ToQt(name));
}

}  // namespace

ApplyWindow::ApplyWindow(FormPostuler& form, const Theme& theme, QWidget* parent)
    : ScrollingDialog(parent), form_(form), theme_(theme) {
  setObjectName(QStringLiteral("FormPostuler"));
  SetWanted({TextPixels(1088), TextPixels(644)});
  auto* body = new QVBoxLayout(Body());
  body->setContentsMargins(0, 0, 0, 0);
  auto* panes = new FoldingRow(Body());
  panes->Row().setSpacing(0);
  panes->Row().addWidget(MakeMessage(), 1);
  panes->Row().addWidget(MakeChoices());
  body->addWidget(panes);
  AddFoot(MakeLine(theme, this));
  AddFoot(MakeFoot());

  binder_.OnEdited = [this](QWidget& field) {
    if (&field == recipient_) Do([this] { form_.ChangeRecipient(emailDest_); });
  };
  connect(this, &QDialog::finished, this, [this] {
    marksTimer_.stop();
    if (OnClosed) OnClosed();
  });
  connect(&theme, &Theme::Changed, this, &ApplyWindow::Refresh);
  constexpr int CheckMilliseconds = 1000;
  connect(&marksTimer_, &QTimer::timeout, this, &ApplyWindow::Tick1000);
  marksTimer_.start(CheckMilliseconds);
}

QLineEdit* ApplyWindow::Line(const QString& name, QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(name);
  field->setMinimumWidth(FieldWidth(*field, tr("prenom.nom@fournisseur.com")));
  return field;
}

void ApplyWindow::AddRow(QGridLayout* grid, const QString& caption, QWidget* field, std::size_t check) {
  const int row = grid->rowCount();
  QWidget* parent = field->parentWidget();
  auto* label = MakeLabel(caption, field, parent);
  marks_[check] = new CheckMarkLabel(theme_, field->focusProxy() ? *field->focusProxy() : *field, parent);
  marks_[check]->setObjectName(QStringLiteral("Ok%1").arg(check));
  constexpr int TopOfText = 5;
  label->setContentsMargins(0, TopOfText, 0, 0);
  grid->addWidget(label, row, 0, Qt::AlignTop);
  grid->addWidget(field, row, 1);
  const bool tall = check == FormPostuler::LetterCheck;
  grid->addWidget(marks_[check], row, 2, tall ? Qt::AlignTop : Qt::AlignVCenter);
}

QWidget* ApplyWindow::MakeMessage() {
  QWidget* plane = MakePlane(QStringLiteral("surface"), this);
  auto* grid = new QGridLayout(plane);
  grid->setContentsMargins(16, 10, 16, 12);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(7);
  grid->setColumnStretch(1, 1);
  grid->addWidget(MakeHeading(tr("Vérifications avant envoi"), plane), 0, 0, 1, 3, Qt::AlignRight);

  QLineEdit* sender = Line(QStringLiteral("Email"), plane);
  recipient_ = Line(QStringLiteral("EmailDest"), plane);
  QLineEdit* subject = Line(QStringLiteral("Objet"), plane);
  auto* letter = new QPlainTextEdit(plane);
  letter->setObjectName(QStringLiteral("Texte"));
  letter->setTabChangesFocus(true);
  constexpr int LeastMessage = 120;
  letter->setMinimumHeight(TextPixels(LeastMessage));
  AddRow(grid, tr("Email e&xpéditeur"), sender, FormPostuler::SenderCheck);
  AddRow(grid, tr("Email &destinataire"), recipient_, FormPostuler::RecipientCheck);
  AddRow(grid, tr("&Objet du message"), subject, FormPostuler::SubjectCheck);
  AddRow(grid, tr("Contenu du &message"), letter, FormPostuler::LetterCheck);
  grid->setRowStretch(grid->rowCount() - 1, 1);

  documents_ = new QListWidget(plane);
  documents_->setObjectName(QStringLiteral("File2"));
  documents_->setAccessibleName(tr("Documents à joindre"));
  documents_->setProperty("popup", true);
  constexpr int DocumentsHeight = 152;
  documents_->setFixedHeight(TextPixels(DocumentsHeight));
  documents_->installEventFilter(this);
  documents_->hide();
  const auto take = [this](const QListWidgetItem* item) {
    Do([&] { form_.AttachFile(static_cast<std::size_t>(documents_->row(item))); });
  };
  connect(documents_, &QListWidget::itemClicked, this, take);
  connect(documents_, &QListWidget::itemActivated, this, take);
  grid->addWidget(documents_, grid->rowCount(), 1);

  QWidget* attachment = MakeAttachment(plane);
  AddRow(grid, tr("P&J (CV)"), attachment, FormPostuler::AttachmentCheck);
  path_->setAccessibleName(tr("PJ (CV)"));

  binder_.Bind(*sender, form_.Email);
  binder_.Bind(*recipient_, emailDest_);
  binder_.Bind(*subject, form_.Objet);
  binder_.Bind(*letter, form_.Texte);
  binder_.Bind(*path_, form_.PJ);
  return plane;
}

QWidget* ApplyWindow::MakeAttachment(QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  path_ = Line(QStringLiteral("PJ"), box);
  auto* browse = new QPushButton(tr("Parco&urir"), box);
  browse->setObjectName(QStringLiteral("Parcourir"));
  browse->setProperty("dense", true);
  browse->setAutoDefault(false);
  TintIcon(theme_, *browse, QStringLiteral("folder"), QStringLiteral("text"));
  connect(browse, &QPushButton::clicked, this, [this] { Do([this] { form_.OfferAttachableFiles(); }); });
  row->addWidget(path_, 1);
  row->addWidget(browse);
  box->setFocusProxy(path_);
  return box;
}

QWidget* ApplyWindow::MakeCard(const QString& title, std::array<QPushButton*, 5>& rows, const QString& name,
                               std::function<void(std::size_t)> click, QVBoxLayout* column) {
  QWidget* parent = column->parentWidget();
  auto* heading = MakeHeading(title, parent);
  auto* card = new QFrame(parent);
  card->setProperty("card", true);
  auto* list = new QVBoxLayout(card);
  list->setContentsMargins(4, 4, 4, 4);
  list->setSpacing(1);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    auto* row = new QPushButton(card);
    row->setObjectName(name + QString::number(i));
    row->setProperty("role", QStringLiteral("link"));
    row->setAutoDefault(false);
    connect(row, &QPushButton::clicked, this, [this, i, click] { Do([&] { click(i); }); });
    list->addWidget(row);
    rows[i] = row;
  }
  heading->setBuddy(rows.front());
  column->addWidget(heading);
  column->addWidget(card);
  return card;
}

QWidget* ApplyWindow::MakeChoices() {
  QWidget* plane = MakePlane(QStringLiteral("window"), this);
  plane->setMinimumWidth(TextPixels(ChoicesWidth));
  auto* column = new QVBoxLayout(plane);
  column->setContentsMargins(ChoicesEdges, 12, ChoicesEdges, 12);
  column->setSpacing(8);
  MakeCard(
      tr("Modèles de &lettre"), models_, QStringLiteral("Modele"),
      [this](std::size_t i) { form_.ChooseModel(i); }, column);
  column->addSpacing(6);
  MakeCard(tr("&CV"), cvs_, QStringLiteral("CV"), [this](std::size_t i) { form_.ChooseCv(i); }, column);
  column->addStretch(1);
  MakeWays(plane, column);
  return plane;
}

void ApplyWindow::MakeWays(QWidget* parent, QVBoxLayout* column) {
  column->addWidget(MakeHeading(tr("Envoi"), parent));
  auto* group = new QButtonGroup(parent);
  for (const auto& [way, caption] : {std::pair{FormPostuler::SendByMail, tr("Envoi par &Email")},
                                     std::pair{FormPostuler::MarkAsSent, tr("Mar&quer comme envoyée")}}) {
    auto* option = new QRadioButton(caption, parent);
    option->setObjectName(QStringLiteral("Messagerie%1").arg(way));
    connect(option, &QRadioButton::clicked, this,
            [this, chosen = way] { Do([&] { form_.ChooseWay(chosen); }); });
    group->addButton(option);
    column->addWidget(option);
    ways_[way] = option;
  }
}

QWidget* ApplyWindow::MakeFoot() {
  QWidget* foot = MakePlane(QStringLiteral("window"), this);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(16, 12, 16, 12);
  row->setSpacing(8);
  auto* sign = new QLabel(foot);
  const auto tint = [this, sign] {
    sign->setPixmap(theme_.Pixmap(QStringLiteral("info"), QStringLiteral("text3"), 16));
  };
  connect(&theme_, &Theme::Changed, sign, tint);
  tint();
  auto* note = new QLabel(tr("Veuillez bien vérifier le texte avant envoi."), foot);
  note->setProperty("role", QStringLiteral("label"));
  online_ = new BoutonTLV(theme_, tr("&Postuler en ligne"), foot);
  online_->setObjectName(QStringLiteral("BoutonTLV2"));
  TintIcon(theme_, *online_, QStringLiteral("globe"), QStringLiteral("text"));
  action_ = new BoutonTLV(theme_, {}, foot);
  action_->setObjectName(QStringLiteral("BoutonTLV1"));
  action_->setProperty("role", QStringLiteral("primary"));
  for (BoutonTLV* button : {online_, action_}) button->setAutoDefault(false);
  connect(online_, &QPushButton::clicked, this, [this] { Do([this] { form_.ApplyOnline(); }); });
  connect(action_, &QPushButton::clicked, this, &ApplyWindow::MainAction);
  row->addWidget(sign);
  row->addWidget(note, 1);
  row->addWidget(online_);
  row->addWidget(action_);
  return foot;
}

void ApplyWindow::MainAction() {
  action_->setEnabled(false);  // until the client has the message
  const QPointer<ApplyWindow> self(this);
  Do([this] { form_.SendOrMark(); });
  if (self) action_->setEnabled(true);
}

void ApplyWindow::Do(const std::function<void()>& action) {
  const QPointer<ApplyWindow> self(this);
  action();
  if (!self) return;
  Refresh();
  if (OnActed) OnActed();
}

void ApplyWindow::Tick1000() {
  form_.UpdateMarks();
  for (std::size_t i = 0; i < marks_.size(); ++i) marks_[i]->ShowMark(form_.Ok[i]);
}

// Of a button whose icon follows the form.
void ApplyWindow::SetIcon(QAbstractButton& button, const QString& icon, const QString& token) {
  constexpr int Size = 16;
  button.setIconSize({Size + TextGap, Size});
  button.setIcon(theme_.Icon(icon, token, Size, TextGap));
}

void ApplyWindow::ShowChoices() {
  for (std::size_t i = 0; i < models_.size(); ++i) {
    models_[i]->setVisible(form_.ModelVisible[i]);
    ShowName(*models_[i], form_.Modele[i]);
    SetIcon(*models_[i], QStringLiteral("letter"), QStringLiteral("text2"));
  }
  for (std::size_t i = 0; i < cvs_.size(); ++i) {
    cvs_[i]->setVisible(!form_.CV[i].empty());
    ShowName(*cvs_[i], form_.CV[i]);
    SetIcon(*cvs_[i], IconOf(ToQt(form_.CV[i])), QStringLiteral("text2"));
  }
  for (std::size_t way = 0; way < ways_.size(); ++way) {
    const QSignalBlocker quiet(ways_[way]);
    ways_[way]->setAutoExclusive(false);
    ways_[way]->setChecked(form_.Messagerie == way);
  }
  ways_[FormPostuler::SendByMail]->setEnabled(form_.SendByMailEnabled);
}

void ApplyWindow::ShowDocuments() {
  if (form_.AttachableFilesVisible && documents_->isHidden()) {
    documents_->clear();
    for (const Text& name : form_.AttachableFiles) documents_->addItem(ToQt(name));
    documents_->setCurrentRow(0);
    documents_->show();
    documents_->setFocus(Qt::OtherFocusReason);
  }
  if (!form_.AttachableFilesVisible) documents_->hide();
}

void ApplyWindow::Refresh() {
  emailDest_ = form_.EmailDest;
  binder_.Refresh();
  ShowChoices();
  ShowDocuments();
  action_->setVisible(form_.SendVisible);
  online_->setVisible(form_.ApplyOnlineVisible);
  const bool mail = form_.Messagerie == FormPostuler::SendByMail;
  action_->SetLibelle(ToQt(form_.SendLabel).replace(QLatin1Char('v'), QStringLiteral("&v")));
  SetIcon(*action_, mail ? QStringLiteral("send") : QStringLiteral("check"), QStringLiteral("onprimary"));
}

bool ApplyWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == documents_ && event->type() == QEvent::FocusOut && form_.AttachableFilesVisible) {
    form_.CloseAttachableFiles();
    // The click that takes the focus may be on its way to a button that would move.
    QMetaObject::invokeMethod(this, [this] { ShowDocuments(); }, Qt::QueuedConnection);
  }
  return ScrollingDialog::eventFilter(watched, event);
}

void ApplyWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && event->modifiers().testFlag(Qt::ControlModifier)) {
    if (action_->isVisible() && action_->isEnabled()) MainAction();
    return;
  }
  if (event->key() == Qt::Key_Escape && form_.AttachableFilesVisible) {
    form_.CloseAttachableFiles();
    return ShowDocuments();
  }
  ScrollingDialog::keyPressEvent(event);
}

}  // namespace talvor
