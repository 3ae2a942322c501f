#include "core/ui/Commands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/MainWindow.h"
#include "core/Workspace.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/FileMenu.h"
#include "markup/FormatMenu.h"
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

    // Format
    t.add({QStringLiteral("FormatLeft"), QStringLiteral("&Left"), [] { markup::FormatLeft_Click(); }});
    t.add({QStringLiteral("FormatCenter"), QStringLiteral("&Center"), [] { markup::FormatCenter_Click(); }});
    t.add({QStringLiteral("FormatRight"), QStringLiteral("&Right"), [] { markup::FormatRight_Click(); }});
    t.add({QStringLiteral("FormatBigger"), QStringLiteral("Bi&gger"), [] { markup::FormatBigger_Click(); }});
    t.add({QStringLiteral("FormatSmaller"), QStringLiteral("S&maller"), [] { markup::FormatSmaller_Click(); }});
    t.add({QStringLiteral("FormatBold"), QStringLiteral("&Bold"), [] { markup::FormatBold_Click(); }, K(K::Bold)});
    t.add({QStringLiteral("FormatItalic"), QStringLiteral("&Italic"), [] { markup::FormatItalic_Click(); },
           K(K::Italic)});
    t.add({QStringLiteral("FormatUnderline"), QStringLiteral("&Underline"), [] { markup::FormatUnderline_Click(); },
           K(K::Underline)});
    t.add({QStringLiteral("FormatDropCaps"), QStringLiteral("&Drop Caps"), [] { markup::FormatDropCaps_Click(); }});
    for (int level = 1; level <= 6; ++level)
        t.add({QStringLiteral("tlbHead%1").arg(level), QStringLiteral("Heading &%1").arg(level),
               [level] { markup::tlbHead_Click(level); }});
    t.add({QStringLiteral("tlbBreak"), QStringLiteral("Line Brea&k"), [] { markup::tlbBreak_Click(); }});
    t.add({QStringLiteral("tlbParagraph"), QStringLiteral("&Paragraph"), [] { markup::tlbParagraph_Click(); }});
    t.add({QStringLiteral("tlbNBSP"), QStringLiteral("&Non-Breaking Space"), [] { markup::tlbNBSP_Click(); }});
    t.add({QStringLiteral("tlbIndent"), QStringLiteral("Indent"), [] { markup::tlbIndent_Click(); }});
    t.add({QStringLiteral("tlbOutdent"), QStringLiteral("Outdent"), [] { markup::tlbOutdent_Click(); }});

    // Tools
    t.add({QStringLiteral("ToolsOptions"), QStringLiteral("&Options..."), {}});

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
          QStringLiteral("EditSelectTag")}},
        {QStringLiteral("Format"), QStringLiteral("F&ormat"),
         {QStringLiteral("FormatLeft"), QStringLiteral("FormatCenter"), QStringLiteral("FormatRight"), QString(),
          QStringLiteral("FormatBigger"), QStringLiteral("FormatSmaller"), QString(), QStringLiteral("FormatBold"),
          QStringLiteral("FormatItalic"), QStringLiteral("FormatUnderline"), QStringLiteral("FormatDropCaps"),
          QString(), QStringLiteral("tlbHead1"), QStringLiteral("tlbHead2"), QStringLiteral("tlbHead3"),
          QStringLiteral("tlbHead4"), QStringLiteral("tlbHead5"), QStringLiteral("tlbHead6"), QString(),
          QStringLiteral("tlbBreak"), QStringLiteral("tlbParagraph"), QStringLiteral("tlbNBSP"),
          QStringLiteral("tlbIndent"), QStringLiteral("tlbOutdent")}},
        {QStringLiteral("Tools"), QStringLiteral("&Tools"), {QStringLiteral("ToolsOptions")}},
        {QStringLiteral("Window"), QStringLiteral("&Window"),
         {QStringLiteral("mnuWindow0"), QStringLiteral("mnuWindow1"), QStringLiteral("mnuWindow2"), QString(),
          QStringLiteral("mnuWindow4")}},
    };
    return layout;
}

} // namespace qly::core::ui
