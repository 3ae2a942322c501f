#pragma once

#include <functional>

namespace qly::core {

// What confirming the Options dialog asks of parts of the editor that live
// elsewhere. Each part fills its own; an empty hook is passed over.
struct OptionsHooks {
    // The tag tree re-reads its upper-case switch and its colour slots.
    std::function<void()> tagTreeSettings;
    // The main window's bookmark switches are set and the bookmark list rebuilt.
    std::function<void(bool netscape, bool favorites)> updateBookmarks;
    // The preview menu entries are rebuilt from [Browsers].
    std::function<void()> loadBrowserMenu;
    // Browsers are looked for on this machine and written to [Browsers].
    std::function<void()> findBrowsers;
};
OptionsHooks &optionsHooks();

} // namespace qly::core
