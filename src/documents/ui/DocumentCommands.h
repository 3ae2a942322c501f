#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::documents::ui {

// The File menu, the edit commands of the text buffer and the Window menu,
// with the file lifecycle's start-up steps.
void registerDocumentCommands(core::ui::Shell &shell);

} // namespace qly::documents::ui
