#include "generators/DocumentStyles.h"

#include "generators/StyleLibrary.h"
#include "markup/Attributes.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

namespace qly::generators {

namespace {

const QString CRLF = QStringLiteral("\r\n");
const QString kOpen = QStringLiteral("<STYLE TYPE=\"text/css\">");
const QString kClose = QStringLiteral("</STYLE>");
const QString kHiding = QStringLiteral("<!-- /* Begin hiding style definitions from old browsers. */");

qsizetype find(const QString &text, const QString &what, qsizetype from = 0)
{
    return text.indexOf(what, from, Qt::CaseInsensitive);
}

// The stretches from `start` through `end`, each searched behind the last.
QStringList stretches(const QString &text, const QString &start, const QString &end)
{
    QStringList out;
    qsizetype at = find(text, start);
    while (at >= 0) {
        const qsizetype stop = find(text, end, at + start.size());
        if (stop < 0)
            break;
        out << text.mid(at, stop + end.size() - at);
        at = find(text, start, stop + end.size());
    }
    return out;
}

void tellBroken()
{
    platform::MsgBox(QStringLiteral("The page's style block (<STYLE TYPE=\"text/css\">) has no </STYLE>, so it "
                                    "cannot be rewritten safely. Close the block and try again; the page "
                                    "was not changed."),
                     platform::Buttons::Ok, platform::Icon::Exclamation, QStringLiteral("Document Styles"));
}

void replaceRange(platform::HTMLEdit &edit, qsizetype start, qsizetype length, const QString &text)
{
    edit.PrepareUndo();
    edit.SetSel(int(start), int(start + length));
    edit.setSelText(text);
    edit.EndPUndo();
    edit.setDirty(true);
}

} // namespace

DocumentStyles ReadDocumentStyles(const QString &text)
{
    DocumentStyles doc;
    const QStringList blocks = stretches(text, kOpen, kClose);
    if (blocks.isEmpty()) {
        doc.brokenBlock = find(text, kOpen) >= 0;
        return doc;
    }
    const QString &block = blocks.first();
    for (const QString &comment : stretches(block, QStringLiteral("/* Quillery Style"), QStringLiteral("*/")))
        doc.styles << markup::GetAttributeValue(comment, QStringLiteral("Name"));
    for (const QString &import : stretches(block, QStringLiteral("@import"), QStringLiteral(";"))) {
        const qsizetype open = find(import, QStringLiteral("url("));
        const qsizetype close = open < 0 ? -1 : import.indexOf(QLatin1Char(')'), open + 4);
        if (close >= 0)
            doc.imports << import.mid(open + 4, close - open - 4);
    }
    return doc;
}

QString StyleBlock(const DocumentStyles &doc, const StyleLibrary &library, const LinkFunction &link)
{
    QString s = kOpen + CRLF + CRLF + kHiding + CRLF + CRLF;
    for (const QString &url : doc.imports) {
        if (!url.isEmpty())
            s += QStringLiteral("@import url(") + url + QStringLiteral(");") + CRLF + CRLF;
    }
    for (const QString &name : doc.styles) {
        if (!name.isEmpty())
            s += StyleText(name, library, link) + CRLF;
    }
    return s + QStringLiteral("/* End hiding */  -->") + CRLF + CRLF + kClose;
}

StyleWrite WriteDocumentStyles(platform::HTMLEdit &edit, const DocumentStyles &doc, const StyleLibrary &library,
                               const LinkFunction &link)
{
    const QString text = edit.Text();
    const QString block = StyleBlock(doc, library, link);
    const qsizetype open = find(text, kOpen);
    if (open >= 0) {
        const qsizetype close = find(text, kClose, open + kOpen.size());
        if (close < 0) {
            tellBroken();
            return StyleWrite::Refused;
        }
        replaceRange(edit, open, close + kClose.size() - open, block);
        return StyleWrite::Replaced;
    }
    const qsizetype html = find(text, QStringLiteral("<HTML"));
    const qsizetype body = html < 0 ? -1 : find(text, QStringLiteral("<BODY"), html);
    if (body >= 0) {
        const qsizetype headEnd = find(text, QStringLiteral("</HEAD>"), html);
        if (headEnd >= 0 && headEnd < body)
            replaceRange(edit, headEnd, 0, block + CRLF + CRLF);
        else
            replaceRange(edit, body, 0, block + CRLF + CRLF + QStringLiteral("</HEAD>") + CRLF);
        return StyleWrite::Inserted;
    }
    markup::InsertMarkup(block, QString(), true, markup::Target(edit));
    return StyleWrite::AtSelection;
}

StyleWrite AddStyleImport(platform::HTMLEdit &edit, const QString &url, const StyleLibrary &library,
                          const LinkFunction &link)
{
    const QString text = edit.Text();
    const qsizetype open = find(text, QStringLiteral("<STYLE TYPE"));
    const qsizetype hiding = open < 0 ? -1 : find(text, kHiding, open);
    const DocumentStyles doc = ReadDocumentStyles(text);
    if (doc.brokenBlock) {
        tellBroken();
        return StyleWrite::Refused;
    }
    const QString line = QStringLiteral("@import url(") + url + QStringLiteral(");") + CRLF + CRLF;
    if (hiding >= 0) {
        qsizetype at = hiding + kHiding.size();
        for (int i = 0; i < 2 && text.mid(at, 2) == CRLF; ++i)
            at += 2;
        replaceRange(edit, at, 0, line);
        return StyleWrite::Inserted;
    }
    DocumentStyles fresh = doc;
    fresh.imports = QStringList{url};
    return WriteDocumentStyles(edit, fresh, library, link);
}

} // namespace qly::generators
