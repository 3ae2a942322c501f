#pragma once

#include <functional>

namespace qly::core {

// What confirming the Options dialog asks of parts of the editor that live
// elsewhere. Each part fills its own; an empty hook is passed over.
struct OptionsHooks {
    // Open documents take the font, word wrap and colours just stored.
    std::function<void()> applyToDocuments;
    // The preview menu entries are rebuilt from [Browsers].
    std::function<void()> loadBrowserMenu;
    // Browsers are looked for on this machine and written to [Browsers];
    // gives how many were found.
    std::function<int()> findBrowsers;
    // The tag tree takes [Editing] "Lower Case Tags" again.
    std::function<void()> tagTreeOptions;
};
OptionsHooks &optionsHooks();

} // namespace qly::core
