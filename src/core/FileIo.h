#pragma once

#include <QByteArray>
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

} // namespace qly::core
