#include "transfer/Uploader.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/UploadList.h"


namespace qly::transfer {

Uploader::Uploader(FtpClient &ftp, UploadList &list) : m_ftp(ftp), m_list(list)
{
}

bool Uploader::Send(const std::function<bool()> &connectToHost, const QString &directory)
{
    bool ok = true;
    if (!m_ftp.Connected()) {
        emit status(QStringLiteral("Connecting..."));
        ok = connectToHost() && m_ftp.Connected();
        if (ok && !directory.isEmpty()) {
            emit status(QStringLiteral("Changing Directory..."));
            m_ftp.ChangeDirectory(directory);
            if (m_ftp.LastError > 0) {
                platform::MsgBox(QStringLiteral("Could not change directory to ") + directory);
                m_ftp.LastError = 0;
            }
        }
    }
    if (ok) {
        m_base = m_ftp.RemoteDir;
        if (!m_base.startsWith(u'/'))
            m_base.prepend(u'/');
        emit status(QStringLiteral("Creating Remote Directories"));
        ok = CreateRemoteDirectories();
    }
    if (!ok) {
        emit status(QStringLiteral("Disconnecting..."));
        if (m_ftp.Connected())
            m_ftp.setAction(FtpClient::Disconnect);
        emit status(QStringLiteral("Disconnected"));
        return false;
    }
    SendFiles();
    return true;
}

bool Uploader::CreateRemoteDirectories()
{
    QString seen;
    for (size_t i = 0; i < m_list.rows.size();) {
        const QString &row = m_list.rows[i].text;
        const QString dir = row.mid(row.lastIndexOf(u'\t') + 1);
        if (dir.isEmpty() || seen.contains(dir)) {
            ++i;
            continue;
        }
        seen += dir + u',';
        if (dir.contains(u'/') || dir.contains(u'\\')) {
            platform::MsgBox(QStringLiteral("\r\nQuillery cannot support the creation of subdirectories below the "
                                            "current directory.\r\nPlease create those directories manually."));
            m_list.rows.erase(m_list.rows.begin() + qsizetype(i));
            continue;
        }
        m_ftp.RemoteDir = dir;
        const bool blocking = m_ftp.Blocking;
        m_ftp.Blocking = true;
        m_ftp.LastError = 0;
        m_ftp.setAction(FtpClient::MakeDir);
        m_ftp.Blocking = blocking;
        if (m_ftp.LastError > 0) {
            platform::MsgBox(QStringLiteral("Unable to create directory ") + dir);
            return false;
        }
        ++i;
    }
    return true;
}

void Uploader::SendFiles()
{
    m_sent = m_skipped = 0;
    m_failed.clear();
    const qsizetype count = qsizetype(m_list.rows.size());
    int files = 0;
    int done = 0;
    const bool blocking = m_ftp.Blocking;
    m_ftp.Blocking = false;
    auto ended = connect(&m_ftp, &FtpClient::transferEnded, this,
                         [&](const QString &local, const QString &, int code) {
                             ++done;
                             if (code == 0)
                                 ++m_sent;
                             else
                                 m_failed << local;
                             emit which(QString::number(done) + u'/' + QString::number(files));
                         });
    auto bytes = connect(&m_ftp, &FtpClient::ftp_Progress, this, [&](qint64 now, qint64 total, int percent) {
        emit progress(percent, now, total, done, files);
    });
    emit progress(0, 0, m_list.GetTotalBytes(), 0, int(count));
    for (qsizetype i = 0; i < count; ++i) {
        const QString &row = m_list.rows[size_t(i)].text;
        emit which(QString::number(i + 1) + u'/' + QString::number(count));
        if (row.trimmed().startsWith(QLatin1String("ERROR:")))
            continue;
        const qsizetype tab = row.indexOf(u'\t');
        if (tab < 0)
            continue;
        const QString local = row.left(tab).trimmed();
        SetTransferMode(m_ftp, core::GetFileExt(local));
        QString remote = joinRemote(row.mid(tab + 1), core::FileNameOf(local));
        if (!row.startsWith(QLatin1String("   "))) {
            m_ftp.ChangeDirectory(m_base);
            const QString dir = remote.contains(u'/') ? remote.left(remote.lastIndexOf(u'/')) : QString();
            if (!dir.isEmpty() && dir.compare(m_ftp.RemoteDir, Qt::CaseInsensitive) != 0)
                m_ftp.ChangeDirectory(dir);
            remote = remoteFileName(remote);
        }
        if (onlyChanged && unchangedOnServer(m_ftp, local, remote)) {
            ++m_skipped;
            continue;
        }
        m_ftp.LocalFile = local;
        m_ftp.RemoteFile = remote;
        emit status(QStringLiteral("Putting ") + remote);
        ++files;
        m_ftp.setAction(FtpClient::SendFile);
    }
    m_ftp.waitForIdle();
    disconnect(ended);
    disconnect(bytes);
    m_ftp.Blocking = blocking;
    emit which(QString());
    emit status(QString());
}

} // namespace qly::transfer
