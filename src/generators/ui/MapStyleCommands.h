#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::generators::ui {

// Insert > Client-Side Image Map, the Format menu's style sheet commands,
// the toolbar's style combo and the style list at start-up.
void registerMapAndStyleCommands(core::ui::Shell &shell);

} // namespace qly::generators::ui
