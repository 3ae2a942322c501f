#pragma once

#include <functional>

namespace qly::core {

// What the window side adds to the close.
struct ShutdownHooks {
    // Stores the state of panels that only the main window knows.
    std::function<void()> storeWindowState;
    // Closes every window and ends the event loop.
    std::function<void()> unloadAllForms;
};
ShutdownHooks &shutdownHooks();

// The end of the program: refuses before start-up has passed, asks about
// every changed document (a cancel keeps the program up), sweeps temporary
// files and auto-save files of the current directory, and unloads all.
// False when the close was refused or cancelled.
bool CloseEverything();

} // namespace qly::core
