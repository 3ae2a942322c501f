#pragma once

namespace qly::core::ui {
class CommandTable;
}
class QWidget;

namespace qly::generators::ui {

// The ready-made scripts and the channel commands of the Insert menu, and
// the channel dialogs of the New Document dialog.
void registerScriptCommands(core::ui::CommandTable &t, QWidget *window);

} // namespace qly::generators::ui
