// Site download from a real FTP server on 127.0.0.1: the crawl reproduces
// the served site, logs what is missing, and writes the new project; and
// the dialog's checks.
#include "core/Settings.h"
#include "support/FtpTestServer.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "transfer/FtpClient.h"
#include "transfer/SiteDownload.h"

#include <QFile>
#include <QTest>

using namespace qly;
using namespace qly::transfer;

namespace {

void put(const QString &root, const QString &name, const QByteArray &bytes)
{
    const QString path = root + u'/' + name;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class tst_sitedownload : public QObject
{
    Q_OBJECT

private slots:
    void crawlReproducesSite();
    void checks();
};

void tst_sitedownload::crawlReproducesSite()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QTemporaryDir root;
    const QString site = root.path() + QStringLiteral("/www");
    put(site, QStringLiteral("index.htm"),
        "<html><body background=\"bg.jpg\">\n"
        "<a href=\"index.htm#top\">me</a> <a href=\"sub/page2.htm\">two</a> <a href=\"mailto:a@b.c\">mail</a>\n"
        "<a href=\"http://elsewhere.example/x.htm\">out</a> <img src=\"pic.gif\"> <img src=\"missing.gif\">\n"
        "<applet code=\"Anim\" width=10><param name=images value=\"f1.gif,f2.gif\"></applet>\n"
        "</body></html>\n");
    put(site, QStringLiteral("sub/page2.htm"),
        "<a href=\"../index.htm\">home</a><img src=\"img/deep.jpg\"><a href=\"gone.htm\">x</a>\n");
    const QByteArray gif = QByteArray("GIF89a") + QByteArray(3000, '\x01');
    for (const char *name : {"bg.jpg", "pic.gif", "Anim.class", "f1.gif", "f2.gif", "sub/img/deep.jpg"})
        put(site, QString::fromLatin1(name), gif);
    QLY_FTP_SERVER(server, root.path());

    SiteDownloadFields f;
    f.host = server.host();
    f.login = test::FtpTestServer::user();
    f.password = test::FtpTestServer::password();
    f.remoteDirectory = QStringLiteral("www");
    f.indexUrl = QStringLiteral("index.htm");
    f.saveDirectory = env.path(QStringLiteral("copy"));
    f.projectName = QStringLiteral("Copy");
    QDir().mkpath(f.saveDirectory);
    QCOMPARE(validateSiteDownload(f), QString());

    FtpClient ftp;
    ftp.TimeoutSeconds = 10;
    SiteDownload run(ftp, f);
    int pagesDone = 0;
    connect(&run, &SiteDownload::progress, [&](int done, int, int) { pagesDone = done; });
    run.run();
    QVERIFY(!run.cancelled());

    for (const char *name : {"index.htm", "sub/page2.htm", "bg.jpg", "pic.gif", "Anim.class", "f1.gif", "f2.gif",
                             "sub/img/deep.jpg"})
        QCOMPARE(readFile(f.saveDirectory + u'/' + QString::fromLatin1(name)),
                 readFile(site + u'/' + QString::fromLatin1(name)));
    // The page linking to itself, the mail link: not queued; the outside page queued, not fetched.
    QCOMPARE(run.pages(), (QStringList{QStringLiteral("sub/page2.htm"),
                                       QStringLiteral("http://elsewhere.example/x.htm"),
                                       QStringLiteral("sub/gone.htm")}));
    QCOMPARE(pagesDone, 3);
    QCOMPARE(readFile(run.logFile()), QByteArray("Couldn't get: missing.gif\r\nCouldn't get: sub/gone.htm\r\n"));
    QCOMPARE(run.failures(), 2);
    const QString prj = run.projectFile();
    QCOMPARE(core::ReadSetting(QStringLiteral("Details"), QStringLiteral("Name"), prj), QStringLiteral("Copy"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Files"), QStringLiteral("0"), prj), f.saveDirectory + QStringLiteral("/index.htm"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Files"), QStringLiteral("1"), prj),
             f.saveDirectory + QStringLiteral("/sub/page2.htm"));
    QVERIFY(core::ReadSetting(QStringLiteral("Details"), QStringLiteral("Host"), prj).isEmpty());
    // No part file of a download stays behind.
    QCOMPARE(QDir(f.saveDirectory).entryList(QDir::Files | QDir::Hidden).size(), 8);

    // Again without images and without overwriting: nothing new is fetched,
    // the pages on disk are still read.
    f.fetchImages = false;
    QFile::remove(f.saveDirectory + QStringLiteral("/pic.gif"));
    SiteDownload again(ftp, f);
    again.run();
    QVERIFY(!QFile::exists(f.saveDirectory + QStringLiteral("/pic.gif")));
    QVERIFY(again.files().contains(QStringLiteral("pic.gif")));
}

void tst_sitedownload::checks()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    SiteDownloadFields f;
    QCOMPARE(validateSiteDownload(f), QStringLiteral("cmbHost"));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("No Host Name"));
    f.host = QStringLiteral("ftp.example.com");
    QCOMPARE(validateSiteDownload(f), QStringLiteral("txtsavedirectory"));
    QVERIFY(prompts.shown.last().title.endsWith(QLatin1String(" Drive Is Not Valid")));
    f.saveDirectory = env.path(QStringLiteral("new/place"));
    prompts.answer(platform::Answer::No);
    QCOMPARE(validateSiteDownload(f), QStringLiteral("txtsavedirectory"));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Save directory does not exist.  Create it now ?"));
    prompts.answer(platform::Answer::Yes);
    QCOMPARE(validateSiteDownload(f), QStringLiteral("txtprojectname"));
    QVERIFY(QDir(f.saveDirectory).exists());
    f.projectName = QStringLiteral("p");
    f.login = QStringLiteral("me");
    QCOMPARE(validateSiteDownload(f), QStringLiteral("txtPassword"));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Please enter a password for 'me'"));
    f.password = QStringLiteral("pw");
    QCOMPARE(validateSiteDownload(f), QStringLiteral("txtIndexURL"));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("No URL Was Specified"));
}

QTEST_GUILESS_MAIN(tst_sitedownload)
#include "tst_sitedownload.moc"
