#pragma once

#include <functional>
#include <map>
#include <vector>

namespace qly::core::ui {

// The places in the start-up where the parts of the editor add their work.
// The start-up runs them in its own order; a part adds what it owns.
enum class StartupStep {
    MainWindowLoaded,   // the window is up: its timers start
    BrowserMenu,        // the preview entries are built from [Browsers]
    TagTree,            // the tag tree is built
    RecentFiles,        // the File menu's recent files
    StyleList,          // the style library is scanned
    CharsList,          // [Display] "Chars List" is on
    FindBrowsers,       // [File Locations] "Browser" is empty
    NewDocument,        // [General] "Open New Document" is on
    PlugIns,            // the main window has loaded: the Plug-ins menu is filled
    Automation,         // start-up is over: other programs may drive the editor
};

class StartupSteps
{
public:
    void add(StartupStep step, std::function<void()> work);
    // Runs the work added for `step`, in the order it was added.
    void run(StartupStep step) const;
    bool has(StartupStep step) const { return m_work.count(step) > 0; }

private:
    std::map<StartupStep, std::vector<std::function<void()>>> m_work;
};

} // namespace qly::core::ui
