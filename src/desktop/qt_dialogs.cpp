#include "desktop/qt_dialogs.h"

#include <QMessageBox>
#include <QPushButton>

#include "desktop/text_edge.h"

namespace talvor {
namespace {

int Ask(QWidget* frame, QMessageBox::Icon icon, TextView text, QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, QStringLiteral("Talvor"), ToQt(text), buttons, frame);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Ok);
  return box.exec();
}

}  // namespace

void QtDialogs::Tell(TextView message) { Ask(frame_, QMessageBox::Information, message, QMessageBox::Ok); }

bool QtDialogs::Confirm(TextView question) {
  return Ask(frame_, QMessageBox::Warning, question, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

}  // namespace talvor
