#pragma once

namespace qly::core::ui {
class CommandTable;
}
class QWidget;

namespace qly::generators::ui {

// The form editor and the single form elements of the Insert menu.
void registerFormCommands(core::ui::CommandTable &t, QWidget *window);

} // namespace qly::generators::ui
