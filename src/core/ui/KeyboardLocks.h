#pragma once

#include <optional>

namespace qly::core::ui {

// The Num Lock state of the keyboard now, asked of the window system; none
// where it cannot be asked (no X11 display, or built without Xkb).
std::optional<bool> numLockNow();

} // namespace qly::core::ui
