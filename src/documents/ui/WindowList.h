#pragma once

class QMainWindow;
class QMdiArea;

namespace qly::documents::ui {

// The open documents at the end of the Window menu, as "&1 caption",
// "&2 caption", ...: the active one checked, a click activates that one.
// The list is brought up to date whenever the menu opens and whenever
// another document becomes active.
void InstallWindowList(QMainWindow *window, QMdiArea *mdi);

} // namespace qly::documents::ui
