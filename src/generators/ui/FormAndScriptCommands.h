#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::generators::ui {

// The Insert menu's forms, scripts, channels, text effects and object tags.
void registerFormAndScriptCommands(core::ui::Shell &shell);

} // namespace qly::generators::ui
