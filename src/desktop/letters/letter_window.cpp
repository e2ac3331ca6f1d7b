#include "desktop/letters/letter_window.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSplitter>
#include <algorithm>

namespace talvor {
namespace {

QList<int> WideSizes() { return {TextPixels(322), TextPixels(424), TextPixels(522)}; }

}  // namespace

LetterWindow::LetterWindow(FormLettre& form, const Theme& theme, QWidget* parent)
    : QWidget(parent), form_(form) {
  setObjectName(QStringLiteral("FormLettre"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  splitter_ = new QSplitter(Qt::Horizontal, this);
  splitter_->setHandleWidth(6);
  splitter_->setChildrenCollapsible(false);
  sender_ = new LetterSenderPane(theme, splitter_);
  sentences_ = new LetterSentencesPane(theme, splitter_);
  sheet_ = new LetterSheetPane(theme, splitter_);
  for (int i = 0; i < splitter_->count(); ++i) splitter_->setStretchFactor(i, i == 2 ? 1 : 0);
  splitter_->setSizes(WideSizes());
  row->addWidget(splitter_);

  Bind();
  ConnectPanes();
  ChainTabs();
  constexpr int SaveMilliseconds = 1000;
  connect(&saveTimer_, &QTimer::timeout, this, [this] { Tick1000(); });
  saveTimer_.start(SaveMilliseconds);
  Refresh();
}

void LetterWindow::Bind() {
  binder_.BindByName(*this, LetterFields, form_);
  for (std::size_t i = 0; i < CorpsCount; ++i) binder_.Bind(sentences_->Sentence(i), form_.Corps[i]);
  binder_.OnEdited = [this](QWidget& field) { TakeEdit(field); };
}

void LetterWindow::ConnectPanes() {
  sender_->OnCv = [this](std::size_t i) { Do([&] { form_.BeginFromCv(i); }); };
  sender_->OnLeaveEmail = [this] { Do([&] { form_.LeaveEmail(); }); };
  sender_->OnLeavePrenom = [this] { Do([&] { form_.LeavePrenom(); }); };
  sentences_->OnPrevious = [this](std::size_t i) { Do([&] { form_.PreviousSentence(i); }); };
  sentences_->OnNext = [this](std::size_t i) { Do([&] { form_.NextSentence(i); }); };
  sentences_->OnPropositions = [this] { Do([&] { form_.OpenPropositions(); }); };
  sheet_->OnRecompose = [this] { Do([&] { form_.ComposeAnew(); }); };
  sheet_->OnModele = [this](std::size_t i) { Do([&] { form_.ToggleMedium(i); }); };
  sheet_->OnCandidature = [this](std::size_t i) { Do([&] { form_.ToggleOccasion(i); }); };
}

void LetterWindow::ChainTabs() {
  const QList<QWidget*> fields = sender_->Fields() + sentences_->Fields() + sheet_->Fields();
  for (qsizetype i = 1; i < fields.size(); ++i) setTabOrder(fields[i - 1], fields[i]);
}

void LetterWindow::Do(const std::function<void()>& action) {
  const QPointer<LetterWindow> self(this);
  action();
  if (!self) return;
  Refresh();
  if (OnActed) OnActed();
}

void LetterWindow::NewLetter() {
  QMetaObject::invokeMethod(this, [this] { Refresh(); }, Qt::QueuedConnection);
  Do([&] { form_.NouvelleLettre(); });
}

void LetterWindow::Tick1000() {
  Do([&] { form_.SaveIfChanged(); });
}

// The letter reports a change of its looks, too: only another text is an edit.
void LetterWindow::TakeEdit(QWidget& field) {
  if (&field != &sheet_->Letter() || form_.Text1 == knownLetter_) return;
  knownLetter_ = form_.Text1;
  edited_ = true;
  sheet_->ShowState(form_, edited_);
}

void LetterWindow::Refresh() {
  if (form_.Text1 != knownLetter_) {
    knownLetter_ = form_.Text1;
    edited_ = false;
  }
  // A letter composed anew stays where it was scrolled to.
  QScrollBar* bar = sheet_->Letter().verticalScrollBar();
  const int place = bar->value();
  binder_.Refresh();
  bar->setValue(place);
  sender_->ShowCvs(form_);
  sheet_->ShowState(form_, edited_);
}

void LetterWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  sender_->Name().setFocus(Qt::OtherFocusReason);
}

// In a narrow window the letter keeps what it needs, and the sentences a little.
void LetterWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  constexpr int NarrowWindow = 1200;
  constexpr int NarrowSentences = 300;
  const bool narrow = width() < TextPixels(NarrowWindow);
  if (narrow == narrow_) return;
  narrow_ = narrow;
  if (!narrow) return splitter_->setSizes(WideSizes());
  const int letter = sheet_->minimumSizeHint().width();
  const int room = width() - letter - 2 * splitter_->handleWidth();
  const int sender = std::max(sender_->minimumSizeHint().width(), room - TextPixels(NarrowSentences));
  splitter_->setSizes({sender, room - sender, letter});
}

}  // namespace talvor
