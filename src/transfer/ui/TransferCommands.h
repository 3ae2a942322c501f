#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::transfer::ui {

// The main window's side of the shared FTP session: its errors shown as
// the main window shows them, progress in the status bar, Escape stopping
// a transfer, and documents saved back to their servers; the upload and
// site download windows and their commands.
void registerTransferCommands(core::ui::Shell &shell);

} // namespace qly::transfer::ui
