#pragma once

namespace qly::core::ui {
class CommandTable;
class frmMain;
}

namespace qly::publish::ui {

// Gives the preview commands their work: the browser entries "Browser 1"
// to "Browser 4" (the tools "B1" to "B4"), "Preview in All", the preview
// tool, the preview tab's browser tools, and the web addresses of the
// Tools menu. Fills the start-up steps and Options hooks that find
// browsers and rebuild the browser menu.
void InstallPreviewCommands(core::ui::CommandTable &table, core::ui::frmMain &main);

// Shows one browser entry for each of the first four [Browsers] values,
// captioned by its program, and hides the others.
void LoadBrowserMenu(core::ui::CommandTable &table);

} // namespace qly::publish::ui
