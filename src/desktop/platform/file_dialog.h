// The file dialog of Qt, in French.
#pragma once

#include <QFileDialog>

namespace talvor {

// Asks for one file, to open or to save. The dialog starts at `beginning`, a folder or the path of a
// proposed file; nothing is asked about a file that exists. Empty when the user gives up.
[[nodiscard]] QString AskForFile(QWidget* parent, QFileDialog::AcceptMode mode, const QString& title,
                                 const QString& beginning, const QString& filter);

}  // namespace talvor
