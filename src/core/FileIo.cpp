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

IoResult copyFileAtomically(const QString &from, const QString &to)
{
    QByteArray bytes;
    IoResult result = readWholeFile(from, bytes);
    return result.ok() ? writeFileAtomically(to, bytes) : result;
}

IoResult writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    AtomicFileWriter writer(path);
    IoResult result = writer.open();
    if (result.ok()) {
        writer.write(bytes.constData(), bytes.size());
        result = writer.commit();
    }
    return result;
}

AtomicFileWriter::AtomicFileWriter(const QString &path)
    : m_file(path)
{
}

IoResult AtomicFileWriter::open()
{
    const QFileInfo info(m_file.fileName());
    // A file with no write permission at all is read-only, also for an
    // administrator whom the system would let through.
    constexpr auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (info.exists() && (!info.isFile() || !info.isWritable() || !(info.permissions() & anyWrite)))
        return {ErrFileAccess, QStringLiteral("Permission denied")};
    m_file.setDirectWriteFallback(true);
    if (!m_file.open(QIODevice::WriteOnly))
        return {ErrFileAccess, m_file.errorString()};
    return {};
}

bool AtomicFileWriter::write(const char *data, qsizetype size)
{
    if (!m_failure.ok())
        return false;
    if (m_file.write(data, size) != size) {
        m_failure = {ErrIo, m_file.errorString()};
        m_file.cancelWriting();
        return false;
    }
    return true;
}

IoResult AtomicFileWriter::commit()
{
    if (!m_failure.ok())
        return m_failure;
    if (!m_file.commit())
        return {ErrIo, m_file.errorString()};
    return {};
}

} // namespace qly::core
