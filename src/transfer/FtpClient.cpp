#include "transfer/FtpClient.h"

#include "core/FileIo.h"
#include "transfer/CurlLoop.h"
#include "transfer/HostKeys.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <curl/curl.h>

namespace qly::transfer {

// The part name an upload is written under until the server has all of it.
static const QLatin1String PartSuffix(".qly-part");

struct FtpClient::Job {
    FtpClient *client = nullptr;
    FtpOp op = FtpOp::Connect;
    QString remote;            // absolute; a directory or a file
    QString local;
    bool text = false;
    bool fresh = false;        // the retry: on a new connection
    int attempt = 0;
    CURL *easy = nullptr;
    curl_slist *quote = nullptr;
    curl_slist *postquote = nullptr;
    std::unique_ptr<QFile> in;
    std::unique_ptr<core::AtomicFileWriter> out;
    qint64 size = 0;
    qint64 now = 0;
    char error[CURL_ERROR_SIZE] = {};
    QString reply;
    std::optional<OfferedKey> newKey;
    bool keyChanged = false;
    bool ended = false;
    bool silent = false;       // ends without its own error event
    int code = 0;
    std::optional<RemoteStat> stat;
    std::function<void()> onEnd;

    void release()
    {
        if (easy)
            curl_easy_cleanup(easy);
        easy = nullptr;
        curl_slist_free_all(quote);
        curl_slist_free_all(postquote);
        quote = postquote = nullptr;
        in.reset();
    }
    ~Job() { release(); }
};

namespace {

size_t onHeader(char *data, size_t size, size_t count, void *p)
{
    auto *job = static_cast<FtpClient::Job *>(p);
    const QByteArray line = QByteArray(data, qsizetype(size * count)).trimmed();
    if (!line.isEmpty())
        job->reply = QString::fromUtf8(line);
    return size * count;
}

size_t onRead(char *data, size_t size, size_t count, void *p)
{
    auto *job = static_cast<FtpClient::Job *>(p);
    const qint64 n = job->in->read(data, qint64(size * count));
    return n < 0 ? CURL_READFUNC_ABORT : size_t(n);
}

size_t onWrite(char *data, size_t size, size_t count, void *p)
{
    auto *job = static_cast<FtpClient::Job *>(p);
    return job->out->write(data, qsizetype(size * count)) ? size * count : 0;
}

int onXfer(void *p, curl_off_t dlTotal, curl_off_t dlNow, curl_off_t, curl_off_t ulNow)
{
    auto *job = static_cast<FtpClient::Job *>(p);
    if (job->op == FtpOp::Get && job->size == 0 && dlTotal > 0)
        job->size = -dlTotal;   // learnt now; counted into the total by the client
    job->now = job->op == FtpOp::Get ? dlNow : ulNow;
    job->client->jobProgress(*job);
    return 0;
}

int onHostKey(CURL *, const curl_khkey *, const curl_khkey *found, curl_khmatch match, void *p)
{
    auto *job = static_cast<FtpClient::Job *>(p);
    if (match == CURLKHMATCH_OK)
        return CURLKHSTAT_FINE;
    if (match == CURLKHMATCH_MISMATCH) {
        job->keyChanged = true;
        return CURLKHSTAT_REJECT;
    }
    // A new key: the question is asked once this request has ended, outside libcurl.
    OfferedKey key;
    key.type = sshKeyTypeName(found->keytype);
    key.base64 = found->len ? QByteArray(found->key, qsizetype(found->len)).toBase64() : QByteArray(found->key);
    job->newKey = key;
    return CURLKHSTAT_REJECT;
}

void append(curl_slist *&list, const QString &command)
{
    list = curl_slist_append(list, command.toUtf8().constData());
}

QString quoted(const QString &path)
{
    return u'"' + path + u'"';
}

} // namespace

FtpClient::FtpClient(QObject *parent) : QObject(parent), m_loop(std::make_unique<CurlLoop>())
{
    // Progress is told from the event loop, never from inside libcurl: a
    // handler may stop the transfer or show a dialog.
    m_progressTimer.setSingleShot(true);
    m_progressTimer.setInterval(100);
    connect(&m_progressTimer, &QTimer::timeout, this, [this] { reportProgress(); });
}

FtpClient::~FtpClient()
{
    for (const auto &job : m_running)
        m_loop->remove(job->easy);
}

void FtpClient::resetLoop()
{
    for (const auto &job : m_running)
        m_loop->remove(job->easy);
    // Dropping the multi handle closes the connections it keeps.
    m_loop = std::make_unique<CurlLoop>();
}

std::shared_ptr<FtpClient::Job> FtpClient::makeJob(FtpOp op, const QString &remotePath)
{
    auto job = std::make_shared<Job>();
    job->client = this;
    job->op = op;
    job->remote = remotePath;
    job->text = Tag == QLatin1String("A");
    return job;
}

bool FtpClient::prepare(Job &job)
{
    job.release();
    job.error[0] = 0;
    job.newKey.reset();
    job.keyChanged = false;
    CURL *e = curl_easy_init();
    job.easy = e;
    const bool dir = job.op == FtpOp::Connect || job.op == FtpOp::ChangeDir || job.op == FtpOp::MakeDir;
    QByteArray url;
    if (job.op == FtpOp::Connect)
        url = m_host.baseUrl() + (m_host.sftp() ? "/~/" : "/");
    else if (job.op == FtpOp::Put)
        url = requestUrl(m_host, job.remote + PartSuffix);
    else
        url = requestUrl(m_host, job.remote, dir);
    curl_easy_setopt(e, CURLOPT_URL, url.constData());
    curl_easy_setopt(e, CURLOPT_ERRORBUFFER, job.error);
    curl_easy_setopt(e, CURLOPT_NOSIGNAL, 1L);
    static const bool verbose = qEnvironmentVariableIsSet("QLY_CURL_VERBOSE");
    if (verbose)
        curl_easy_setopt(e, CURLOPT_VERBOSE, 1L);
    const QByteArray user = UserName.toUtf8();
    const QByteArray pass = password.toUtf8();
    if (!user.isEmpty())
        curl_easy_setopt(e, CURLOPT_USERNAME, user.constData());
    if (!pass.isEmpty())
        curl_easy_setopt(e, CURLOPT_PASSWORD, pass.constData());
    const long timeout = std::max(1, TimeoutSeconds);
    curl_easy_setopt(e, CURLOPT_CONNECTTIMEOUT, timeout);
    curl_easy_setopt(e, CURLOPT_SERVER_RESPONSE_TIMEOUT, timeout);
    // A data connection that stalls for as long ends the same way.
    curl_easy_setopt(e, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(e, CURLOPT_LOW_SPEED_TIME, timeout);
    curl_easy_setopt(e, CURLOPT_FTP_FILEMETHOD, long(CURLFTPMETHOD_SINGLECWD));
    curl_easy_setopt(e, CURLOPT_HEADERFUNCTION, &onHeader);
    curl_easy_setopt(e, CURLOPT_HEADERDATA, &job);
    curl_easy_setopt(e, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(e, CURLOPT_XFERINFOFUNCTION, &onXfer);
    curl_easy_setopt(e, CURLOPT_XFERINFODATA, &job);
    if (job.fresh)
        curl_easy_setopt(e, CURLOPT_FRESH_CONNECT, 1L);
    if (m_host.tls) {
        curl_easy_setopt(e, CURLOPT_USE_SSL, long(CURLUSESSL_ALL));
        if (!CaFile.isEmpty()) {
            const QByteArray ca = CaFile.toLocal8Bit();   // libcurl keeps its own copy
            curl_easy_setopt(e, CURLOPT_CAINFO, ca.constData());
        }
    }
    if (m_host.sftp()) {
        const QByteArray known = knownHostsPath(KnownHostsFile).toLocal8Bit();
        curl_easy_setopt(e, CURLOPT_SSH_KNOWNHOSTS, known.constData());
        curl_easy_setopt(e, CURLOPT_SSH_KEYFUNCTION, &onHostKey);
        curl_easy_setopt(e, CURLOPT_SSH_KEYDATA, &job);
    }
    // SFTP has no text mode: a file goes byte for byte (libcurl would
    // otherwise turn its line ends into CR LF on the way).
    curl_easy_setopt(e, CURLOPT_TRANSFERTEXT, job.text && !m_host.sftp() ? 1L : 0L);

    switch (job.op) {
    case FtpOp::Connect:
    case FtpOp::ChangeDir:
        curl_easy_setopt(e, CURLOPT_NOBODY, 1L);
        break;
    case FtpOp::MakeDir:
        // "*": a directory that is there already is no failure; entering
        // it afterwards proves that it exists.
        append(job.quote, m_host.sftp() ? QStringLiteral("*mkdir ") + quoted(job.remote)
                                         : QStringLiteral("*MKD ") + job.remote);
        curl_easy_setopt(e, CURLOPT_QUOTE, job.quote);
        curl_easy_setopt(e, CURLOPT_NOBODY, 1L);
        break;
    case FtpOp::Stat:
        curl_easy_setopt(e, CURLOPT_NOBODY, 1L);
        curl_easy_setopt(e, CURLOPT_FILETIME, 1L);
        break;
    case FtpOp::Put: {
        job.in = std::make_unique<QFile>(job.local);
        if (!job.in->open(QIODevice::ReadOnly)) {
            qstrncpy(job.error, "The local file cannot be read", sizeof job.error);
            return false;
        }
        job.size = job.in->size();
        curl_easy_setopt(e, CURLOPT_UPLOAD, 1L);
        curl_easy_setopt(e, CURLOPT_READFUNCTION, &onRead);
        curl_easy_setopt(e, CURLOPT_READDATA, &job);
        curl_easy_setopt(e, CURLOPT_INFILESIZE_LARGE, curl_off_t(job.size));
        // The file takes its name only once the server has confirmed all of it.
        const QString part = job.remote + PartSuffix;
        if (m_host.sftp()) {
            append(job.postquote, QStringLiteral("*rm ") + quoted(job.remote));
            append(job.postquote, QStringLiteral("rename ") + quoted(part) + u' ' + quoted(job.remote));
        } else {
            append(job.postquote, QStringLiteral("RNFR ") + part);
            append(job.postquote, QStringLiteral("RNTO ") + job.remote);
        }
        curl_easy_setopt(e, CURLOPT_POSTQUOTE, job.postquote);
        break;
    }
    case FtpOp::Get:
        job.out = std::make_unique<core::AtomicFileWriter>(job.local);
        if (!job.out->open().ok()) {
            qstrncpy(job.error, "The local file cannot be written", sizeof job.error);
            return false;
        }
        curl_easy_setopt(e, CURLOPT_WRITEFUNCTION, &onWrite);
        curl_easy_setopt(e, CURLOPT_WRITEDATA, &job);
        break;
    }
    return true;
}

void FtpClient::start(const std::shared_ptr<Job> &job)
{
    const bool transfer = job->op == FtpOp::Put || job->op == FtpOp::Get;
    if (transfer && int(m_running.size()) >= std::max(1, Parallel)) {
        m_queue.push_back(job);
        return;
    }
    launch(job);
}

void FtpClient::launch(const std::shared_ptr<Job> &job)
{
    m_running.push_back(job);
    job->now = 0;
    if (!prepare(*job)) {
        // Nothing reached the network: the local side failed.
        m_running.erase(std::find(m_running.begin(), m_running.end(), job));
        fail(*job, ErrRemoteName, QString::fromUtf8(job->error) + QStringLiteral(": ") + job->local);
        pump();
        return;
    }
    m_loop->add(job->easy, [this, job](CURL *, int code) { finished(job, code); });
}

void FtpClient::pump()
{
    while (!m_queue.empty() && int(m_running.size()) < std::max(1, Parallel)) {
        auto next = m_queue.front();
        m_queue.pop_front();
        launch(next);
    }
    if (m_queue.empty() && m_running.empty() && (m_batchTotal > 0 || m_batchDone > 0)) {
        // The batch is over: its last figures, and a new count from zero.
        const qint64 done = m_batchDone;
        const qint64 total = std::max(m_batchTotal, done);
        m_batchTotal = m_batchDone = 0;
        m_progressTimer.stop();
        emit ftp_Progress(done, total, total > 0 ? int(done * 100 / total) : 100);
    }
}

void FtpClient::finished(const std::shared_ptr<Job> &job, int curlCode)
{
    long replyCode = 0;
    curl_easy_getinfo(job->easy, CURLINFO_RESPONSE_CODE, &replyCode);
    m_reply = job->reply;
    m_running.erase(std::find(m_running.begin(), m_running.end(), job));

    if (curlCode == CURLE_PEER_FAILED_VERIFICATION && job->newKey && trustNewHostKey(*job)) {
        launch(job);
        return;
    }
    const bool transfer = job->op == FtpOp::Put || job->op == FtpOp::Get;
    if (curlCode != CURLE_OK && transfer && job->attempt == 0 && isRetryable(curlCode, int(replyCode))) {
        // Once more on a new connection before the transfer counts as failed.
        job->attempt = 1;
        job->fresh = true;
        launch(job);
        return;
    }
    if (curlCode == CURLE_OK) {
        if (job->op == FtpOp::Get) {
            const core::IoResult written = job->out->commit();
            if (!written.ok()) {
                fail(*job, ErrPermission, written.message);
                pump();
                return;
            }
        } else if (job->op == FtpOp::Connect) {
            const char *entry = nullptr;
            curl_easy_getinfo(job->easy, CURLINFO_FTP_ENTRY_PATH, &entry);
            m_entry = entry && *entry ? QString::fromUtf8(entry) : QStringLiteral("/");
            if (m_host.sftp() && m_entry.startsWith(QLatin1String("~")))
                m_entry = QStringLiteral("/");
        } else if (job->op == FtpOp::Stat) {
            RemoteStat st;
            curl_off_t length = -1;
            curl_off_t time = -1;
            curl_easy_getinfo(job->easy, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
            curl_easy_getinfo(job->easy, CURLINFO_FILETIME_T, &time);
            st.size = length;
            if (time >= 0)
                st.modified = QDateTime::fromSecsSinceEpoch(time, Qt::UTC);
            job->stat = st;
        }
        job->out.reset();
        succeed(*job);
    } else {
        job->out.reset();   // an unfinished download leaves nothing behind
        QString text = QString::fromUtf8(job->error);
        if (text.isEmpty())
            text = QString::fromUtf8(curl_easy_strerror(CURLcode(curlCode)));
        if (job->keyChanged)
            text = QStringLiteral("The host key of %1 differs from the one in %2. The server may be an impostor; "
                                  "the connection was refused.")
                       .arg(m_host.host, knownHostsPath(KnownHostsFile));
        else if (curlCode == CURLE_PEER_FAILED_VERIFICATION && job->newKey)
            text = QStringLiteral("The host key of %1 was not accepted.").arg(m_host.host);
        const int code = mapCurlError(curlCode, int(replyCode), job->op);
        fail(*job, code, text);
        if (code == ErrTimedOut) {
            // The server has stopped answering: the rest of the queue would
            // wait as long again, each.
            while (!m_queue.empty()) {
                auto next = m_queue.front();
                m_queue.pop_front();
                next->silent = true;
                fail(*next, ErrTimedOut, text);
            }
        }
    }
    pump();
}

void FtpClient::succeed(Job &job)
{
    job.ended = true;
    job.code = 0;
    switch (job.op) {
    case FtpOp::Connect:
        m_connected = true;
        m_cwd = m_entry;
        RemoteDir = m_entry;
        break;
    case FtpOp::ChangeDir:
        m_cwd = job.remote;
        RemoteDir = job.remote;
        break;
    default:
        break;
    }
    if (job.op == FtpOp::Put || job.op == FtpOp::Get)
        m_batchDone += std::abs(job.size);
    if (job.onEnd)
        job.onEnd();
    if (job.op == FtpOp::Connect)
        emit ftp_Connect();
    if (job.op == FtpOp::Put || job.op == FtpOp::Get)
        emit transferEnded(job.local, job.remote, 0);
}

void FtpClient::fail(Job &job, int code, const QString &text)
{
    job.ended = true;
    job.code = code;
    LastError = code;
    if (job.op == FtpOp::Connect)
        m_connected = false;
    if (job.op == FtpOp::ChangeDir)
        RemoteDir = m_cwd;
    if (job.op == FtpOp::Put || job.op == FtpOp::Get) {
        m_batchDone += std::abs(job.size);
        RemoteFile = job.remote;
        LocalFile = job.local;
    }
    if (job.onEnd)
        job.onEnd();
    if (!job.silent) {
        QString message = text;
        emit ftp_LastError(code, message);
    }
    if (job.op == FtpOp::Put || job.op == FtpOp::Get)
        emit transferEnded(job.local, job.remote, code);
}

bool FtpClient::trustNewHostKey(Job &job)
{
    OfferedKey key = *job.newKey;
    key.hostName = m_host.knownHostsName();
    if (key.type.isEmpty() || !askToTrustHostKey(key, knownHostsPath(KnownHostsFile)))
        return false;
    job.newKey.reset();
    return true;
}

void FtpClient::runAndWait(const std::shared_ptr<Job> &job)
{
    QEventLoop loop;
    job->onEnd = [&loop] { loop.quit(); };
    start(job);
    if (!job->ended)
        loop.exec();
    job->onEnd = nullptr;
}

void FtpClient::setAction(int action)
{
    switch (action) {
    case Connect: {
        const HostAddress host = parseHost(HostName);
        if (host.baseUrl() != m_host.baseUrl())
            resetLoop();
        m_host = host;
        auto job = makeJob(FtpOp::Connect, QString());
        if (Blocking)
            runAndWait(job);
        else
            start(job);
        break;
    }
    case Disconnect: {
        if (!m_connected) {
            LastError = ErrNotConnected;
            QString text = QStringLiteral("Tried to disconnect while not connected");
            emit ftp_LastError(ErrNotConnected, text);
            break;
        }
        Quit();
        break;
    }
    case SendFile:
        queueTransfer(FtpOp::Put, RemoteFile, LocalFile);
        break;
    case ApplyDir:
    case MakeDir: {
        const QString target = absoluteRemote(m_cwd.isEmpty() ? QStringLiteral("/") : m_cwd, RemoteDir);
        auto job = makeJob(action == ApplyDir ? FtpOp::ChangeDir : FtpOp::MakeDir, target);
        if (Blocking)
            runAndWait(job);
        else
            start(job);
        break;
    }
    default:
        break;
    }
}

void FtpClient::queueTransfer(FtpOp op, const QString &remote, const QString &local)
{
    auto job = makeJob(op, absoluteRemote(m_cwd.isEmpty() ? QStringLiteral("/") : m_cwd, remote));
    job->local = local;
    if (op == FtpOp::Put) {
        job->size = QFileInfo(local).size();
        m_batchTotal += job->size;
    }
    if (Blocking)
        runAndWait(job);
    else
        start(job);
}

void FtpClient::GetFile(const QString &remote, const QString &local)
{
    queueTransfer(FtpOp::Get, remote, local);
}

void FtpClient::ChangeDirectory(const QString &dir)
{
    const QString target = absoluteRemote(m_cwd.isEmpty() ? QStringLiteral("/") : m_cwd, dir);
    if (!m_cwd.isEmpty() && target == m_cwd) {
        RemoteDir = m_cwd;
        return;
    }
    runAndWait(makeJob(FtpOp::ChangeDir, target));
}

std::optional<FtpClient::RemoteStat> FtpClient::statFile(const QString &remote)
{
    auto job = makeJob(FtpOp::Stat, absoluteRemote(m_cwd.isEmpty() ? QStringLiteral("/") : m_cwd, remote));
    job->silent = true;
    job->text = false;   // servers refuse SIZE in text mode
    const int before = LastError;
    runAndWait(job);
    LastError = before;
    return job->stat;
}

void FtpClient::Quit()
{
    AbortTransfer();
    resetLoop();
    const bool was = m_connected;
    m_connected = false;
    m_cwd.clear();
    if (was)
        emit ftp_Disconnect();
}

void FtpClient::AbortTransfer()
{
    std::vector<std::shared_ptr<Job>> stopped(m_running.begin(), m_running.end());
    stopped.insert(stopped.end(), m_queue.begin(), m_queue.end());
    m_running.clear();
    m_queue.clear();
    bool told = false;
    for (const auto &job : stopped) {
        m_loop->remove(job->easy);
        job->out.reset();
        // One event for the whole stop, not one a file.
        job->silent = told;
        told = true;
        fail(*job, ErrAborted, QStringLiteral("File transfer successfully aborted"));
    }
    pump();
}

void FtpClient::Close()
{
    m_batchTotal = m_batchDone = 0;
}

bool FtpClient::busy() const
{
    return !m_running.empty() || !m_queue.empty();
}

void FtpClient::waitForIdle()
{
    while (busy()) {
        QEventLoop loop;
        auto quit = connect(this, &FtpClient::transferEnded, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        loop.exec();
        disconnect(quit);
    }
}

void FtpClient::jobProgress(Job &job)
{
    if (job.size < 0 && job.op == FtpOp::Get) {
        // A download's length, learnt from the server.
        m_batchTotal += -job.size;
        job.size = -job.size;
    }
    if (!m_progressTimer.isActive())
        m_progressTimer.start();
}

void FtpClient::reportProgress()
{
    qint64 bytes = m_batchDone;
    for (const auto &job : m_running)
        bytes += job->now;
    const qint64 total = std::max(m_batchTotal, bytes);
    const int percent = total > 0 ? int(bytes * 100 / total) : 0;
    emit ftp_Progress(bytes, total, percent);
}

} // namespace qly::transfer
