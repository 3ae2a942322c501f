#include "documents/TempFiles.h"

#include "core/Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

namespace qly::documents {

void CleanTempFiles(const QString &directory)
{
    if (directory.isEmpty() || !core::DirExists(directory))
        return;
    QDir dir(directory);
    const QStringList names = dir.entryList({QStringLiteral("~qly*.*"), QStringLiteral("~ql*.htm")}, QDir::Files);
    for (const QString &name : names)
        QFile::remove(dir.filePath(name));
}

QString GetTempName(const QString &extension)
{
    QTemporaryFile file(QDir::temp().filePath(QStringLiteral("~qnXXXXXX.tmp")));
    file.setAutoRemove(false);
    if (!file.open())
        return {};
    const QString made = file.fileName();
    file.close();
    if (extension.isEmpty())
        return made;
    const QString name = core::FileNameOf(made);
    return core::JoinPath(core::DirectoryOf(made), name.left(name.indexOf(u'.')) + u'.' + extension);
}

} // namespace qly::documents
