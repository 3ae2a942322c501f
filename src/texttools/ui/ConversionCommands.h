#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::texttools::ui {

// Text to HTML, inserted text files and spelling: binds their commands and
// lets dropped text files go in through InsertTextFile.
void registerConversionCommands(core::ui::Shell &shell);

} // namespace qly::texttools::ui
