#include "transfer/TreeUpload.h"

#include "core/Paths.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>
#include <map>

namespace qly::transfer {

namespace {

struct Item {
    QString local;
    QString remote;   // absolute
};

void collect(const QString &path, const QString &base, std::vector<Item> &items)
{
    const QFileInfo info(path);
    if (!info.isDir()) {
        items.push_back({path, joinRemote(base, info.fileName())});
        return;
    }
    const QDir root(path);
    QDirIterator it(path, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString file = it.next();
        items.push_back({file, joinRemote(base, root.relativeFilePath(file))});
    }
}

} // namespace

TreeUploadResult uploadTree(FtpClient &ftp, const QStringList &paths, const TreeUploadOptions &options)
{
    TreeUploadResult result;
    const QString base =
        absoluteRemote(ftp.RemoteDir.isEmpty() ? QStringLiteral("/") : ftp.RemoteDir, options.remoteDirectory);
    std::vector<Item> items;
    for (const QString &path : paths) {
        if (!QFileInfo::exists(path)) {
            result.failed << path + QStringLiteral(": not found");
            continue;
        }
        collect(path, base, items);
    }
    std::sort(items.begin(), items.end(), [](const Item &a, const Item &b) { return a.remote < b.remote; });

    // Directories first, parents before children; one that cannot be made
    // fails the files below it.
    QSet<QString> made;
    QSet<QString> refused;
    const bool blocking = ftp.Blocking;
    ftp.Blocking = true;
    for (const Item &item : items) {
        QStringList chain;
        for (QString dir = remoteParent(item.remote); dir != QLatin1String("/") && !made.contains(dir);
             dir = remoteParent(dir))
            chain.prepend(dir);
        for (const QString &dir : chain) {
            if (refused.contains(dir))
                break;
            ftp.RemoteDir = dir;
            ftp.LastError = 0;
            ftp.setAction(FtpClient::MakeDir);
            (ftp.LastError == 0 ? made : refused).insert(dir);
        }
    }

    std::map<QString, QString> reasons;
    auto errors = QObject::connect(&ftp, &FtpClient::ftp_LastError, [&](int code, QString &text) {
        reasons[ftp.LocalFile] = QString::number(code) + u' ' + text;
    });
    int files = 0;
    int done = 0;
    auto ended = QObject::connect(&ftp, &FtpClient::transferEnded, [&](const QString &local, const QString &, int code) {
        ++done;
        if (code == 0) {
            ++result.sent;
        } else {
            const auto reason = reasons.find(local);
            result.failed << local + QStringLiteral(": ")
                                 + (reason != reasons.end() ? reason->second : QString::number(code));
        }
    });
    auto bytes = QObject::connect(&ftp, &FtpClient::ftp_Progress, [&](qint64 now, qint64 total, int) {
        if (options.progress)
            options.progress(done, files, now, total);
    });
    ftp.Blocking = false;
    for (const Item &item : items) {
        const QString dir = remoteParent(item.remote);
        if (refused.contains(dir) || (dir != QLatin1String("/") && !made.contains(dir))) {
            result.failed << item.local + QStringLiteral(": the remote directory ") + dir
                                 + QStringLiteral(" could not be made");
            continue;
        }
        SetTransferMode(ftp, core::GetFileExt(item.local));
        if (options.onlyChanged && unchangedOnServer(ftp, item.local, item.remote)) {
            ++result.skipped;
            continue;
        }
        ftp.LocalFile = item.local;
        ftp.RemoteFile = item.remote;
        ++files;
        ftp.setAction(FtpClient::SendFile);
    }
    ftp.waitForIdle();
    QObject::disconnect(errors);
    QObject::disconnect(ended);
    QObject::disconnect(bytes);
    ftp.Blocking = blocking;
    if (options.progress)
        options.progress(done, files, 0, 0);
    return result;
}

} // namespace qly::transfer
