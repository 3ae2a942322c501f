#include "documents/DroppedFile.h"

#include "core/Paths.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "markup/Links.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QFileInfo>

namespace qly::documents {

using namespace qly::core;

namespace {

void insert(Document &document, const QString &text)
{
    markup::InsertMarkup(text, QString(), true, document.txtDoc());
}

QString linkMarkup(Document &document, const QString &path)
{
    const QString selected = document.txtDoc().SelText();
    const QString text = selected.isEmpty() ? FileNameOf(path) : selected;
    return QStringLiteral("<A HREF=\"") + DroppedFileLink(document, path) + QStringLiteral("\">") + text
           + QStringLiteral("</A>");
}

} // namespace

DropKind DroppedFileKind(const QString &path)
{
    static const QStringList links = {QStringLiteral("HTM"), QStringLiteral("HT3"), QStringLiteral("SHT"),
                                      QStringLiteral("PUB"), QStringLiteral("HTML"), QStringLiteral("SHTML")};
    static const QStringList images = {QStringLiteral("GIF"), QStringLiteral("JPG"), QStringLiteral("XBM")};
    const QString ext = GetFileExt(path).toUpper();
    if (links.contains(ext))
        return DropKind::Link;
    if (images.contains(ext))
        return DropKind::Image;
    if (ext == QLatin1String("TXT"))
        return DropKind::Text;
    return DropKind::Other;
}

QString DroppedFileLink(const Document &document, const QString &path)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    if (document.LocalFileName.isEmpty() || document.bRemote)
        return markup::PathToFileUrl(target);
    const QString relative = markup::RelativePath(target, QFileInfo(document.LocalFileName).absoluteFilePath());
    return relative.isEmpty() ? FileNameOf(target) : relative;
}

void txtDoc_DropFileOnMe(Document &document, const QString &path)
{
    switch (DroppedFileKind(path)) {
    case DropKind::Link:
        insert(document, linkMarkup(document, path));
        return;
    case DropKind::Image:
        insert(document, QStringLiteral("<IMG SRC=\"") + DroppedFileLink(document, path) + QStringLiteral("\">"));
        return;
    case DropKind::Text:
        if (documentHooks().insertTextFile)
            documentHooks().insertTextFile(path);
        return;
    case DropKind::Other:
        break;
    }
    const platform::Answer answer = platform::MsgBox(
        QStringLiteral("Insert a link to ") + FileNameOf(path)
            + QStringLiteral("?\n\nYes inserts a link, No opens the file as a document of its own."),
        platform::Buttons::YesNoCancel, platform::Icon::Question);
    if (answer == platform::Answer::Yes)
        insert(document, linkMarkup(document, path));
    else if (answer == platform::Answer::No)
        OpenDocumentFile(path);
}

QString DroppedResourceMarkup(const QString &path, const QString &link)
{
    // A reference with a blank would end at the blank without quotes.
    const bool quote = link.contains(u' ') || link.contains(u'"') || link.contains(u'>');
    const QString value = quote ? QStringLiteral("\"") + QString(link).remove(u'"') + u'"' : link;
    const QString ext = GetFileExt(path).toLower();
    if (ext == QLatin1String("gif") || ext == QLatin1String("jpg"))
        return QStringLiteral("<IMG SRC=") + value + u'>';
    return QStringLiteral("<A HREF=") + value + u'>' + FileNameOf(path) + QStringLiteral("</A>");
}

QString InsertDroppedResource(Document &document, const QString &path)
{
    // The reference is made from the document that takes the drop.
    document.activate();
    const QString text = DroppedResourceMarkup(path, markup::RelativeLink(QFileInfo(path).absoluteFilePath()));
    insert(document, text);
    return text;
}

} // namespace qly::documents
