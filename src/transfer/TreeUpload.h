#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace qly::transfer {

class FtpClient;

// Sending files and whole folders to a connected session, for the command
// line and scripts: a folder given as a relative path arrives under that
// path below the remote directory, its tree kept; directories are made as
// needed.
struct TreeUploadOptions {
    QString remoteDirectory;     // relative to the login directory, or absolute
    bool onlyChanged = false;    // skip files whose size and time match the server's
    // Called as the upload goes: files ended, files in all, bytes, bytes in all.
    std::function<void(int filesDone, int files, qint64 bytes, qint64 total)> progress;
};

struct TreeUploadResult {
    int sent = 0;
    int skipped = 0;
    QStringList failed;          // local paths, each with the reason: "path: text"
    bool ok() const { return failed.isEmpty(); }
};

TreeUploadResult uploadTree(FtpClient &ftp, const QStringList &paths, const TreeUploadOptions &options);

} // namespace qly::transfer
