#include "core/ui/Commands.h"

#include "core/Paths.h"
#include "core/Workspace.h"
#include "core/ui/frmMe.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "core/ui/MainWindow.h"
#include "core/ui/frmOptions.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/FileMenu.h"
#include "documents/RecentFiles.h"
#include "documents/ui/FileLifecycle.h"
#include "core/ui/Main.h"
#include "markup/CharacterCommands.h"
#include "markup/FormatMenu.h"
#include "markup/LinkCommands.h"
#include "markup/ui/MarkupActions.h"
#include "markup/ui/frmEntities.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "publish/ui/PreviewCommands.h"

#include <QAction>
#include <QDesktopServices>
#include <QUrl>
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

QString N(const char *name)
{
    return QString::fromLatin1(name);
}

} // namespace

void registerCommands(CommandTable &t, frmMain &w)
{
    using platform::HTMLEdit;
    using documents::Document;
    for (const CommandInfo &info : commandCatalogue())
        t.declare(info.name, info.caption, info.key);

    // File
    t.bind(N("mnuNew"), [&w] { documents::ui::mnuNew_Click(&w); });
    t.bind(N("mnuOpen"), [] { documents::mnuOpen_Click(); });
    t.bind(N("mnuSaveTemplate"), [&w] { documents::ui::mnuSaveTemplate_Click(&w); });
    t.bind(N("mnuPrintSetup"), [&w] { documents::ui::mnuPrintSetup_Click(&w); });
    for (int n = 1; n <= 4; ++n) {
        QAction *recent = t.bind(QStringLiteral("FileRecent%1").arg(n), [n] { documents::FileRecent_Click(n); });
        recent->setVisible(false);   // shown once the list has an entry
    }
    t.bind(N("mnuSave"), onDocument([](Document &d) { d.Save(); }));
    t.bind(N("mnuSaveAs"), onDocument([](Document &d) { d.SaveAs(); }));
    t.bind(N("mnuSaveAll"), [] { documents::SaveAllDocuments(false); });
    t.bind(N("mnuClose"), [&w] {
        if (QMdiSubWindow *sub = w.mdiArea()->currentSubWindow())
            sub->close();
    });
    t.bind(N("mnuPrint"), onDocument([](Document &d) { d.txtDoc().PrintMe(d.caption()); }));
    t.bind(N("mnuExit"), [&w] { w.close(); });

    // Edit
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

    // Character translation, links and clean-up
    t.bind(N("EditTranslate"), [] { markup::EditTranslate_Click(); });
    t.bind(N("EditAbsToRel"), [] { markup::EditAbsToRel_Click(); });
    t.bind(N("EditRelToAbs"), [] { markup::EditRelToAbs_Click(); });
    t.bind(N("EditRemoveLinks"), [] { markup::ui::RemoveMarkupWithEscape(QStringLiteral("LINK")); });
    t.bind(N("EditRemoveHTML"), [] { markup::ui::RemoveMarkupWithEscape(QStringLiteral("ALL")); });
    t.bind(N("ToolsFindDup"), [&w] { markup::ui::FindDuplicateLinks(&w); });
    QAction *chars = t.action(N("ViewSpecialCharacters"));
    chars->setCheckable(true);
    t.bind(N("ViewSpecialCharacters"), [&w, chars] { markup::ui::frmEntities::toggle(&w, chars); });
    startupSteps().showEntities = [chars](frmMain &main) { markup::ui::frmEntities::showList(&main, chars); };

    // Format
    t.bind(N("FormatLeft"), [] { markup::FormatLeft_Click(); });
    t.bind(N("FormatCenter"), [] { markup::FormatCenter_Click(); });
    t.bind(N("FormatRight"), [] { markup::FormatRight_Click(); });
    t.bind(N("FormatBigger"), [] { markup::FormatBigger_Click(); });
    t.bind(N("FormatSmaller"), [] { markup::FormatSmaller_Click(); });
    t.bind(N("FormatBold"), [] { markup::FormatBold_Click(); });
    t.bind(N("FormatItalic"), [] { markup::FormatItalic_Click(); });
    t.bind(N("FormatUnderline"), [] { markup::FormatUnderline_Click(); });
    t.bind(N("FormatDropCaps"), [] { markup::FormatDropCaps_Click(); });
    for (int level = 1; level <= 6; ++level)
        t.bind(QStringLiteral("tlbHead%1").arg(level), [level] { markup::tlbHead_Click(level); });
    t.bind(N("tlbBreak"), [] { markup::tlbBreak_Click(); });
    t.bind(N("tlbParagraph"), [] { markup::tlbParagraph_Click(); });
    t.bind(N("tlbNBSP"), [] { markup::tlbNBSP_Click(); });
    t.bind(N("tlbIndent"), [] { markup::tlbIndent_Click(); });
    t.bind(N("tlbOutdent"), [] { markup::tlbOutdent_Click(); });

    // Insert
    // Short date, long date, long date and time.
    const int dateKinds[3] = {1, 3, 4};
    for (int entry = 0; entry <= 2; ++entry) {
        const int kind = dateKinds[entry];
        t.bind(QStringLiteral("InsertDate%1").arg(entry), [kind] { markup::InsertDate(kind); });
    }
    w.insertDateTime = [] { markup::InsertDate(4); };

    // Tools
    t.bind(N("ToolsOptions"), [&w] { ShowOptions(w); });
    t.bind(N("EditBrowsers"), [&w] { ShowOptions(w, OptionsTab::ExternalBrowsers); });
    publish::ui::InstallPreviewCommands(t, w);

    // Help
    const auto openHelp = [] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(JoinPath(ProgramDirectory(), QStringLiteral("help/index.html"))));
    };
    t.bind(N("HelpContents"), openHelp);
    t.bind(N("HelpSearch"), openHelp);
    t.bind(N("HelpAbout"), [&w] { frmMe(&w); });

    // Window
    t.bind(N("mnuWindow0"), [&w] { w.mdiArea()->cascadeSubWindows(); });
    t.bind(N("mnuWindow1"), [&w] { w.mdiArea()->tileSubWindows(); });
    t.bind(N("mnuWindow2"), [&w] { w.mdiArea()->tileSubWindows(); });
    t.bind(N("mnuWindow4"), [&w] {
        if (!documents::SaveAllDocuments(true))
            return;
        for (documents::Document *d : w.documentList())
            w.unloadDocument(d);
    });
}

} // namespace qly::core::ui
