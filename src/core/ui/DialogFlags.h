#pragma once

#include <Qt>

namespace qly::core::ui {

// The frame of every dialog: a title and a close box, no minimise or
// maximise box (window managers add them to a plain dialog otherwise).
inline constexpr Qt::WindowFlags kDialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

} // namespace qly::core::ui
