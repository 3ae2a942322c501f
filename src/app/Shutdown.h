#pragma once

namespace qly::app {

// What the close asks of the main window.
class ClosingWindow
{
public:
    virtual ~ClosingWindow() = default;
    // Stores the state of panels that only the main window knows.
    virtual void StoreDisplayState() = 0;
    // Closes every window and ends the program.
    virtual void UnloadAllForms() = 0;
};

// The end of the program: refuses before start-up has passed, asks about
// every changed document (a cancel keeps the program up), sweeps temporary
// files and auto-save files of the current directory, and unloads all.
// False when the close was refused or cancelled.
bool CloseEverything(ClosingWindow &window);

} // namespace qly::app
