#pragma once

#include "core/Workspace.h"

#include <QMainWindow>
#include <functional>

class QMdiArea;
class QMdiSubWindow;

namespace qly::documents::ui {
class DocumentWindow;
}

namespace qly::core::ui {

class CommandTable;
class ResourceManager;
class StatusPanels;
class Toolbars;

// The main window: documents in a multi-document area, the menus built
// from the command table, and the status bar. It holds no document logic.
class frmMain : public QMainWindow, public Workspace
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

    CommandTable &commands() const { return *m_commands; }
    StatusPanels &statusPanels() const { return *m_panels; }
    QMdiArea *mdiArea() const { return m_mdi; }
    Toolbars &toolbars() const { return *m_toolbars; }
    ResourceManager &resourceManager() const { return *m_picDocs; }
    QMenu *popupMenu() const { return m_mnuPopupHd; }

    // The resource manager's width and visibility from [Display].
    void DrawMainScreen();
    // A click on a status bar panel, by its key.
    void sbStatus_PanelClick(const QString &key);
    // Stores the state of panels at the close.
    void StoreDisplayState();
    // What the time panel inserts; set by the part that owns dates.
    std::function<void()> insertDateTime;

    // Restores the stored geometry; the rest of the window's own start.
    void InitMainWindow();
    // Restores the toolbar layout from "Quillery.tb" in the program directory.
    void LoadToolbars();
    // Stores geometry and layout at exit.
    void SaveMainWindowState();
    // Closes every document without asking and ends the event loop.
    void UnloadAllForms();

    QMenu *createPopupMenu() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenus();
    void buildPopupMenu();
    void showCustomize();
    void onSubWindowActivated(QMdiSubWindow *sub);
    QString toolbarFile() const;

    QMdiArea *m_mdi = nullptr;
    CommandTable *m_commands = nullptr;
    StatusPanels *m_panels = nullptr;
    Toolbars *m_toolbars = nullptr;
    ResourceManager *m_picDocs = nullptr;
    QMenu *m_mnuPopupHd = nullptr;
};

} // namespace qly::core::ui
