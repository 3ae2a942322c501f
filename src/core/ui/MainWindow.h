#pragma once

#include "core/Workspace.h"

#include <QMainWindow>

class QMdiArea;
class QMdiSubWindow;

namespace qly::documents::ui {
class DocumentWindow;
}

namespace qly::core::ui {

class CommandTable;
class StatusPanels;

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

    // Restores the stored geometry; the rest of the window's own start.
    void InitMainWindow();
    // Restores the toolbar layout from "Quillery.tb" in the program directory.
    void LoadToolbars();
    // Stores geometry and layout at exit.
    void SaveMainWindowState();
    // Closes every document without asking and ends the event loop.
    void UnloadAllForms();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenus();
    void onSubWindowActivated(QMdiSubWindow *sub);
    QString toolbarFile() const;

    QMdiArea *m_mdi = nullptr;
    CommandTable *m_commands = nullptr;
    StatusPanels *m_panels = nullptr;
};

} // namespace qly::core::ui
