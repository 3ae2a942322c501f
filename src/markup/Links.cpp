#include "markup/Links.h"

#include "core/Settings.h"
#include "documents/Workspace.h"
#include "documents/Document.h"

#include <QStringList>

namespace qly::markup {

namespace {

// Splits at either separator; every part but the last keeps its separator
// (as "/"), the last is the file name.
QStringList pathParts(const QString &path)
{
    QStringList parts;
    qsizetype from = 0;
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (path.at(i) == u'/' || path.at(i) == u'\\') {
            parts << path.mid(from, i - from) + u'/';
            from = i + 1;
        }
    }
    parts << path.mid(from);
    return parts;
}

bool isAbsolute(const QString &path)
{
    return path.startsWith(u'/') || path.startsWith(u'\\') || hasDrive(path);
}

} // namespace

bool hasDrive(const QString &path)
{
    return path.size() >= 2 && path.at(1) == u':' && path.at(0).isLetter();
}

bool sameRoot(const QString &a, const QString &b)
{
    if (hasDrive(a) || hasDrive(b))
        return a.left(2).compare(b.left(2), Qt::CaseInsensitive) == 0;
    return a.startsWith(u'/') && b.startsWith(u'/');
}

QString RelativePath(const QString &target, const QString &base)
{
    const QStringList t = pathParts(target);
    const QStringList b = pathParts(base);
    const Qt::CaseSensitivity cs = (hasDrive(target) || hasDrive(base)) ? Qt::CaseInsensitive : Qt::CaseSensitive;
    const QString separator = target.contains(u'\\') ? QStringLiteral("\\") : QStringLiteral("/");
    auto join = [&](const QStringList &parts, qsizetype from) {
        QString out;
        for (qsizetype i = from; i < parts.size(); ++i)
            out += parts.at(i);
        out.replace(u'/', separator.at(0));
        return out;
    };

    const qsizetype baseDirs = b.size() - 1;
    if (t.size() > b.size()) {
        bool below = true;
        for (qsizetype i = 0; i < baseDirs && below; ++i)
            below = t.at(i).compare(b.at(i), cs) == 0;
        if (below)
            return join(t, baseDirs);
    }
    const qsizetype shorter = std::min(t.size(), b.size());
    qsizetype first = 0;
    while (first < shorter && t.at(first).compare(b.at(first), cs) == 0)
        ++first;
    if (first == shorter)
        return QString();
    QString out;
    for (qsizetype i = first; i < baseDirs; ++i)
        out += QStringLiteral("..") + separator;
    return out + join(t, first);
}

QString RelativeLink(const QString &target)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return QString();
    const QString base = doc->LocalFileName;
    const bool usable = !doc->bRemote && isAbsolute(base);
    QString link = target;
    bool relative = false;
    if (usable && isAbsolute(target) && sameRoot(target, base)
        && !core::ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Always Use Absolute References"))) {
        link = RelativePath(target, base);
        relative = !link.isEmpty();
        if (!relative)
            link = target;
    }
    if (relative) {
        while (link.startsWith(u'\\') || link.startsWith(u'/'))
            link.remove(0, 1);
    } else if (hasDrive(link)) {
        link = QStringLiteral("file:///") + link.at(0) + u'|' + link.mid(2);
    } else if (link.startsWith(u'/')) {
        link = QStringLiteral("file://") + link;
    }
    link.replace(u'\\', u'/');
    return link;
}

QString ResolveRelativePath(const QString &reference, const QString &directory)
{
    if (reference.isEmpty() || isAbsolute(reference))
        return reference;
    const bool backslashes = directory.contains(u'\\') || (hasDrive(directory) && !directory.contains(u'/'));
    QString joined = directory;
    if (!joined.isEmpty() && !joined.endsWith(u'/') && !joined.endsWith(u'\\'))
        joined += u'/';
    joined += reference;
    joined.replace(u'\\', u'/');

    const bool rooted = joined.startsWith(u'/');
    QStringList kept;
    const QStringList parts = joined.split(u'/');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QString &part = parts.at(i);
        if (part == QLatin1String(".") || (part.isEmpty() && i > 0 && i + 1 < parts.size()))
            continue;
        if (part == QLatin1String("..")) {
            // Never climb above the root or the drive.
            if (kept.size() > 1 || (kept.size() == 1 && !hasDrive(kept.first()) && !kept.first().isEmpty()))
                kept.removeLast();
            continue;
        }
        kept << part;
    }
    QString out = kept.join(u'/');
    if (rooted && !out.startsWith(u'/'))
        out.prepend(u'/');
    if (backslashes)
        out.replace(u'/', u'\\');
    return out;
}

QString FileUrlToPath(const QString &url)
{
    QString path = url;
    path.remove(u'"');
    if (path.startsWith(QLatin1String("file:"), Qt::CaseInsensitive)) {
        path.remove(0, 5);
        while (path.startsWith(QLatin1String("//")))
            path.remove(0, 1);
        // "/C|/dir" or "/C:/dir": an old drive path behind the slashes.
        if (path.size() >= 3 && path.at(0) == u'/' && path.at(1).isLetter()
            && (path.at(2) == u'|' || path.at(2) == u':'))
            path.remove(0, 1);
    }
    if (path.size() >= 2 && path.at(0).isLetter() && path.at(1) == u'|')
        path[1] = u':';
    if (hasDrive(path))
        path.replace(u'/', u'\\');
    return path;
}

QString PathToFileUrl(const QString &path)
{
    QString url = path;
    url.replace(u'\\', u'/');
    if (hasDrive(path))
        return QStringLiteral("file:///") + url;
    if (url.startsWith(u'/') && !url.startsWith(QLatin1String("//")))
        return QStringLiteral("file://") + url;
    return url;
}

} // namespace qly::markup
