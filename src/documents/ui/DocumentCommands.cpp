#include "documents/ui/DocumentCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/FileMenu.h"
#include "documents/RecentFiles.h"
#include "documents/Workspace.h"
#include "documents/ui/FileLifecycle.h"
#include "documents/ui/WindowList.h"
#include "platform/HTMLEdit.h"

#include <QAction>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace qly::documents::ui {

namespace {

// Runs `work` on the active document's buffer; with no document, nothing happens.
template <typename Work>
std::function<void()> onBuffer(Work work)
{
    return [work] {
        if (Document *doc = Workspace::CurrentDocument())
            work(doc->txtDoc());
    };
}

template <typename Work>
std::function<void()> onDocument(Work work)
{
    return [work] {
        if (Document *doc = Workspace::CurrentDocument())
            work(*doc);
    };
}

QString N(const char *name)
{
    return QString::fromLatin1(name);
}

void registerFileMenu(core::ui::CommandTable &t, QMainWindow *w, QMdiArea *mdi)
{
    t.bind(N("mnuNew"), [w] { mnuNew_Click(w); });
    t.bind(N("mnuOpen"), [] { mnuOpen_Click(); });
    t.bind(N("mnuSaveTemplate"), [w] { mnuSaveTemplate_Click(w); });
    t.bind(N("mnuPrintSetup"), [w] { mnuPrintSetup_Click(w); });
    for (int n = 1; n <= 4; ++n) {
        QAction *recent = t.bind(QStringLiteral("FileRecent%1").arg(n), [n] { FileRecent_Click(n); });
        recent->setVisible(false);   // shown once the list has an entry
    }
    t.bind(N("mnuSave"), onDocument([](Document &d) { d.Save(); }));
    t.bind(N("mnuSaveAs"), onDocument([](Document &d) { d.SaveAs(); }));
    t.bind(N("mnuSaveAll"), [] { SaveAllDocuments(false); });
    t.bind(N("mnuClose"), [mdi] {
        if (QMdiSubWindow *sub = mdi->currentSubWindow())
            sub->close();
    });
    t.bind(N("mnuPrint"), onDocument([](Document &d) { d.txtDoc().PrintMe(d.caption()); }));
}

void registerEditCommands(core::ui::CommandTable &t)
{
    using platform::HTMLEdit;
    t.bind(N("EditUndo"), onBuffer([](HTMLEdit &e) { e.Undo(); }));
    t.bind(N("EditRedo"), onBuffer([](HTMLEdit &e) { e.Redo(); }));
    t.bind(N("EditCut"), onBuffer([](HTMLEdit &e) { e.Cut(); }));
    t.bind(N("EditCopy"), onBuffer([](HTMLEdit &e) { e.Copy(); }));
    t.bind(N("EditPaste"), onBuffer([](HTMLEdit &e) { e.Paste(); }));
    t.bind(N("EditSelectAll"), onBuffer([](HTMLEdit &e) {
        e.setSelStart(0);
        e.setSelLength(e.GetTextLength());
    }));
    t.bind(N("EditSelectTag"), onBuffer([](HTMLEdit &e) { e.SelectTag(); }));
}

void registerWindowMenu(core::ui::CommandTable &t, QMdiArea *mdi)
{
    t.bind(N("mnuWindow0"), [mdi] { mdi->cascadeSubWindows(); });
    t.bind(N("mnuWindow1"), [mdi] { mdi->tileSubWindows(); });
    t.bind(N("mnuWindow2"), [mdi] { mdi->tileSubWindows(); });
    t.bind(N("mnuWindow4"), [] { CloseAllDocuments(); });
}

} // namespace

void registerDocumentCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    registerFileMenu(t, shell.mainWindow(), shell.mdiArea());
    registerEditCommands(t);
    registerWindowMenu(t, shell.mdiArea());
    InstallWindowList(shell.mainWindow(), shell.mdiArea());
    InstallFileLifecycle(shell);
}

} // namespace qly::documents::ui
