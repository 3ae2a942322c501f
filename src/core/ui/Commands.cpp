#include "core/ui/Commands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/MainWindow.h"
#include "core/Workspace.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/FileMenu.h"
#include "core/ui/Main.h"
#include "markup/CharacterCommands.h"
#include "markup/LinkCommands.h"
#include "markup/ui/MarkupActions.h"
#include "markup/ui/frmEntities.h"
#include "platform/HTMLEdit.h"

#include <QKeySequence>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace qly::core::ui {

namespace {

// Runs `work` on the active document's buffer; with no document, nothing happens.
template <typename Work>
std::function<void()> onBuffer(Work work)
{
    return [work] {
        if (documents::Document *doc = Workspace::CurrentDocument())
            work(doc->txtDoc());
    };
}

template <typename Work>
std::function<void()> onDocument(Work work)
{
    return [work] {
        if (documents::Document *doc = Workspace::CurrentDocument())
            work(*doc);
    };
}

} // namespace

void registerCommands(CommandTable &t, frmMain &w)
{
    using K = QKeySequence;
    using platform::HTMLEdit;
    using documents::Document;

    // File
    t.add({QStringLiteral("mnuNew"), QStringLiteral("&New"), {}, K(K::New)});
    t.add({QStringLiteral("mnuOpen"), QStringLiteral("&Open..."), [] { documents::mnuOpen_Click(); }, K(K::Open)});
    t.add({QStringLiteral("mnuSave"), QStringLiteral("&Save"), onDocument([](Document &d) { d.Save(); }), K(K::Save)});
    t.add({QStringLiteral("mnuSaveAs"), QStringLiteral("Save &As..."), onDocument([](Document &d) { d.SaveAs(); }),
           K(K::SaveAs)});
    t.add({QStringLiteral("mnuSaveAll"), QStringLiteral("Sa&ve All"), [] { documents::SaveAllDocuments(false); }});
    t.add({QStringLiteral("mnuClose"), QStringLiteral("&Close"), [&w] {
               if (QMdiSubWindow *sub = w.mdiArea()->currentSubWindow())
                   sub->close();
           }, K(K::Close)});
    t.add({QStringLiteral("mnuPrint"), QStringLiteral("&Print..."),
           onDocument([](Document &d) { d.txtDoc().PrintMe(d.caption()); }), K(K::Print)});
    t.add({QStringLiteral("mnuExit"), QStringLiteral("E&xit"), [&w] { w.close(); }, K(K::Quit)});

    // Edit
    t.add({QStringLiteral("EditUndo"), QStringLiteral("&Undo"), onBuffer([](HTMLEdit &e) { e.Undo(); }), K(K::Undo)});
    t.add({QStringLiteral("EditRedo"), QStringLiteral("&Redo"), onBuffer([](HTMLEdit &e) { e.Redo(); }), K(K::Redo)});
    t.add({QStringLiteral("EditCut"), QStringLiteral("Cu&t"), onBuffer([](HTMLEdit &e) { e.Cut(); }), K(K::Cut)});
    t.add({QStringLiteral("EditCopy"), QStringLiteral("&Copy"), onBuffer([](HTMLEdit &e) { e.Copy(); }), K(K::Copy)});
    t.add({QStringLiteral("EditPaste"), QStringLiteral("&Paste"), onBuffer([](HTMLEdit &e) { e.Paste(); }), K(K::Paste)});
    t.add({QStringLiteral("EditSelectAll"), QStringLiteral("Se&lect All"), onBuffer([](HTMLEdit &e) {
               e.setSelStart(0);
               e.setSelLength(e.GetTextLength());
           }), K(K::SelectAll)});
    t.add({QStringLiteral("EditSelectTag"), QStringLiteral("Select T&his Tag"),
           onBuffer([](HTMLEdit &e) { e.SelectTag(); })});

    // Tools
    t.add({QStringLiteral("ToolsOptions"), QStringLiteral("&Options..."), {}});

    // Character translation, links and clean-up
    t.add({QStringLiteral("EditTranslate"), QStringLiteral("Tra&nslate Extended Chars"),
           [] { markup::EditTranslate_Click(); }});
    t.add({QStringLiteral("EditAbsToRel"), QStringLiteral("A&bsolute to Relative"), [] { markup::EditAbsToRel_Click(); }});
    t.add({QStringLiteral("EditRelToAbs"), QStringLiteral("Relati&ve To Absolute"), [] { markup::EditRelToAbs_Click(); }});
    t.add({QStringLiteral("EditRemoveLinks"), QStringLiteral("&Remove Links"),
           [] { markup::ui::RemoveMarkupWithEscape(QStringLiteral("LINK")); }});
    t.add({QStringLiteral("EditRemoveHTML"), QStringLiteral("Remove &HTML Tags"),
           [] { markup::ui::RemoveMarkupWithEscape(QStringLiteral("ALL")); }});
    t.add({QStringLiteral("ToolsFindDup"), QStringLiteral("Find &Duplicate Links..."),
           [&w] { markup::ui::FindDuplicateLinks(&w); }});
    const QString chars = QStringLiteral("ViewSpecialCharacters");
    t.add({chars, QStringLiteral("Special &Characters..."),
           [&t, &w, chars] { markup::ui::frmEntities::toggle(&w, t.action(chars)); }, {}, {}, true});
    startupSteps().showEntities = [&t, chars](frmMain &main) { markup::ui::frmEntities::showList(&main, t.action(chars)); };

    // Window
    t.add({QStringLiteral("mnuWindow0"), QStringLiteral("&Cascade"), [&w] { w.mdiArea()->cascadeSubWindows(); }});
    t.add({QStringLiteral("mnuWindow1"), QStringLiteral("&Tile"), [&w] { w.mdiArea()->tileSubWindows(); }});
    t.add({QStringLiteral("mnuWindow2"), QStringLiteral("&Arrange Icons"), [&w] { w.mdiArea()->tileSubWindows(); }});
    t.add({QStringLiteral("mnuWindow4"), QStringLiteral("C&lose All"), [&w] {
               if (!documents::SaveAllDocuments(true))
                   return;
               for (documents::Document *d : w.documentList())
                   w.unloadDocument(d);
           }});
}

