#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::texttools::ui {

// Find and replace in a document (Edit > Find, Replace, F3, Shift+F3, the
// find tool) and across files (Edit > Multi-File Replace).
void registerTextToolCommands(core::ui::Shell &shell);

} // namespace qly::texttools::ui
