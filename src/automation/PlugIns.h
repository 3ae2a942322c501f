#pragma once

#include <QString>
#include <array>

namespace qly::automation {

// The ten places of the Plug-ins menu: the shared object each looks for in
// the program directory, the caption it then shows, and the function of
// that object a click calls (extern "C", no arguments, nothing returned).
struct PlugInSlot {
    const char *file;
    const char *caption;
    const char *entry;
};

inline constexpr int PlugInCount = 10;
const std::array<PlugInSlot, PlugInCount> &PlugInSlots();

// The path a slot (1 to 10) loads from: always the program directory,
// never the current directory or a path from elsewhere.
QString PlugInPath(int index);
// Whether the slot's file is in the program directory now.
bool PlugInPresent(int index);
// Calls the slot's entry. A missing file or entry, or an index outside 1 to
// 10, does nothing; false then.
bool CallPlugIn(int index);

} // namespace qly::automation
