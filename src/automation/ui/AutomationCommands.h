#pragma once

#include <QDBusConnection>

class QMainWindow;

namespace qly::core::ui {
class Shell;
}

namespace qly::automation::ui {

// The D-Bus names other programs reach the editor by.
inline constexpr const char *ServiceName = "org.quillery.Quillery";
inline constexpr const char *ObjectPath = "/QuilleryApp";
inline constexpr const char *InterfaceName = "org.quillery.QuilleryApp";

// The Plug-ins menu, filled from the program directory as the main window
// loads, and the automation service on the user's session bus, offered
// once start-up is over.
void registerAutomationCommands(core::ui::Shell &shell);

// Offers the automation object on `bus`; when that cannot be, says so once
// in the status bar and gives false.
bool OfferAutomation(QMainWindow *window, QDBusConnection bus);

} // namespace qly::automation::ui
