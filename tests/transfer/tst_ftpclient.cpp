// The FTP session against a real server on 127.0.0.1: login, transfers,
// names, and every fault ending in its code within the time-out while the
// event loop keeps running.
#include "support/FtpTestServer.h"
#include "transfer/FtpClient.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace qly;
using transfer::FtpClient;

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A session on `server`, every wait short.
void setUp(FtpClient &ftp, const test::FtpTestServer &server, const QString &password = test::FtpTestServer::password())
{
    ftp.HostName = server.host();
    ftp.UserName = test::FtpTestServer::user();
    ftp.password = password;
    ftp.TimeoutSeconds = 10;
}

// Counts event-loop turns while it lives: proof that waits do not block.
struct Heartbeat {
    QTimer timer;
    int beats = 0;
    Heartbeat()
    {
        QObject::connect(&timer, &QTimer::timeout, [this] { ++beats; });
        timer.start(20);
    }
};

} // namespace

class tst_ftpclient : public QObject
{
    Q_OBJECT

private slots:
    void loginAndTransfers();
    void wrongPassword();
    void refusedAndMissingDirectories();
    void droppedConnection();
    void silentServerTimesOut();
    void abortLeavesNoFile();
};

#define SERVER(name, root, ...)                                                                                    \
    test::FtpTestServer name(root, ##__VA_ARGS__);                                                                 \
    if (!name.started())                                                                                           \
        QSKIP(qPrintable(name.problem()));

void tst_ftpclient::loginAndTransfers()
{
    QTemporaryDir root, local;
    SERVER(server, root.path());
    FtpClient ftp;
    setUp(ftp, server);
    QStringList events;
    connect(&ftp, &FtpClient::ftp_Connect, [&] { events << QStringLiteral("connect"); });
    connect(&ftp, &FtpClient::ftp_LastError, [&](int code, QString &) { events << QString::number(code); });
    ftp.setAction(FtpClient::Connect);
    QVERIFY(ftp.Connected());
    QCOMPARE(ftp.LastError, 0);
    QCOMPARE(ftp.RemoteDir, QStringLiteral("/"));
    QCOMPARE(events, QStringList{QStringLiteral("connect")});

    // A new directory, then a file whose name has blanks and letters beyond ASCII.
    ftp.RemoteDir = QStringLiteral("Bilder für Öl");
    ftp.setAction(FtpClient::MakeDir);
    QCOMPARE(ftp.LastError, 0);
    // Making it again is no error: it is there.
    ftp.setAction(FtpClient::MakeDir);
    QCOMPARE(ftp.LastError, 0);
    ftp.ChangeDirectory(QStringLiteral("Bilder für Öl"));
    QCOMPARE(ftp.LastError, 0);
    QCOMPARE(ftp.RemoteDir, QStringLiteral("/Bilder für Öl"));

    QByteArray image(300000, '\0');
    for (int i = 0; i < image.size(); ++i)
        image[i] = char(i * 7 % 251);
    const QString name = QStringLiteral("mein Bild ÄÖÜ ß.gif");
    writeFile(local.filePath(name), image);
    ftp.Blocking = false;
    qint64 lastBytes = 0;
    connect(&ftp, &FtpClient::ftp_Progress, [&](qint64 bytes, qint64, int) { lastBytes = bytes; });
    ftp.LocalFile = local.filePath(name);
    ftp.RemoteFile = name;
    ftp.setAction(FtpClient::SendFile);
    QVERIFY(ftp.busy());
    ftp.waitForIdle();
    QCOMPARE(ftp.LastError, 0);
    QCOMPARE(readFile(root.path() + QStringLiteral("/Bilder für Öl/") + name), image);
    QCOMPARE(lastBytes, qint64(image.size()));
    // No part file stays behind.
    QCOMPARE(QDir(root.path() + QStringLiteral("/Bilder für Öl")).entryList(QDir::Files), QStringList{name});

    // And back, into a file that appears whole.
    ftp.Blocking = true;
    ftp.GetFile(name, local.filePath(QStringLiteral("back.gif")));
    QCOMPARE(ftp.LastError, 0);
    QCOMPARE(readFile(local.filePath(QStringLiteral("back.gif"))), image);

    const auto stat = ftp.statFile(name);
    QVERIFY(stat.has_value());
    QCOMPARE(stat->size, qint64(image.size()));
    QVERIFY(stat->modified.isValid());
    QVERIFY(!ftp.statFile(QStringLiteral("nothing.htm")).has_value());

    // A missing remote file: its code, and no local file.
    ftp.GetFile(QStringLiteral("nothing.htm"), local.filePath(QStringLiteral("nothing.htm")));
    QCOMPARE(ftp.LastError, transfer::ErrRemoteName);
    QVERIFY(!QFile::exists(local.filePath(QStringLiteral("nothing.htm"))));
    QCOMPARE(QDir(local.path()).entryList(QDir::Files).size(), 2);

    ftp.setAction(FtpClient::Disconnect);
    QVERIFY(!ftp.Connected());
    ftp.LastError = 0;
    ftp.setAction(FtpClient::Disconnect);
    QCOMPARE(ftp.LastError, transfer::ErrNotConnected);
}

void tst_ftpclient::wrongPassword()
{
    QTemporaryDir root;
    SERVER(server, root.path());
    FtpClient ftp;
    setUp(ftp, server, QStringLiteral("wrong"));
    int reported = 0;
    connect(&ftp, &FtpClient::ftp_LastError, [&](int code, QString &) { reported = code; });
    QElapsedTimer clock;
    clock.start();
    ftp.setAction(FtpClient::Connect);
    QVERIFY(!ftp.Connected());
    QCOMPARE(ftp.LastError, transfer::ErrLogin);
    QCOMPARE(reported, transfer::ErrLogin);
    QVERIFY(ftp.ReplyString().startsWith(QLatin1String("530")));
    QVERIFY(clock.elapsed() < 6000);   // pyftpdlib waits 3 s before it answers a bad login
}

void tst_ftpclient::refusedAndMissingDirectories()
{
    QTemporaryDir root, local;
    QDir(root.path()).mkdir(QStringLiteral("locked"));
    SERVER(server, root.path(), {QStringLiteral("--locked"), QStringLiteral("locked")});
    FtpClient ftp;
    setUp(ftp, server);
    ftp.setAction(FtpClient::Connect);
    QVERIFY(ftp.Connected());

    ftp.ChangeDirectory(QStringLiteral("no such dir"));
    QCOMPARE(ftp.LastError, transfer::ErrRemoteName);
    QCOMPARE(ftp.RemoteDir, QStringLiteral("/"));   // the current directory stays

    ftp.LastError = 0;
    ftp.RemoteDir = QStringLiteral("locked/new");
    ftp.setAction(FtpClient::MakeDir);
    QCOMPARE(ftp.LastError, transfer::ErrPermission);
    QVERIFY(!QDir(root.path() + QStringLiteral("/locked/new")).exists());

    ftp.LastError = 0;
    ftp.ChangeDirectory(QStringLiteral("locked"));
    QCOMPARE(ftp.LastError, 0);
    writeFile(local.filePath(QStringLiteral("a.htm")), "<p>a</p>\n");
    ftp.LocalFile = local.filePath(QStringLiteral("a.htm"));
    ftp.RemoteFile = QStringLiteral("a.htm");
    ftp.setAction(FtpClient::SendFile);
    QCOMPARE(ftp.LastError, transfer::ErrPermission);
    QVERIFY(QDir(root.path() + QStringLiteral("/locked")).entryList(QDir::Files).isEmpty());
}

void tst_ftpclient::droppedConnection()
{
    QTemporaryDir root, local;
    QByteArray big(2000000, 'x');
    writeFile(local.filePath(QStringLiteral("big.jpg")), big);
    {
        // Dropped once: the transfer is tried again on a new connection and arrives whole.
        SERVER(server, root.path(), {QStringLiteral("--drop-after"), QStringLiteral("100000")});
        FtpClient ftp;
        setUp(ftp, server);
        ftp.setAction(FtpClient::Connect);
        ftp.LocalFile = local.filePath(QStringLiteral("big.jpg"));
        ftp.RemoteFile = QStringLiteral("big.jpg");
        ftp.setAction(FtpClient::SendFile);
        QCOMPARE(ftp.LastError, 0);
        QCOMPARE(readFile(root.filePath(QStringLiteral("big.jpg"))).size(), big.size());
    }
    QFile::remove(root.filePath(QStringLiteral("big.jpg")));
    {
        // Dropped every time: reported after the second try, and no file of that name.
        SERVER(server, root.path(), {QStringLiteral("--drop-after"), QStringLiteral("100000"),
                                     QStringLiteral("--drop-times"), QStringLiteral("5")});
        FtpClient ftp;
        setUp(ftp, server);
        ftp.setAction(FtpClient::Connect);
        QString message;
        connect(&ftp, &FtpClient::ftp_LastError, [&](int, QString &text) { message = text; });
        ftp.LocalFile = local.filePath(QStringLiteral("big.jpg"));
        ftp.RemoteFile = QStringLiteral("big.jpg");
        ftp.setAction(FtpClient::SendFile);
        QCOMPARE(ftp.LastError, transfer::ErrConnectionLost);
        QVERIFY(!message.isEmpty());
        QVERIFY(!QFile::exists(root.filePath(QStringLiteral("big.jpg"))));
    }
}

void tst_ftpclient::silentServerTimesOut()
{
    QTemporaryDir root;
    SERVER(server, root.path(), {QStringLiteral("--silent")});
    FtpClient ftp;
    setUp(ftp, server);
    ftp.TimeoutSeconds = 2;
    Heartbeat heart;
    QElapsedTimer clock;
    clock.start();
    ftp.setAction(FtpClient::Connect);
    QCOMPARE(ftp.LastError, transfer::ErrTimedOut);
    QVERIFY(!ftp.Connected());
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    // The event loop ran all the while.
    QVERIFY(heart.beats > 40);
}

void tst_ftpclient::abortLeavesNoFile()
{
    QTemporaryDir root, local;
    // The server takes uploads at 1 MB a second, and the file is larger than
    // the loopback's buffers hold, so however fast or loaded the machine,
    // the first upload is still going when the stop comes.
    SERVER(server, root.path(), {QStringLiteral("--read-limit"), QStringLiteral("1000000")});
    FtpClient ftp;
    setUp(ftp, server);
    ftp.setAction(FtpClient::Connect);
    QByteArray big(32000000, 'y');
    writeFile(local.filePath(QStringLiteral("big.bin")), big);
    ftp.Blocking = false;
    QStringList ended;
    connect(&ftp, &FtpClient::transferEnded, [&](const QString &, const QString &remote, int code) {
        ended << remote + u'=' + QString::number(code);
    });
    for (const char *name : {"one.bin", "two.bin"}) {
        ftp.LocalFile = local.filePath(QStringLiteral("big.bin"));
        ftp.RemoteFile = QString::fromLatin1(name);
        ftp.setAction(FtpClient::SendFile);
    }
    // Stopped as soon as bytes are on their way: told by the progress, or
    // seen as the file the server has begun to write.
    auto stopOnceGoing = [&](qint64 bytes) {
        if (ftp.busy() && (bytes > 0 || !QDir(root.path()).isEmpty()))
            ftp.AbortTransfer();
    };
    connect(&ftp, &FtpClient::ftp_Progress, &ftp, [&](qint64 bytes, qint64, int) { stopOnceGoing(bytes); });
    QTimer watch;
    connect(&watch, &QTimer::timeout, &ftp, [&] { stopOnceGoing(0); });
    watch.start(5);
    ftp.waitForIdle();
    QCOMPARE(ftp.LastError, transfer::ErrAborted);
    QCOMPARE(ended.size(), 2);
    QVERIFY2(ended.at(0).endsWith(QLatin1String("=22029")), qPrintable(ended.join(u' ')));
    QVERIFY(!QFile::exists(root.filePath(QStringLiteral("one.bin"))));
    QVERIFY(!QFile::exists(root.filePath(QStringLiteral("two.bin"))));
}

QTEST_GUILESS_MAIN(tst_ftpclient)
#include "tst_ftpclient.moc"
