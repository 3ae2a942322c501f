#pragma once

namespace qly::core::ui {
class CommandTable;
}
class QWidget;

namespace qly::generators::ui {

// The object tag dialog of the Insert menu.
void registerObjectCommands(core::ui::CommandTable &t, QWidget *window);

} // namespace qly::generators::ui
