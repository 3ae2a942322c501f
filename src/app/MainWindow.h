#pragma once

#include "app/Shutdown.h"
#include "core/ui/Shell.h"
#include "core/ui/StartupSteps.h"
#include "documents/Workspace.h"

#include <QMainWindow>

class QMdiArea;
class QMdiSubWindow;

namespace qly::documents::ui {
class DocumentWindow;
}

namespace qly::core::ui {
class CommandTable;
class StatusPanels;
class Toolbars;
}

namespace qly::app {

class ResourceManager;

// The main window: documents in a multi-document area, the menus built
// from the command table, and the status bar. It holds no document logic.
class frmMain : public QMainWindow, public documents::Workspace, public core::ui::Shell, public ClosingWindow
{
    Q_OBJECT
public:
    explicit frmMain(QWidget *parent = nullptr);
    ~frmMain() override;

    documents::Document *activeDocument() const override;
    QList<documents::Document *> documentList() const override;
    documents::Document *makeDocumentWindow(bool explorerInternal) override;
    void unloadDocument(documents::Document *document) override;
    void setPositionText(const QString &text) override;

    QMainWindow *mainWindow() override { return this; }
    core::ui::CommandTable &commands() const override { return *m_commands; }
    core::ui::StartupSteps &startupSteps() override { return m_startupSteps; }
    core::ui::StatusPanels &statusPanels() const override { return *m_panels; }
    QMdiArea *mdiArea() const override { return m_mdi; }
    QMenu *popupMenu() const override { return m_mnuPopupHd; }
    void setResourceTab(const QString &tab, QWidget *content) override;
    core::ui::Toolbars &toolbars() const { return *m_toolbars; }
    ResourceManager &resourceManager() const { return *m_picDocs; }

    // The resource manager's width and visibility from [Display].
    void DrawMainScreen();
    // A click on a status bar panel, by its key.
    void sbStatus_PanelClick(const QString &key);
    // Stores the state of panels at the close.
    void StoreDisplayState() override;

    // Restores the stored geometry; the rest of the window's own start.
    void InitMainWindow();
    // Restores the toolbar layout from "Quillery.tb" in the user's
    // configuration directory, or else the program directory's copy.
    void LoadToolbars();
    // Writes the layout to the user's "Quillery.tb"; a failure is told in
    // the status bar.
    bool SaveToolbars();
    // The dividers of the resource manager's "Website" and "Files" tabs from
    // [Last Session] "WebSplit" and "FilesSplit" (twips; none or 0 leaves
    // the default).
    void RestoreDividers();
    // Stores geometry, the dividers and the layout at exit.
    void SaveMainWindowState();
    // Closes every document without asking and ends the event loop.
    void UnloadAllForms() override;

    // Raises the window over the desktop's others and makes it active.
    void bringToFront();
    // Gives the keyboard to the active document's text.
    void focusDocument();

    // While start-up runs, a close that start-up allows waits for the end of
    // the step at hand: the start-up then calls runPendingClose(), which
    // closes the ordinary way. True when the program is to end.
    void setStartingUp(bool starting) { m_startingUp = starting; }
    bool runPendingClose();
    // True once every window was unloaded: the program ends.
    bool unloaded() const { return m_unloaded; }

    QMenu *createPopupMenu() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildMenus();
    void buildPopupMenu();
    void showCustomize();
    void onSubWindowActivated(QMdiSubWindow *sub);
    QString toolbarFile() const;

    QMdiArea *m_mdi = nullptr;
    core::ui::CommandTable *m_commands = nullptr;
    core::ui::StartupSteps m_startupSteps;
    core::ui::StatusPanels *m_panels = nullptr;
    core::ui::Toolbars *m_toolbars = nullptr;
    ResourceManager *m_picDocs = nullptr;
    QMenu *m_mnuPopupHd = nullptr;
    bool m_startingUp = false;
    bool m_closePending = false;
    bool m_unloaded = false;
};

} // namespace qly::app
