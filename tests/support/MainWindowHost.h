#pragma once

#include <QSize>
#include <memory>

namespace qly::app {
class frmMain;
}

namespace qly::test {

// The real main window, shown (offscreen or under Xvfb) and made the
// process's workspace, for widget tests that use the editor as a whole.
std::unique_ptr<app::frmMain> showMainWindow(QSize size = {900, 700});

// Closes its documents without asking, lets deleted windows go, and drops
// the window; nothing is left as the process's workspace.
void closeMainWindow(std::unique_ptr<app::frmMain> &window);

} // namespace qly::test
