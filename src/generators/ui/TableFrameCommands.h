#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::generators::ui {

// Binds the table and frame editors and their templates to their commands.
void registerTableFrameCommands(core::ui::Shell &shell);

} // namespace qly::generators::ui
