#include "documents/RecentFiles.h"

#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/DocumentList.h"

#include <algorithm>

namespace qly::documents {

using namespace qly::core;

namespace {

const QString kSection = QStringLiteral("Most Recent Files");
constexpr int kEntries = 4;
constexpr qsizetype kShortLimit = 51;

qsizetype nextSeparator(const QString &path, qsizetype from)
{
    const qsizetype slash = path.indexOf(u'/', from);
    const qsizetype back = path.indexOf(u'\\', from);
    if (slash < 0)
        return back;
    if (back < 0)
        return slash;
    return std::min(slash, back);
}

qsizetype previousSeparator(const QString &path, qsizetype from)
{
    if (from < 0)
        return -1;
    return std::max(path.lastIndexOf(u'/', from), path.lastIndexOf(u'\\', from));
}

} // namespace

RecentFileView &recentFileView()
{
    static RecentFileView view;
    return view;
}

QString ShortenPath(const QString &path)
{
    if (path.size() < kShortLimit)
        return path;
    if (path.size() > 1 && path.at(1) == u':') {
        const qsizetype headEnd = nextSeparator(path, 3);
        const qsizetype last = previousSeparator(path, path.size() - 1);
        const qsizetype butOne = previousSeparator(path, last - 1);
        if (headEnd >= 0 && butOne >= 0) {
            const QString shortened = path.left(headEnd + 1) + QStringLiteral("..") + path.mid(butOne);
            // With few separators head and tail overlap; then the plain cut is shorter.
            if (shortened.size() < path.size())
                return shortened;
        }
    }
    return path.right(kShortLimit - 1);
}

void AddRecentFile(const QString &path)
{
    const QString name = FileNameOf(path);
    if (name.startsWith(QLatin1String("~qn"), Qt::CaseInsensitive)
        || GetFileExt(path).compare(QLatin1String("tmp"), Qt::CaseInsensitive) == 0)
        return;
    // Only key "1" is rewritten: the older entries stay as the file holds them.
    WriteSetting(kSection, QStringLiteral("1"), path);
    LoadRecentFiles();
}

void LoadRecentFiles()
{
    for (int n = 1; n <= kEntries; ++n) {
        const QString path = ReadSetting(kSection, QString::number(n));
        if (path.isEmpty())
            continue;
        // "&" in a path would read as a menu mnemonic; doubled it shows as itself.
        QString shown = ShortenPath(path);
        shown.replace(u'&', QStringLiteral("&&"));
        if (recentFileView())
            recentFileView()(n, u'&' + QString::number(n) + u' ' + shown);
    }
}

bool FileRecent_Click(int index)
{
    return OpenDocumentFile(ReadSetting(kSection, QString::number(index)));
}

} // namespace qly::documents
