#include "websites/ExternalCheck.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

using namespace qly::websites;

// The web address check against a local server that the test starts.
class tst_ExternalCheck : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void answersSortedIntoOkBrokenAndUnverified();
    void perHostLimitHolds();

private:
    QString url(const char *path) const { return m_base + QString::fromLatin1(path); }
    QProcess m_server;
    QString m_base;
};

void tst_ExternalCheck::initTestCase()
{
    m_server.start(QStringLiteral("python3"), {QStringLiteral(TEST_DATA_DIR "/websites/check_server.py")});
    QVERIFY(m_server.waitForStarted());
    QVERIFY(m_server.waitForReadyRead(10000));
    const QByteArray port = m_server.readLine().trimmed();
    QVERIFY(!port.isEmpty());
    m_base = QStringLiteral("http://127.0.0.1:") + QString::fromLatin1(port);
}

void tst_ExternalCheck::cleanupTestCase()
{
    m_server.kill();
    m_server.waitForFinished();
}

void tst_ExternalCheck::answersSortedIntoOkBrokenAndUnverified()
{
    ExternalCheckOptions o;
    o.timeoutMs = 4000;   // the slow answer takes 8 s; the others must fit in a busy machine
    QElapsedTimer timer;
    timer.start();
    const QStringList all = {url("/ok"), url("/gone"), url("/removed"), url("/nohead"), url("/moved"),
                             url("/busy"), url("/always-busy"), url("/error"), url("/private"), url("/slow"),
                             QStringLiteral("http://127.0.0.1:1/closed"), url("/ok"), QStringLiteral("mailto:x@y")};
    const QHash<QString, ExternalResult> r = CheckExternalLinks(all, o);
    QCOMPARE(r.size(), 11);   // each address once; only http(s)
    auto status = [&](const char *path) { return ExternalStatusName(r.value(url(path)).status); };
    QCOMPARE(status("/ok"), QStringLiteral("ok"));
    QCOMPARE(status("/moved"), QStringLiteral("ok"));
    QCOMPARE(status("/gone"), QStringLiteral("broken"));
    QCOMPARE(status("/removed"), QStringLiteral("broken"));
    QCOMPARE(status("/nohead"), QStringLiteral("ok"));        // HEAD refused, GET fine
    QCOMPARE(status("/busy"), QStringLiteral("ok"));          // asked again after Retry-After
    QCOMPARE(status("/always-busy"), QStringLiteral("unverified"));
    QCOMPARE(status("/error"), QStringLiteral("unverified"));
    QCOMPARE(status("/private"), QStringLiteral("unverified"));
    QCOMPARE(status("/slow"), QStringLiteral("unverified"));  // time-out
    QCOMPARE(ExternalStatusName(r.value(QStringLiteral("http://127.0.0.1:1/closed")).status), QStringLiteral("unverified"));
    QCOMPARE(r.value(url("/gone")).httpCode, 404L);
    // The waits of Retry-After were honoured, and the slow one was cut off.
    QVERIFY2(timer.elapsed() >= 1000 && timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
}

void tst_ExternalCheck::perHostLimitHolds()
{
    // Ten slow answers from one host, two at a time: about five rounds.
    QStringList many;
    for (int i = 0; i < 10; ++i)
        many << url("/wait") + QString::number(i);
    ExternalCheckOptions o;
    o.perHost = 2;
    int calls = 0;
    o.progress = [&](int done, int total) { ++calls; return done > total; };
    QElapsedTimer timer;
    timer.start();
    const QHash<QString, ExternalResult> r = CheckExternalLinks(many, o);
    QCOMPARE(r.size(), 10);
    for (const ExternalResult &x : r)
        QCOMPARE(x.status, ExternalStatus::Ok);
    QCOMPARE(calls, 10);
    QVERIFY(timer.elapsed() >= 1400);
    // The server's own count of requests at a time.
    m_server.kill();
    m_server.waitForFinished();
    initTestCase();
    o.perHost = 3;
    for (auto &u : many)
        u.replace(QRegularExpression(QStringLiteral(":\\d+/")), QStringLiteral(":%1/").arg(QUrl(m_base).port()));
    CheckExternalLinks(many, o);
    QProcess fetch;
    fetch.start(QStringLiteral("python3"), {QStringLiteral("-c"),
        QStringLiteral("import urllib.request,sys;print(urllib.request.urlopen(sys.argv[1]).read().decode().split()[0])"),
        url("/stats")});
    QVERIFY(fetch.waitForFinished(10000));
    QCOMPARE(fetch.readAllStandardOutput().trimmed(), QByteArray("3"));
}

QTEST_GUILESS_MAIN(tst_ExternalCheck)
#include "tst_externalcheck.moc"
