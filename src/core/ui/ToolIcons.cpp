#include "core/ui/Toolbars.h"

#include <QHash>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace qly::core::ui {

namespace {

struct Picture {
    const char *theme;
    const char *label;
};

const QHash<QString, Picture> &pictures()
{
    static const QHash<QString, Picture> map = [] {
        QHash<QString, Picture> m;
        auto add = [&m](const char *tool, const char *theme, const char *label) {
            m.insert(QString::fromLatin1(tool), {theme, label});
        };
        add("tlbNew", "document-new", "New");
        add("tlbOpen", "document-open", "Opn");
        add("tlbSave", "document-save", "Sav");
        add("tlbCut", "edit-cut", "Cut");
        add("tlbCopy", "edit-copy", "Cpy");
        add("tlbPaste", "edit-paste", "Pst");
        add("tlbUndo", "edit-undo", "\u21B6");
        add("tlbRedo", "edit-redo", "\u21B7");
        add("tlbPrint", "document-print", "Prn");
        add("tlbFind", "edit-find", "Fnd");
        add("tlbPreview", "document-print-preview", "Prv");
        add("B1", nullptr, "B1");
        add("B2", nullptr, "B2");
        add("B3", nullptr, "B3");
        add("B4", nullptr, "B4");
        add("PreviewAll", nullptr, "All");
        add("EditBrowsers", nullptr, "Brw");
        add("tblFont", nullptr, "Fnt");
        add("tlbBigger", nullptr, "A+");
        add("tlbSmaller", nullptr, "A-");
        add("tblBold", "format-text-bold", "B");
        add("tblItalic", "format-text-italic", "I");
        add("tblUnderline", "format-text-underline", "U");
        add("tblJLeft", "format-justify-left", "\u2261L");
        add("tblJCenter", "format-justify-center", "\u2261C");
        add("tlbRight", "format-justify-right", "\u2261R");
        add("tlbColor", nullptr, "Col");
        add("tlbInsertImage", nullptr, "Img");
        add("tlbGLink", nullptr, "URL");
        add("tlbELink", nullptr, "@");
        add("tlbFLink", nullptr, "FTP");
        add("tlbNLink", nullptr, "Nws");
        add("tlbRule", nullptr, "HR");
        add("tlbTable", nullptr, "Tbl");
        add("tlbFrames", nullptr, "Frm");
        add("tlbBackground", nullptr, "Bkg");
        add("tlbNBSP", nullptr, "nb");
        add("tlbHead1", nullptr, "H1");
        add("tlbHead2", nullptr, "H2");
        add("tlbHead3", nullptr, "H3");
        add("tlbHead4", nullptr, "H4");
        add("tlbHead5", nullptr, "H5");
        add("tlbHead6", nullptr, "H6");
        add("tlbNList", nullptr, "1.");
        add("tlbBList", nullptr, "\u2022");
        add("tlbOutdent", "format-indent-less", "\u21E4");
        add("tlbIndent", "format-indent-more", "\u21E5");
        add("tlbBreak", nullptr, "BR");
        add("tlbParagraph", nullptr, "\u00B6");
        add("tlbEditStyle", nullptr, "Sty");
        add("tlbInsertStyle", nullptr, "St+");
        add("tlbURLTool", nullptr, "Css");
        add("tlbSpellCheck", "tools-check-spelling", "ABC");
        add("tlbDomain", nullptr, "DNS");
        add("tlbBack", "go-previous", "\u2190");
        add("tlbForward", "go-next", "\u2192");
        add("tlbRefresh", "view-refresh", "\u21BB");
        add("tlbHome", "go-home", "\u2302");
        add("tlbStop", "process-stop", "\u25A0");
        return m;
    }();
    return map;
}

QIcon textIcon(const QString &label)
{
    QPixmap pix(40, 40);
    pix.fill(Qt::transparent);
    QPainter p(&pix);
    p.setRenderHint(QPainter::Antialiasing);
    QFont f = p.font();
    f.setBold(true);
    f.setPixelSize(label.size() <= 2 ? 22 : 15);
    p.setFont(f);
    p.setPen(QColor(0x20, 0x30, 0x50));
    p.drawText(pix.rect(), Qt::AlignCenter, label);
    return QIcon(pix);
}

} // namespace

QIcon toolIcon(const QString &tool)
{
    const auto it = pictures().constFind(tool);
    if (it == pictures().cend())
        return textIcon(tool.left(3));
    if (it->theme) {
        const QIcon themed = QIcon::fromTheme(QString::fromLatin1(it->theme));
        if (!themed.isNull())
            return themed;
    }
    return textIcon(QString::fromUtf8(it->label));
}

} // namespace qly::core::ui
