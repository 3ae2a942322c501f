#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::images::ui {

// The animator's command, and the picture work the image models leave to
// this side (picture sizes, frames converted to GIF).
void registerImageCommands(core::ui::Shell &shell);
void installImageHooks();

} // namespace qly::images::ui
