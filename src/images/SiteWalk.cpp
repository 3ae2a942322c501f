#include "images/SiteWalk.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "markup/Links.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"
#include "websites/LinkScanner.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace qly::images {

namespace {

bool isPage(const QString &value)
{
    return value.contains(QLatin1String(".htm"), Qt::CaseInsensitive);
}

// A reference that names a whole path rather than one relative to the page.
bool isAbsolute(const QString &value)
{
    return value.startsWith(u'/') || value.startsWith(u'\\') || (value.size() > 1 && value.at(1) == u':')
        || value.startsWith(QLatin1String("file:"), Qt::CaseInsensitive);
}

QString withoutAnchor(const QString &path)
{
    const qsizetype hash = path.indexOf(u'#');
    return hash < 0 ? path : path.left(hash);
}

bool CheckHaveFile(const SiteWalk &walk, const QString &path)
{
    for (const Resource &r : walk.resources)
        if (r.path == path)
            return true;
    return false;
}

bool CheckHaveURL(const SiteWalk &walk, const QString &path)
{
    return walk.pages.contains(path) || walk.missing.contains(path);
}

void InsertResourceFile(SiteWalk &walk, const QString &path)
{
    if (CheckHaveFile(walk, path))
        return;
    const QFileInfo info(path);
    if (!info.isFile()) {
        if (!walk.missing.contains(path))
            walk.missing << path;
        return;
    }
    walk.resources.append({path, info.size(), ResourceKind(path)});
}

void InsertURL(SiteWalk &walk, const QString &path)
{
    if (CheckHaveURL(walk, path))
        return;
    if (QFileInfo(path).isFile())
        walk.pages << path;
    else
        walk.missing << path;
}

} // namespace

qint64 SiteWalk::totalBytes() const
{
    qint64 total = 0;
    for (const Resource &r : resources)
        total += r.bytes;
    return total;
}

QString SiteWalk::siteFolder() const
{
    return core::DirectoryOf(indexPage);
}

QString ResourceKind(const QString &path)
{
    const QString ext = core::GetFileExt(path).toLower();
    if (ext == QLatin1String("gif") || ext == QLatin1String("jpg") || ext == QLatin1String("jpeg"))
        return QStringLiteral("gif/jpg");
    if (ext.startsWith(QLatin1String("htm")))
        return QStringLiteral("html");
    return ext.isEmpty() ? QStringLiteral("file") : ext;
}

bool AutoParseFile(const QString &file, SiteWalk &walk)
{
    const QString path = file.startsWith(QLatin1String("file://"), Qt::CaseInsensitive) ? markup::FileUrlToPath(file) : file;
    QByteArray bytes;
    if (!QFileInfo(path).isFile() || !core::readWholeFile(path, bytes).ok()) {
        platform::MsgBox(QStringLiteral("Cannot Open ") + path, platform::Buttons::Ok, platform::Icon::Exclamation,
                         QStringLiteral("Open File Error"));
        return false;
    }
    if (!walk.pages.contains(path))
        walk.pages << path;
    InsertResourceFile(walk, path);
    static const QStringList attributes{QStringLiteral("src"),  QStringLiteral("background"), QStringLiteral("lowsrc"),
                                        QStringLiteral("href"), QStringLiteral("codebase"),   QStringLiteral("code"),
                                        QStringLiteral("value")};
    websites::LinkClassifier classifier;
    const websites::LinkRecords links = websites::ScanLinks(bytes, path, attributes, classifier);
    // AutoParseJava: an applet's class lies below its Codebase, given on the same line.
    QHash<int, QString> codebases;
    for (const websites::LinkRecord &link : links)
        if (link.attribute == QLatin1String("codebase"))
            codebases.insert(link.line, markup::StripQuotes(link.link).remove(QLatin1String(".class")));
    for (const websites::LinkRecord &link : links) {
        if (link.attribute == QLatin1String("codebase"))
            continue;
        QString value = link.link;
        if (link.attribute == QLatin1String("code")) {
            const QString base = codebases.value(link.line);
            if (!base.isEmpty() && markup::StripQuotes(value).remove(QLatin1String(".class")) == base)
                continue;   // "code" found inside "codebase"
            if (!base.isEmpty() && !isAbsolute(base) && !base.contains(QLatin1String("//"))) {
                InsertResourceFile(walk, markup::ResolveRelativePath(base + u'/' + markup::StripQuotes(value),
                                                                     core::DirectoryOf(path)));
                continue;
            }
        }
        if (value.contains(QLatin1String("http://"), Qt::CaseInsensitive) || link.localPath.isEmpty()
            || value.startsWith(u'#'))
            continue;
        if (isAbsolute(value)) {
            if (!walk.absolute.contains(path))
                walk.absolute << path;
            continue;
        }
        if (link.attribute == QLatin1String("value")) {
            // AutoDownParseAnim: an applet's list of frames and sounds.
            for (const QString &part : value.split(u',', Qt::SkipEmptyParts)) {
                const QString p = part.trimmed().toLower();
                if (p.endsWith(QLatin1String(".gif")) || p.endsWith(QLatin1String(".jpg")) || p.endsWith(QLatin1String(".au")))
                    InsertResourceFile(walk, markup::ResolveRelativePath(part.trimmed(), core::DirectoryOf(path)));
            }
            continue;
        }
        const QString target = withoutAnchor(link.localPath);
        if (link.attribute == QLatin1String("href")) {
            if (value.contains(QLatin1String("www"), Qt::CaseInsensitive))
                continue;
            if (isPage(value))
                InsertURL(walk, target);
            else
                InsertResourceFile(walk, target);   // style sheets and other files a page links
        } else if (!isPage(value)) {
            InsertResourceFile(walk, target);
        }
    }
    return true;
}

void ParseRestofProject(SiteWalk &walk)
{
    // The list grows while it is walked; a page already read is never added again.
    for (qsizetype i = 0; i < walk.pages.size(); ++i) {
        const QString page = walk.pages.at(i);
        bool read = false;
        for (const Resource &r : walk.resources)
            read |= r.path == page;
        if (!read)
            AutoParseFile(page, walk);
    }
}

SiteWalk WalkSite(const QString &indexPage)
{
    SiteWalk walk;
    walk.indexPage = indexPage.startsWith(QLatin1String("file://"), Qt::CaseInsensitive) ? markup::FileUrlToPath(indexPage)
                                                                                       : indexPage;
    if (AutoParseFile(walk.indexPage, walk))
        ParseRestofProject(walk);
    return walk;
}

SiteFigures DisplayResources(const SiteWalk &walk, const QString &speed)
{
    const qint64 total = walk.totalBytes();
    return {FormatSize(qRound64(double(total) / 1024.0)) + QStringLiteral(" Kb."), DownloadTime(total, speed)};
}

bool InSiteFolder(const SiteWalk &walk, const QString &path)
{
    const QString rel = QDir(walk.siteFolder()).relativeFilePath(path);
    return !rel.startsWith(QLatin1String("..")) && !QDir::isAbsolutePath(rel);
}

void FinishAsAbsoluteFound(const QStringList &files)
{
    platform::MsgBox(QStringLiteral("Page Optimizer Found an Absolute File Reference.  It cannot process"
                                    " this site, as it cannot process HTML files that contain absolute file references.\r\n\r\n"
                                    "The files that have been referenced absolutely are: ")
                         + files.join(QStringLiteral(", ")),
                     platform::Buttons::Ok, platform::Icon::Exclamation, QStringLiteral("Page Optimizer"));
}

} // namespace qly::images
