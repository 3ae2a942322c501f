// One copy per user: a later copy hands its file to the first one; a name
// left behind by a copy that crashed never blocks a start.
#include "app/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QSignalSpy>
#include <QtTest>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace qly;

class tst_SingleInstance : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocalServer::removeServer(app::SingleInstance::serverName()); }
    void laterCopyHandsOverItsFile();
    void staleNameFromACrashIsTakenOver();
    void namesAreResolvedAgainstTheStartingDirectory();
};

void tst_SingleInstance::laterCopyHandsOverItsFile()
{
    app::SingleInstance first;
    QVERIFY(!first.anotherCopyRunning());
    QSignalSpy handed(&first, &app::SingleInstance::fileHandedOver);

    // The later copy talks from a thread of its own, as a process would.
    auto later = [](const QString &file) {
        std::atomic<bool> result = false;
        QThread *t = QThread::create([&] {
            app::SingleInstance second;
            result = second.anotherCopyRunning(file, QStringLiteral("/home/u/site"));
        });
        t->start();
        while (!t->isFinished())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        t->wait();
        delete t;
        return bool(result);
    };
    QVERIFY(later(QStringLiteral("\"pages/é t.html\"")));
    QTRY_COMPARE(handed.size(), 1);
    QCOMPARE(handed[0][0].toString(), QStringLiteral("/home/u/site/pages/é t.html"));
    QVERIFY(later(QString()));
    QTRY_COMPARE(handed.size(), 2);
    QCOMPARE(handed[1][0].toString(), QString());
}

void tst_SingleInstance::staleNameFromACrashIsTakenOver()
{
    // A socket file nobody listens on, as a crash leaves it.
    const QString path = QDir::temp().filePath(app::SingleInstance::serverName());
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QVERIFY(fd >= 0);
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    const QByteArray native = QFile::encodeName(path);
    std::memcpy(addr.sun_path, native.constData(), size_t(native.size()));
    QCOMPARE(::bind(fd, reinterpret_cast<sockaddr *>(&addr), sizeof addr), 0);
    ::close(fd);
    QVERIFY(QFile::exists(path));

    app::SingleInstance copy;
    QVERIFY(!copy.anotherCopyRunning());
    // It listens now: the next copy finds it.
    std::atomic<bool> found = false;
    QThread *t = QThread::create([&] { found = app::SingleInstance().anotherCopyRunning(); });
    t->start();
    while (!t->isFinished())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    t->wait();
    delete t;
    QVERIFY(found);
}

void tst_SingleInstance::namesAreResolvedAgainstTheStartingDirectory()
{
    QCOMPARE(app::SingleInstance::resolve(QStringLiteral(" a.htm "), QStringLiteral("/w")), QStringLiteral("/w/a.htm"));
    QCOMPARE(app::SingleInstance::resolve(QStringLiteral("/x/../y.htm"), QStringLiteral("/w")), QStringLiteral("/y.htm"));
    QCOMPARE(app::SingleInstance::resolve(QStringLiteral("  "), QStringLiteral("/w")), QString());
}

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_singleinstance.moc"
