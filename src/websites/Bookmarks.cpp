#include "websites/Bookmarks.h"

#include "core/FileIo.h"
#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/TextCodec.h"
#include "markup/Attributes.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QDirIterator>

namespace qly::websites {

QList<Bookmark> ReadNetscapeBookmarks(const QString &file)
{
    QByteArray bytes;
    if (!core::readWholeFile(file, bytes).ok())
        return {};
    core::ShowStatus(QStringLiteral("Reading ") + file);
    const QString text = core::decodeFile(bytes).text;
    QList<Bookmark> out;
    qsizetype from = 0;
    const QLatin1String open("<a href="), close("</a>");
    while (true) {
        const qsizetype a = text.indexOf(open, from, Qt::CaseInsensitive);
        if (a < 0)
            break;
        const qsizetype gt = text.indexOf(u'>', a);
        if (gt < 0)
            break;
        const qsizetype end = text.indexOf(close, gt, Qt::CaseInsensitive);
        if (end < 0)
            break;
        Bookmark b;
        b.address = markup::GetAttributeValue(text.mid(a, gt - a + 1), QStringLiteral("href"));
        b.title = text.mid(gt + 1, end - gt - 1);
        b.title.replace(QLatin1String("\r\n"), QLatin1String("NL_")).replace(u'\n', QLatin1String("NL_"));
        out << b;
        from = end + close.size();
    }
    return out;
}

QList<Bookmark> ReadFavorites(const QString &folder)
{
    QList<Bookmark> out;
    if (!core::DirExists(folder))
        return out;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    QStringList files;
    while (it.hasNext())
        files << it.next();
    files.sort(Qt::CaseInsensitive);
    for (const QString &file : files) {
        QString url = core::ReadSetting(QStringLiteral("InternetShortcut"), QStringLiteral("URL"), file);
        if (url.isEmpty())
            continue;
        out << Bookmark{QFileInfo(file).completeBaseName(), url};
    }
    return out;
}

QString NetscapeBookmarkFile()
{
    const QString key = QStringLiteral("Netscape Bookmark"), general = QStringLiteral("General");
    const QString stored = core::ReadSetting(general, key);
    if (stored == QLatin1String("None"))
        return {};
    if (core::FileExists(stored))
        return stored;
    platform::FileRequest request;
    request.title = QStringLiteral("Where is your Netscape bookmarks list?");
    request.fileName = QStringLiteral("bookmarks.html");
    request.directory = QDir::homePath();
    request.filter = QStringLiteral("Bookmarks (*.htm;*.html)|*.htm;*.html|All Files|*.*");
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted()) {
        core::WriteSetting(general, key, QStringLiteral("None"));
        return {};
    }
    core::WriteSetting(general, key, answer.files.first());
    return answer.files.first();
}

QString FavoritesFolder()
{
    const QString set = core::ReadSetting(QStringLiteral("General"), QStringLiteral("Favorites Folder"));
    return set.isEmpty() ? core::JoinPath(QDir::homePath(), QStringLiteral("Favorites")) : set;
}

QString BookmarkMarkup(const Bookmark &bookmark, const QString &selection)
{
    QString text = selection;
    if (text.isEmpty()) {
        text = bookmark.title;
        text.replace(QLatin1String("NL_"), QLatin1String("\r\n"));
    }
    return QStringLiteral("<A HREF=") + markup::AddQuotes(bookmark.address) + u'>' + text + QStringLiteral("</A>");
}

} // namespace qly::websites
