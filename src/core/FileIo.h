#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace qly::core {

// Result of a file operation. `error` 0 means success; other values follow
// the old runtime's numbers where callers test them.
struct IoResult {
    int error = 0;
    QString message;
    bool ok() const { return error == 0; }
};

inline constexpr int ErrFileNotFound = 53;
inline constexpr int ErrIo = 57;
inline constexpr int ErrFileAccess = 75;   // also: the target is read-only

// Reads a whole file.
IoResult readWholeFile(const QString &path, QByteArray &bytes);

// Replaces `path` with `bytes` so that the old file stays whole until the
// new one is complete: written beside it, flushed, then renamed over it.
// A read-only target gives ErrFileAccess and is left alone. Where the
// directory refuses new files but the file itself may be written, the file
// is written in place.
IoResult writeFileAtomically(const QString &path, const QByteArray &bytes);

// Copies `from` over `to` in the same way: `to` is old or new, never half.
IoResult copyFileAtomically(const QString &from, const QString &to);

// The same replacement for a file that is written piece by piece as it is
// made: nothing of it shows at `path` until commit() succeeds, and a writer
// that is dropped uncommitted leaves the old file as it was.
class AtomicFileWriter
{
public:
    explicit AtomicFileWriter(const QString &path);
    IoResult open();
    // False once a write has failed; the failure is then commit()'s result.
    bool write(const char *data, qsizetype size);
    IoResult commit();

private:
    QSaveFile m_file;
    IoResult m_failure;
};

} // namespace qly::core
