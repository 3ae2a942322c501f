#pragma once

#include <QString>
#include <functional>

namespace qly::core::ui {

class frmMain;

// Steps of the start-up that belong to other parts of the editor. Each part
// fills its own; an empty step is passed over.
struct StartupSteps {
    std::function<void(frmMain &)> drawMainScreen;     // the resource manager panel
    std::function<void(frmMain &)> loadPlugIns;
    std::function<void(frmMain &)> restoreSplits;      // [Last Session] "WebSplit", "FilesSplit"
    std::function<void(frmMain &)> loadBrowserMenu;
    std::function<void(frmMain &)> loadFilterMenu;
    std::function<void(frmMain &)> buildTagTree;       // and the FTP control
    std::function<void(frmMain &)> setupTagTree;       // bookmark switches, colours, case
    std::function<void(frmMain &)> loadRecentFiles;
    std::function<void(frmMain &)> loadStyleList;
    std::function<void(frmMain &)> showEntities;       // [Display] "Chars List"
    std::function<void(frmMain &)> findBrowsers;
    std::function<void(frmMain &)> showHints;
    std::function<void(frmMain &)> autoSaveTick;
    std::function<void()> newDocument;
    std::function<void(const QString &)> openWebsite;
};
StartupSteps &startupSteps();

// The process: chooses the configuration file, brings up the main window
// and the documents, and runs the event loop.
int Main(int argc, char **argv);

} // namespace qly::core::ui
