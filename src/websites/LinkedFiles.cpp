#include "websites/LinkedFiles.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/TextCodec.h"
#include "markup/Attributes.h"
#include "markup/Links.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"
#include "websites/LinkScanner.h"

#include <QSet>

namespace qly::websites {

namespace {

// A link resolved against the directory of `base`.
QString resolveAgainst(const QString &base, const QString &link)
{
    const QString l = markup::StripQuotes(link);
    if (l.size() >= 2 && l.at(1) == u':')
        return l;
    const QString dir = core::DirectoryOf(base);
    return dir.isEmpty() ? l : markup::ResolveRelativePath(l, dir);
}

void collect(const QString &page, const QString &attr, const QString &text, QStringList &out, QSet<QString> &seen)
{
    if (attr.isEmpty())
        return;
    qsizetype lineStart = 0;
    while (lineStart <= text.size()) {
        qsizetype lineEnd = lineStart;
        while (lineEnd < text.size() && text.at(lineEnd) != u'\n' && text.at(lineEnd) != u'\r')
            ++lineEnd;
        const QStringView line = QStringView(text).mid(lineStart, lineEnd - lineStart);
        qsizetype from = 0;
        while (true) {
            const qsizetype pos = line.indexOf(attr, from, Qt::CaseInsensitive);
            if (pos < 0)
                break;
            const qsizetype valueStart = pos + attr.size();
            qsizetype end = line.indexOf(u' ', valueStart);
            const qsizetype close = line.indexOf(u'>', valueStart);
            if (close >= 0 && (end < 0 || close < end))
                end = close;
            if (end < 0)
                break;
            const QString value = line.mid(valueStart, end - valueStart).toString();
            QString target;
            if (value.contains(QLatin1String("file:///"), Qt::CaseInsensitive))
                target = markup::FileUrlToPath(value);
            else if (!value.contains(QLatin1String("mailto:"), Qt::CaseInsensitive) && !value.contains(QLatin1String("//"))
                     && !value.contains(QLatin1String(".htm"), Qt::CaseInsensitive) && !value.contains(u'#'))
                target = resolveAgainst(page, value);
            if (!target.isEmpty() && !seen.contains(target)) {
                seen.insert(target);
                out << target;
            }
            from = end;
        }
        if (lineEnd >= text.size())
            break;
        lineStart = lineEnd + ((text.at(lineEnd) == u'\r' && lineEnd + 1 < text.size() && text.at(lineEnd + 1) == u'\n') ? 2 : 1);
    }
}

} // namespace

QStringList CollectLinkedFiles(const QString &page, const QString &attributeWithEquals)
{
    QByteArray bytes;
    if (!core::readWholeFile(page, bytes).ok())
        return {};
    QStringList out;
    QSet<QString> seen;
    collect(page, attributeWithEquals, core::decodeFile(bytes).text, out, seen);
    return out;
}

QStringList CollectLinkedFiles(const QString &page)
{
    QByteArray bytes;
    if (!core::readWholeFile(page, bytes).ok())
        return {};
    const QString text = core::decodeFile(bytes).text;
    QStringList out;
    QSet<QString> seen;
    for (const QString &attr : ParseForAttributes())
        collect(page, attr + u'=', text, out, seen);
    return out;
}

QString LinkTargetOfTag(const QString &tagText, const QString &baseFile)
{
    if (tagText.isEmpty())
        return {};
    const QString tag = markup::StripQuotes(tagText);
    QString value = tag;
    if (tag.contains(QLatin1String(" src="), Qt::CaseInsensitive))
        value = markup::GetAttributeValue(tag, QStringLiteral("src"));
    else if (tag.contains(QLatin1String(" href="), Qt::CaseInsensitive))
        value = markup::GetAttributeValue(tag, QStringLiteral("href"));
    if (value.contains(QLatin1String("file://"), Qt::CaseInsensitive))
        return markup::FileUrlToPath(value);
    return resolveAgainst(baseFile, value);
}

QString GetLocalName(const QString &link, const QString &baseFile)
{
    for (const char *net : {"http://", "mailto:", "ftp:"}) {
        if (link.contains(QLatin1String(net), Qt::CaseInsensitive))
            return {};
    }
    QString path = link.contains(QLatin1String("file:///"), Qt::CaseInsensitive) ? markup::FileUrlToPath(link)
                                                                                 : resolveAgainst(baseFile, link);
    return core::FileExists(path) ? path : QString();
}

bool LocateLink(platform::HTMLEdit &txtDoc, const QString &link)
{
    if (link.isEmpty())
        return false;
    int start = 0;
    if (txtDoc.SelLength() > 0)
        start = txtDoc.SelStart() + txtDoc.SelLength();
    txtDoc.setSelLength(0);
    return txtDoc.Find(link, start, txtDoc.GetTextLength(), 0) >= 0;
}

} // namespace qly::websites
