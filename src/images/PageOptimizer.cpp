#include "images/PageOptimizer.h"

#include "core/Paths.h"
#include "core/TextCodec.h"
#include "images/GifReader.h"
#include "images/PictureSize.h"
#include "markup/Attributes.h"
#include "markup/Links.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFileInfo>

namespace qly::images {

namespace {

const QString kPageOptimizer = QStringLiteral("Page Optimizer");

// Each tag of `text` that starts with `opening` (any case), up to its ">",
// handed to `edit`; what it gives back replaces the tag.
template<typename Edit>
QString editTags(const QString &text, const QString &opening, Edit edit)
{
    QString out;
    out.reserve(text.size());
    qsizetype from = 0;
    for (;;) {
        const qsizetype start = text.indexOf(opening, from, Qt::CaseInsensitive);
        if (start < 0)
            break;
        const qsizetype close = text.indexOf(u'>', start);
        if (close < 0)
            break;
        out += QStringView(text).mid(from, start - from);
        out += edit(text.mid(start, close - start + 1));
        from = close + 1;
    }
    out += QStringView(text).mid(from);
    return out;
}

// Drops every stretch from `opening` to the end of `closing` (any case).
QString removeSpans(const QString &text, const QString &opening, const QString &closing)
{
    QString out;
    qsizetype from = 0;
    for (;;) {
        const qsizetype start = text.indexOf(opening, from, Qt::CaseInsensitive);
        if (start < 0)
            break;
        const qsizetype end = text.indexOf(closing, start + opening.size(), Qt::CaseInsensitive);
        out += QStringView(text).mid(from, start - from);
        if (end < 0)
            return out;
        from = end + closing.size();
    }
    out += QStringView(text).mid(from);
    return out;
}

bool hasAttribute(const QString &tag, const char *name)
{
    return tag.contains(QLatin1String(name) + QLatin1Char('='), Qt::CaseInsensitive);
}

// Puts ` words` before the tag's closing ">" (or "/>").
QString addToTag(const QString &tag, const QString &words)
{
    qsizetype at = tag.size() - 1;
    if (at > 0 && tag.at(at - 1) == u'/')
        --at;
    return tag.left(at).trimmed() + u' ' + words + tag.mid(at);
}

} // namespace

QString BustWord(BustMode mode)
{
    switch (mode) {
    case BustMode::GifToJpeg: return QStringLiteral("giftojpeg");
    case BustMode::LowSrc: return QStringLiteral("lowsrc");
    case BustMode::Replace: break;
    }
    return QStringLiteral("replace");
}

QStringList SpeedRows()
{
    return {QStringLiteral("14.4"), QStringLiteral("28.8"), QStringLiteral("33.6"), QStringLiteral("57.6"),
            QStringLiteral("128"), QStringLiteral("256"), QStringLiteral("1000 (1 Mbit/s)"),
            QStringLiteral("10000 (10 Mbit/s)"), QStringLiteral("100000 (100 Mbit/s)")};
}

QString DownloadTime(qint64 totalBytes, const QString &speed)
{
    const double rate = Val(speed) / 10.0;
    const double seconds = rate > 0 ? (double(totalBytes) / 1024.0) / rate : 0.0;
    return QString::number(seconds, 'f', 1) + QStringLiteral(" sec.");
}

QString FormatSize(qint64 value)
{
    QString digits = QString::number(std::abs(value)).rightJustified(4, u'0');
    for (qsizetype i = digits.size() - 3; i > 0; i -= 3)
        digits.insert(i, u',');
    return value < 0 ? u'-' + digits : digits;
}

bool OverMarkSize(QList<Resource> &resources, const QString &markKb)
{
    const double mark = Val(markKb);
    if (mark <= 0) {
        platform::MsgBox(QStringLiteral("The filter size must be greater than zero."), platform::Buttons::Ok,
                         platform::Icon::Exclamation, kPageOptimizer);
        return false;
    }
    bool any = false;
    for (Resource &r : resources) {
        r.marked = r.kind == QLatin1String("gif/jpg") && double(r.bytes) / 1024.0 > mark;
        any |= r.marked;
    }
    if (!any)
        platform::MsgBox(QStringLiteral("There are no images in the selected HTML file(s) that are over the mark size."),
                         platform::Buttons::Ok, platform::Icon::Information, kPageOptimizer);
    return any;
}

QString GetNewFileName(const QString &file, BustMode mode, bool toJpeg)
{
    QString name = core::FileNameOf(file);
    if (toJpeg && core::GetFileExt(name).compare(QLatin1String("gif"), Qt::CaseInsensitive) == 0)
        name = core::StripExtension(name) + QStringLiteral(".jpg");
    return (mode == BustMode::LowSrc ? QStringLiteral("LS") : QStringLiteral("BB")) + name;
}

QString GetImageAlt(const QString &file, qint64 bytes)
{
    return core::FileNameOf(file) + u' ' + QString::number(qRound64(double(bytes) / 1024.0)) + u'k';
}

QString AlterHTML(const QString &page, const QString &pagePath, BustMode mode, bool toJpeg,
                  const std::function<bool(const QString &)> &keepSource)
{
    const QString dir = core::DirectoryOf(pagePath);
    return editTags(page, QStringLiteral("<img"), [&](QString tag) {
        const QString src = markup::GetAttributeValue(tag, QStringLiteral("src"));
        const QString image = markup::ResolveRelativePath(src, dir);
        const QFileInfo info(image);
        if (src.isEmpty() || !info.isFile()) {
            platform::MsgBox(QStringLiteral("Cannot find the image ") + src + QStringLiteral(" in the file ") + pagePath,
                             platform::Buttons::Ok, platform::Icon::Exclamation,
                             platform::programTitle() + QStringLiteral("Missing Image"));
            return tag;
        }
        if (!hasAttribute(tag, "HEIGHT") && !hasAttribute(tag, "WIDTH") && !hasAttribute(tag, "USEMAP")) {
            const QSize size = PictureSize(image);
            if (size.isValid())
                tag = addToTag(tag, QStringLiteral("HEIGHT=%1 WIDTH=%2").arg(size.height()).arg(size.width()));
        }
        if (!hasAttribute(tag, "ALT"))
            tag = addToTag(tag, QStringLiteral("ALT=\"") + GetImageAlt(image, info.size()) + u'"');
        if (keepSource && keepSource(image))
            return tag;
        const qsizetype slash = std::max(src.lastIndexOf(u'/'), src.lastIndexOf(u'\\'));
        const QString newSrc = src.left(slash + 1) + GetNewFileName(image, mode, toJpeg);
        if (mode == BustMode::LowSrc && !hasAttribute(tag, "LOWSRC")) {
            tag = addToTag(tag, QStringLiteral("LOWSRC=\"") + newSrc + u'"');
        } else if (mode != BustMode::LowSrc) {
            const qsizetype at = tag.indexOf(src);
            if (at >= 0)
                tag.replace(at, src.size(), newSrc);
        }
        return tag;
    });
}

core::IoResult SaveNewHTML(const QString &pagePath, BustMode mode, bool toJpeg, bool overwrite, const QString &saveDir)
{
    return SaveNewHTML(
        pagePath, [&](const QString &text) { return AlterHTML(text, pagePath, mode, toJpeg); }, overwrite, saveDir);
}

core::IoResult SaveNewHTML(const QString &pagePath, const std::function<QString(const QString &)> &alter, bool overwrite,
                           const QString &saveDir)
{
    QByteArray bytes;
    core::IoResult result = core::readWholeFile(pagePath, bytes);
    if (!result.ok())
        return result;
    const core::DecodedFile page = core::decodeFile(bytes);
    const QByteArray altered = core::encodeText(alter(page.text), page.encoding);
    if (!overwrite) {
        if (!QDir().mkpath(saveDir))
            return {core::ErrFileAccess, QStringLiteral("cannot make the folder ") + saveDir};
        return core::writeFileAtomically(core::JoinPath(saveDir, core::FileNameOf(pagePath)), altered);
    }
    // BackUpHTMLFiles: the page as it was, before it is replaced.
    result = core::writeFileAtomically(core::StripExtension(pagePath) + QStringLiteral(".bak"), bytes);
    return result.ok() ? core::writeFileAtomically(pagePath, altered) : result;
}

QString RemoveComments(const QString &page)
{
    return removeSpans(page, QStringLiteral("<!--"), QStringLiteral("-->"));
}

QString RemoveAllImages(const QString &page)
{
    return editTags(page, QStringLiteral("<img src"), [](const QString &) { return QString(); });
}

QString RemoveImageMap(const QString &page)
{
    QString out;
    qsizetype from = 0;
    for (;;) {
        const qsizetype start = page.indexOf(QLatin1String("<MAP NAME"), from, Qt::CaseInsensitive);
        if (start < 0)
            break;
        const qsizetype end = page.indexOf(QLatin1String("</MAP"), start, Qt::CaseInsensitive);
        const qsizetype close = end < 0 ? -1 : page.indexOf(u'>', end);
        if (close < 0)
            break;
        out += QStringView(page).mid(from, start - from);
        const QString map = page.mid(start, close - start + 1);
        editTags(map, QStringLiteral("<area"), [&out](const QString &area) {
            const QString href = markup::GetAttributeValue(area, QStringLiteral("href"));
            if (!href.isEmpty()) {
                const QString alt = markup::GetAttributeValue(area, QStringLiteral("alt"));
                out += QStringLiteral("<A HREF=\"") + href + QStringLiteral("\">") + (alt.isEmpty() ? href : alt)
                       + QStringLiteral("</A><BR>\r\n");
            }
            return area;
        });
        from = close + 1;
    }
    out += QStringView(page).mid(from);
    return out;
}

QString RemoveApplets(const QString &page)
{
    return removeSpans(page, QStringLiteral("<APPLET "), QStringLiteral("</APPLET>"));
}

QString CompressReport(qint64 totalBytes, const QStringList &notOptimized)
{
    QString text = QStringLiteral("Your Site has been compressed.  ")
                   + QStringLiteral("All Images have had Height, Width and Alt attributes added.") + QStringLiteral("\r\n\r\n")
                   + QStringLiteral("The total size of your site in compressed form is ")
                   + QString::number(qRound64(double(totalBytes) / 1024.0)) + QStringLiteral(" Kb.");
    if (!notOptimized.isEmpty())
        text += QStringLiteral("\r\n\r\n")
                + QStringLiteral("However, some files could not be optimized, because they are not in a subdirectory of the "
                                 "current HTML directory: ")
                + notOptimized.join(QStringLiteral(", "));
    return text;
}

} // namespace qly::images
