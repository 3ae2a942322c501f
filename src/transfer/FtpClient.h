#pragma once

#include "transfer/FtpErrors.h"
#include "transfer/RemotePath.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace qly::transfer {

class CurlLoop;

// The FTP session: members and actions as the editor's transfer code uses
// them, on libcurl run from the event loop. An action starts work and
// returns; callers poll Connected and LastError while the event loop runs,
// or wait with the helpers below, which also run it. Hosts may be given as
// "sftp://host" and "ftps://host"; the same members serve.
class FtpClient final : public QObject
{
    Q_OBJECT
public:
    enum Actions { Connect = 1, Disconnect = 4, SendFile = 6, ApplyDir = 16, MakeDir = 17 };

    explicit FtpClient(QObject *parent = nullptr);
    ~FtpClient() override;

    QString HostName;
    QString UserName;
    QString password;
    bool Blocking = true;      // true: an action returns when it has ended
    int LastError = 0;
    QString RemoteDir;         // the current directory; the argument of actions 16 and 17
    QString RemoteFile;
    QString LocalFile;
    QString Tag = QStringLiteral("I");   // "A" text, "I" binary
    bool Binary = true;

    // Beyond the classic members: seconds without an answer before a
    // request ends in ErrTimedOut; transfers run at once on their own
    // connections.
    int TimeoutSeconds = 30;
    int Parallel = 4;
    // The user's known_hosts for SFTP; empty: ~/.ssh/known_hosts.
    QString KnownHostsFile;
    // Certificates (PEM) trusted for FTPS instead of the system's; for a
    // server with a private or self-signed certificate. Empty: the system's.
    QString CaFile;

    bool Connected() const { return m_connected; }
    QString ReplyString() const { return m_reply; }
    void setAction(int action);
    void ChangeDirectory(const QString &dir);
    void Quit();
    void AbortTransfer();
    // Fetches `remote` (relative to RemoteDir) into `local`; the local file
    // appears only when it is complete. Waits when Blocking.
    void GetFile(const QString &remote, const QString &local);
    void Close();

    // True while transfers are queued or running.
    bool busy() const;
    // Runs the event loop until every queued transfer has ended.
    void waitForIdle();
    // The directory the login put the session in.
    QString entryDirectory() const { return m_entry; }

    struct RemoteStat {
        qint64 size = -1;
        QDateTime modified;   // invalid when the server does not say
    };
    // Size and time of a remote file, relative to RemoteDir; nothing when it
    // does not exist or cannot be asked. Waits.
    std::optional<RemoteStat> statFile(const QString &remote);

signals:
    void ftp_Connect();
    void ftp_Disconnect();
    // Handlers may set `text` to what the user should read.
    void ftp_LastError(int code, QString &text);
    // Bytes of the transfers since the queue was last empty, and their total.
    void ftp_Progress(qint64 bytes, qint64 total, int percent);
    // One transfer has ended: 0 or its error code.
    void transferEnded(const QString &localFile, const QString &remoteFile, int code);

public:
    // One request, with what it reads or writes; the libcurl callbacks see it.
    struct Job;
    void jobProgress(Job &job);

private:
    void resetLoop();
    void start(const std::shared_ptr<Job> &job);
    void launch(const std::shared_ptr<Job> &job);
    bool prepare(Job &job);
    void finished(const std::shared_ptr<Job> &job, int curlCode);
    void succeed(Job &job);
    void fail(Job &job, int code, const QString &text);
    bool trustNewHostKey(Job &job);
    void pump();
    void runAndWait(const std::shared_ptr<Job> &job);
    std::shared_ptr<Job> makeJob(FtpOp op, const QString &remotePath);
    void queueTransfer(FtpOp op, const QString &remote, const QString &local);
    void reportProgress();

    std::unique_ptr<CurlLoop> m_loop;
    HostAddress m_host;
    bool m_connected = false;
    QString m_entry;
    QString m_cwd;
    QString m_reply;
    std::deque<std::shared_ptr<Job>> m_queue;
    std::vector<std::shared_ptr<Job>> m_running;
    qint64 m_batchTotal = 0;
    qint64 m_batchDone = 0;
    QTimer m_progressTimer;
};

} // namespace qly::transfer