const std::vector<MenuLayout> &menuLayout()
{
    static const std::vector<MenuLayout> layout = {
        {QStringLiteral("mnuFile"), QStringLiteral("&File"),
         {QStringLiteral("mnuNew"), QStringLiteral("mnuOpen"), QStringLiteral("mnuSave"), QStringLiteral("mnuSaveAs"),
          QStringLiteral("mnuSaveAll"), QStringLiteral("mnuClose"), QString(), QStringLiteral("mnuPrint"), QString(),
          QStringLiteral("mnuExit")}},
        {QStringLiteral("mnuHdg"), QStringLiteral("&Edit"),
         {QStringLiteral("EditUndo"), QStringLiteral("EditRedo"), QString(), QStringLiteral("EditCut"),
          QStringLiteral("EditCopy"), QStringLiteral("EditPaste"), QString(), QStringLiteral("EditSelectAll"),
          QStringLiteral("EditSelectTag"), QString(), QStringLiteral("EditTranslate"), QStringLiteral("EditAbsToRel"),
          QStringLiteral("EditRelToAbs"), QStringLiteral("EditRemoveLinks"), QStringLiteral("EditRemoveHTML")}},
        {QStringLiteral("View"), QStringLiteral("&View"), {QStringLiteral("ViewSpecialCharacters")}},
        {QStringLiteral("Tools"), QStringLiteral("&Tools"),
         {QStringLiteral("ToolsFindDup"), QString(), QStringLiteral("ToolsOptions")}},
        {QStringLiteral("Window"), QStringLiteral("&Window"),
         {QStringLiteral("mnuWindow0"), QStringLiteral("mnuWindow1"), QStringLiteral("mnuWindow2"), QString(),
          QStringLiteral("mnuWindow4")}},
    };
    return layout;
}

} // namespace qly::core::ui
