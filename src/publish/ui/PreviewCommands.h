#pragma once

namespace qly::core::ui {
class CommandTable;
class Shell;
}

namespace qly::publish::ui {

// Registers the preview commands: the browser entries "Browser 1"
// to "Browser 4" (the tools "B1" to "B4"), "Preview in All", the preview
// tool, the preview tab's browser tools, and the web addresses of the
// Tools menu; adds the start-up steps and fills the Options hooks that
// find browsers and rebuild the browser menu.
void registerPublishCommands(core::ui::Shell &shell);

// Shows one browser entry for each of the first four [Browsers] values,
// captioned by its program, and hides the others.
void LoadBrowserMenu(core::ui::CommandTable &table);

} // namespace qly::publish::ui
