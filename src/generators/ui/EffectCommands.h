#pragma once

namespace qly::core::ui {
class CommandTable;
}
class QWidget;

namespace qly::generators::ui {

// Text effects, the Java rule and LED sign, and the marquee.
void registerEffectCommands(core::ui::CommandTable &t, QWidget *window);

} // namespace qly::generators::ui
