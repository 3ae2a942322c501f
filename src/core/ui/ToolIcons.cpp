#include "core/ui/Toolbars.h"

#include <QHash>
#include <QIcon>

// The pictures are compiled into quillery_gui, a static library: the linker
// keeps them only when something calls their initialiser, which must be named
// outside any namespace.
static void initToolPictures()
{
    Q_INIT_RESOURCE(ToolIcons);
}

namespace qly::core::ui {

namespace {

// What each tool shows: one of our own pictures (":/tools/NAME.svg"), and
// whether NAME is also a name of the desktop icon naming specification, so
// the desktop theme's picture is used where the theme has one.
struct Picture {
    const char *name;
    bool themed;
};

const QHash<QString, Picture> &pictures()
{
    static const QHash<QString, Picture> map = [] {
        QHash<QString, Picture> m;
        auto own = [&m](const char *tool, const char *name) { m.insert(QString::fromLatin1(tool), {name, false}); };
        auto themed = [&m](const char *tool, const char *name) { m.insert(QString::fromLatin1(tool), {name, true}); };
        themed("tlbNew", "document-new");
        themed("tlbOpen", "document-open");
        themed("tlbSave", "document-save");
        themed("tlbCut", "edit-cut");
        themed("tlbCopy", "edit-copy");
        themed("tlbPaste", "edit-paste");
        themed("tlbUndo", "edit-undo");
        themed("tlbRedo", "edit-redo");
        themed("tlbPrint", "document-print");
        themed("tlbFind", "edit-find");
        own("tlbPreview", "browser-preview");
        own("B1", "browser-1");
        own("B2", "browser-2");
        own("B3", "browser-3");
        own("B4", "browser-4");
        own("PreviewAll", "browser-all");
        own("EditBrowsers", "browser-list-edit");
        own("tblFont", "font");
        own("tlbBigger", "font-bigger");
        own("tlbSmaller", "font-smaller");
        themed("tblBold", "format-text-bold");
        themed("tblItalic", "format-text-italic");
        themed("tblUnderline", "format-text-underline");
        themed("tblJLeft", "format-justify-left");
        themed("tblJCenter", "format-justify-center");
        themed("tlbRight", "format-justify-right");
        own("tlbColor", "color-palette");
        themed("tlbInsertImage", "insert-image");
        themed("tlbGLink", "insert-link");
        own("tlbELink", "link-mail");
        own("tlbFLink", "link-ftp");
        own("tlbNLink", "link-news");
        own("tlbRule", "horizontal-rule");
        own("tlbTable", "table");
        own("tlbFrames", "frames");
        own("tlbBackground", "background");
        own("tlbNBSP", "nbsp");
        own("tlbHead1", "heading-1");
        own("tlbHead2", "heading-2");
        own("tlbHead3", "heading-3");
        own("tlbHead4", "heading-4");
        own("tlbHead5", "heading-5");
        own("tlbHead6", "heading-6");
        own("tlbNList", "list-numbered");
        own("tlbBList", "list-bulleted");
        themed("tlbOutdent", "format-indent-less");
        themed("tlbIndent", "format-indent-more");
        own("tlbBreak", "line-break");
        own("tlbParagraph", "paragraph");
        own("tlbEditStyle", "style-edit");
        own("tlbInsertStyle", "style-enter");
        own("tlbURLTool", "style-external");
        themed("tlbSpellCheck", "tools-check-spelling");
        own("tlbDomain", "domain-lookup");
        themed("tlbBack", "go-previous");
        themed("tlbForward", "go-next");
        themed("tlbRefresh", "view-refresh");
        themed("tlbHome", "go-home");
        themed("tlbStop", "process-stop");
        return m;
    }();
    return map;
}

QIcon ownPicture(const Picture &picture)
{
    static const bool loaded = (initToolPictures(), true);
    Q_UNUSED(loaded);
    return QIcon(QStringLiteral(":/tools/%1.svg").arg(QLatin1String(picture.name)));
}

} // namespace

QIcon ownToolIcon(const QString &tool)
{
    const auto it = pictures().constFind(tool);
    return it == pictures().cend() ? QIcon() : ownPicture(*it);
}

QIcon toolIcon(const QString &tool)
{
    const auto it = pictures().constFind(tool);
    if (it == pictures().cend())
        return {};
    const QIcon own = ownPicture(*it);
    return it->themed ? QIcon::fromTheme(QLatin1String(it->name), own) : own;
}

} // namespace qly::core::ui
