#include "texttools/FileEntries.h"

#include "core/Paths.h"

#include <QDir>

namespace qly::texttools {

QStringList ExpandEntry(const QString &entry)
{
    const QString native = QDir::fromNativeSeparators(entry);
    const QString dir = core::DirectoryOf(native);
    QString name = core::FileNameOf(native);
    const QString ext = core::GetFileExt(name);
    const int extLength = ext == QLatin1String("*") ? 0 : int(ext.size());
    // "*.*" is every file, with a point in its name or not.
    if (name == QLatin1String("*.*"))
        name = QStringLiteral("*");
    const QDir d(dir.isEmpty() ? QStringLiteral(".") : dir);
    QStringList out;
    const QStringList names = d.entryList(QStringList{name}, QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    for (const QString &n : names) {
        if (extLength == 0 || core::GetFileExt(n).size() == extLength)
            out << core::JoinPath(dir, n);
    }
    return out;
}

QString DirectoryEntry(const QString &directory)
{
    return core::JoinPath(QDir::fromNativeSeparators(directory), QStringLiteral("*.*"));
}

} // namespace qly::texttools
