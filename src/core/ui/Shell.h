#pragma once

class QMainWindow;
class QMdiArea;
class QMenu;
class QString;
class QWidget;

namespace qly::core::ui {

class CommandTable;
class StartupSteps;
class StatusPanels;

// What the parts of the editor may use of the main window they live in:
// each part's ui folder registers its commands and start-up steps here.
class Shell
{
public:
    virtual ~Shell() = default;

    virtual QMainWindow *mainWindow() = 0;
    virtual CommandTable &commands() const = 0;
    virtual StartupSteps &startupSteps() = 0;
    virtual StatusPanels &statusPanels() const = 0;
    // The multi-document area that holds the document windows.
    virtual QMdiArea *mdiArea() const = 0;
    // The document's right-click menu.
    virtual QMenu *popupMenu() const = 0;
    // Puts `content` on the resource manager's tab of that name.
    virtual void setResourceTab(const QString &tab, QWidget *content) = 0;
};

} // namespace qly::core::ui
