#pragma once

#include <QString>

class QWidget;

namespace qly::core::ui {
class Shell;
}

namespace qly::tagdialogs::ui {

class TagDialog;

// Binds the Insert, Format and View entries and the tools of the tag
// dialogs.
void registerTagDialogCommands(core::ui::Shell &shell);

// The dialog of that name ("frmImage", "frmList", ...) over `parent`, its
// fields read from the current document; null for an unknown name. The
// list's kind (0 bulleted, 1 numbered) is `kind`.
TagDialog *makeTagDialog(const QString &name, QWidget *parent, int kind = 0);
// The dialog names makeTagDialog knows.
QStringList tagDialogNames();

// Insert Color: Qt's colour dialog; OK inserts the colour as "#RRGGBB",
// in quotes, at the selection.
void InsertColor(QWidget *parent);

} // namespace qly::tagdialogs::ui
