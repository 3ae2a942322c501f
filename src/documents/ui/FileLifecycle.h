#pragma once

class QWidget;

namespace qly::core::ui {
class Shell;
}

namespace qly::documents::ui {

// Connects the file lifecycle to the main window before its start-up steps
// run: the recent-file entries of the File menu, the auto-save timer
// (timAutoSave, 60000 ms, a child of the window), the start-up's new
// document, the recent-file hook of saving, and files dropped onto the
// window, which open as documents.
void InstallFileLifecycle(core::ui::Shell &shell);

// File menu commands with a window.
void mnuNew_Click(QWidget *parent);
void mnuSaveTemplate_Click(QWidget *parent);
void mnuPrintSetup_Click(QWidget *parent);

} // namespace qly::documents::ui
