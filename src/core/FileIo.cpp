#include "core/FileIo.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace qly::core {

IoResult readWholeFile(const QString &path, QByteArray &bytes)
{
    QFile file(path);
    if (!QFileInfo(path).isFile()) {
        return {QFileInfo::exists(path) ? ErrFileAccess : ErrFileNotFound,
                QStringLiteral("File not found.")};
    }
    if (!file.open(QIODevice::ReadOnly))
        return {ErrFileAccess, file.errorString()};
    bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {ErrIo, file.errorString()};
    return {};
}

IoResult writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    const QFileInfo info(path);
    // A file with no write permission bits is read-only for every user, the
    // superuser included, as a read-only file is on other systems.
    constexpr QFile::Permissions anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (info.exists() && (!info.isFile() || !info.isWritable() || !(info.permissions() & anyWrite)))
        return {ErrFileAccess, QStringLiteral("Permission denied")};

    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return {ErrFileAccess, file.errorString()};
    if (file.write(bytes) != bytes.size()) {
        const QString why = file.errorString();
        file.cancelWriting();
        return {ErrIo, why};
    }
    if (!file.commit())
        return {ErrIo, file.errorString()};
    return {};
}

} // namespace qly::core
