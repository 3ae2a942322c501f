#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::markup::ui {

// The Format commands, the heading and paragraph tools, dates, character
// translation, link rewriting and clean-up, and the special characters list.
void registerMarkupCommands(core::ui::Shell &shell);

} // namespace qly::markup::ui
