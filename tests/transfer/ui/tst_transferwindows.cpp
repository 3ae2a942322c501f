// The upload and site download windows over a real FTP server on
// 127.0.0.1, reached through their commands in the real main window: a
// website with a linked picture sent by the Upload button, the login and
// project failures; the download window's checks, and a crawl that leaves
// the project and the log.
#include "app/MainWindow.h"
#include "core/HistoryList.h"
#include "core/ui/CommandTable.h"
#include "documents/DocumentList.h"
#include "transfer/FtpSession.h"
#include "support/FtpTestServer.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "transfer/FtpClient.h"
#include "transfer/SiteDownload.h"
#include "transfer/ui/frmAutoDown.h"
#include "transfer/ui/frmUpload.h"
#include "websites/Password.h"
#include "websites/ProjectFile.h"
#include "websites/WebsiteList.h"
#include "websites/Websites.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QPointer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace qly;
using transfer::ui::frmAutoDown;
using transfer::ui::frmUpload;

namespace {

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void put(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    if (f.open(QIODevice::WriteOnly))
        f.write(bytes);
}

QString text(const QWidget *w, const char *name)
{
    return w->findChild<QLabel *>(QString::fromLatin1(name))->text();
}

void click(const QWidget *w, const char *name)
{
    QTest::mouseClick(w->findChild<QPushButton *>(QString::fromLatin1(name)), Qt::LeftButton);
}

// A website project on the test server's directory "www" with the files
// given, and the server's login.
QString writeProject(const test::TestEnv &env, const test::FtpTestServer &server, const QStringList &files)
{
    QByteArray text = "[Details]\r\nName=Test Site\r\nHost=" + server.host().toUtf8()
                      + "\r\nDirectory=www\r\nLogin As=tester\r\nPassword="
                      + websites::ScramblePassword(test::FtpTestServer::password(), QStringLiteral("ENC")).toUtf8()
                      + "\r\n[Files]\r\n";
    for (qsizetype i = 0; i < files.size(); ++i)
        text += QByteArray::number(i) + '=' + files.at(i).toUtf8() + "\r\n";
    return env.write(QStringLiteral("site.prj"), text);
}

} // namespace

class tst_TransferWindows : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void uploadSendsWebsiteWithItsPictures();
    void closeStopsAnUpload();
    void downloadChecksItsFields();
    void downloadFetchesSiteIntoProject();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_TransferWindows::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
}

void tst_TransferWindows::cleanup()
{
    if (frmUpload *w = frmUpload::instance())
        delete w;
    websites::CloseAllWebsites();
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

void tst_TransferWindows::uploadSendsWebsiteWithItsPictures()
{
    QTemporaryDir root;
    QDir(root.path()).mkdir(QStringLiteral("www"));
    QLY_FTP_SERVER(server, root.path());
    const QByteArray gif = QByteArray("GIF89a") + QByteArray(4000, '\x02');
    const QString logo = m_env->write(QStringLiteral("site/logo.gif"), gif);
    const QByteArray indexText = "<html><body><img src=\"logo.gif\">\n<a href=\"about.htm\">About</a></body></html>\n";
    const QString index = m_env->write(QStringLiteral("site/index.htm"), indexText);
    const QString about = m_env->write(QStringLiteral("site/about.htm"), "<p>About <img src=logo.gif></p>\n");
    const QString prj = writeProject(*m_env, server, {index, about});
    QVERIFY(websites::OpenWebsite(prj));
    const int id = websites::WebsiteList::instance().CurrentWebsite();

    // Without a document window the list stays empty.
    QVERIFY(m_main->commands().run(QStringLiteral("mnuUploadProject")));
    frmUpload *w = frmUpload::instance();
    QVERIFY(w && w->isVisible() && !w->isModal());
    QCOMPARE(w->websiteId, id);
    QCOMPARE(text(w, "lblWebsiteName"), QStringLiteral("Test Site"));
    QCOMPARE(text(w, "lblHostDirName"), QStringLiteral("www"));
    QCOMPARE(text(w, "lblWebsite"), QStringLiteral("Website:"));
    auto *rows = w->findChild<QListWidget *>(QStringLiteral("lstFilesToSend"));
    QCOMPARE(rows->count(), 0);

    // With one: each page and, indented, the picture its links name (once
    // for each page's walk, but a repeated row is refused).
    QVERIFY(documents::OpenDocumentFile(index));
    QVERIFY(m_main->commands().run(QStringLiteral("ToolsUploadFiles")));
    QCOMPARE(frmUpload::instance(), w);
    QStringList shown;
    for (int i = 0; i < rows->count(); ++i)
        shown << rows->item(i)->text();
    QCOMPARE(shown, (QStringList{index + u'\t', QStringLiteral("   ") + logo + u'\t', about + u'\t'}));
    QCOMPARE(rows->item(1)->data(Qt::UserRole).toLongLong(), gif.size());

    click(w, "btnSend");
    QVERIFY(m_prompts->shown.isEmpty());
    QCOMPARE(readFile(root.path() + QStringLiteral("/www/index.htm")), indexText);
    QCOMPARE(readFile(root.path() + QStringLiteral("/www/logo.gif")), gif);
    QVERIFY(QFile::exists(root.path() + QStringLiteral("/www/about.htm")));
    QVERIFY(w->ftp().Connected());   // until Close
    QVERIFY(!w->findChild<QProgressBar *>(QStringLiteral("pbProgress"))->isVisible());
    QCOMPARE(text(w, "lblWhichFile"), QString());
    click(w, "btnClose");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!frmUpload::instance());

    // A wrong stored password: the window's own reading of the refusal.
    websites::WriteProjectValue(QStringLiteral("Details"), QStringLiteral("Password"),
                                websites::ScramblePassword(QStringLiteral("wrong"), QStringLiteral("ENC")), prj);
    w = &transfer::ui::ShowUpload(id, m_main.get());
    click(w, "btnSend");
    QVERIFY(!w->ftp().Connected());
    QVERIFY(!m_prompts->shown.isEmpty());
    QCOMPARE(m_prompts->shown.first().text, QStringLiteral("Error Code : 22047  Incorrect login name or password"));
    QVERIFY(m_prompts->shown.first().title.startsWith(QLatin1String("FTP Error : ")));
    QCOMPARE(text(w, "lblStatus"), QStringLiteral("Disconnected"));

    // The project file gone since the website was opened.
    QFile::remove(prj);
    m_prompts->shown.clear();
    click(w, "btnSend");
    QCOMPARE(m_prompts->texts(), QStringList{QStringLiteral("The project file could not be found")});
}

void tst_TransferWindows::closeStopsAnUpload()
{
    QTemporaryDir root;
    QDir(root.path()).mkdir(QStringLiteral("www"));
    // 100 kB a second: the picture would take forty seconds.
    QLY_FTP_SERVER(server, root.path(), {QStringLiteral("--read-limit"), QStringLiteral("100000")});
    m_env->write(QStringLiteral("site/big.gif"), QByteArray(4000000, 'g'));
    const QString index = m_env->write(QStringLiteral("site/index.htm"), "<img src=big.gif>\n");
    QVERIFY(websites::OpenWebsite(writeProject(*m_env, server, {index})));
    QVERIFY(documents::OpenDocumentFile(index));
    QVERIFY(m_main->commands().run(QStringLiteral("mnuUploadProject")));
    QPointer<frmUpload> w = frmUpload::instance();
    QCOMPARE(w->list().rows.size(), size_t(2));
    connect(&w->ftp(), &transfer::FtpClient::ftp_Progress, w, [&w](qint64 bytes) {
        if (bytes > 0 && w->sending())
            click(w, "btnClose");
    });
    QElapsedTimer clock;
    clock.start();
    click(w, "btnSend");
    QVERIFY(clock.elapsed() < 20000);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!w);
    QVERIFY(!frmUpload::instance());
    // No message about the transfers stopped.
    QCOMPARE(m_prompts->shown.size(), 0);
    QVERIFY(QFileInfo(root.path() + QStringLiteral("/www/big.gif")).size() < 4000000);
}

void tst_TransferWindows::downloadChecksItsFields()
{
    frmAutoDown w(m_main.get());
    w.show();
    click(&w, "btnFetch");
    QCOMPARE(m_prompts->shown.last().title, QStringLiteral("No Host Name"));
    QCOMPARE(m_prompts->shown.last().text, QStringLiteral("Please enter a host name for the site"));

    // A folder below a file can never be made.
    transfer::SiteDownloadFields f;
    f.host = QStringLiteral("ftp.example.com");
    f.saveDirectory = m_env->write(QStringLiteral("plain.txt"), "x") + QStringLiteral("/site");
    w.setFields(f);
    click(&w, "btnFetch");
    QVERIFY(m_prompts->shown.last().title.endsWith(QLatin1String(" Drive Is Not Valid")));

    // A relative folder hangs below the program's folder; making it is asked.
    f.saveDirectory = QStringLiteral("fetched/site");
    w.setFields(f);
    m_prompts->answer(platform::Answer::No);
    click(&w, "btnFetch");
    const QString made = m_env->path(QStringLiteral("fetched/site"));
    QCOMPARE(m_prompts->shown.last().title, QStringLiteral("Cannot find ") + made);
    QCOMPARE(m_prompts->shown.last().text, QStringLiteral("Save directory does not exist.  Create it now ?"));
    QCOMPARE(w.findChild<QLineEdit *>(QStringLiteral("txtsavedirectory"))->text(), made);
    QVERIFY(!QDir(made).exists());
    m_prompts->answer(platform::Answer::Yes);
    click(&w, "btnFetch");
    QVERIFY(QDir(made).exists());
    QCOMPARE(m_prompts->shown.last().text, QStringLiteral("Please enter a project name"));

    w.findChild<QLineEdit *>(QStringLiteral("txtprojectname"))->setText(QStringLiteral("Copy"));
    w.findChild<QLineEdit *>(QStringLiteral("txtLoginAs"))->setText(QStringLiteral("me"));
    click(&w, "btnFetch");
    QCOMPARE(m_prompts->shown.last().title, QStringLiteral("No Login Name"));
    QCOMPARE(m_prompts->shown.last().text, QStringLiteral("Please enter a password for 'me'"));
    QCOMPARE(w.findChild<QLineEdit *>(QStringLiteral("txtPassword"))->echoMode(), QLineEdit::Password);
    QCOMPARE(m_prompts->unanswered, 0);
}

void tst_TransferWindows::downloadFetchesSiteIntoProject()
{
    QTemporaryDir root;
    put(root.path() + QStringLiteral("/www/index.htm"),
        "<html><body><img src=\"pic.gif\"><img src=\"missing.gif\"><a href=\"sub/two.htm\">2</a></body></html>\n");
    put(root.path() + QStringLiteral("/www/sub/two.htm"), "<a href=\"../index.htm\">home</a>\n");
    put(root.path() + QStringLiteral("/www/pic.gif"), QByteArray("GIF89a") + QByteArray(2000, '\x03'));
    QLY_FTP_SERVER(server, root.path());
    transfer::sharedSession().TimeoutSeconds = 10;

    const QString save = m_env->path(QStringLiteral("copy"));
    QDir().mkpath(save);
    QString status;
    QString history;
    // The dialog is modal: the work is done while it shows.
    QTimer::singleShot(0, [&] {
        auto *w = m_main->findChild<frmAutoDown *>(QStringLiteral("frmAutoDown"));
        if (!w)
            return;
        w->findChild<QComboBox *>(QStringLiteral("cmbHost"))->setEditText(server.host());
        QTest::keyClicks(w->findChild<QLineEdit *>(QStringLiteral("txtRemoteDirectory")), QStringLiteral("www"));
        QTest::keyClicks(w->findChild<QLineEdit *>(QStringLiteral("txtLoginAs")), test::FtpTestServer::user());
        QTest::keyClicks(w->findChild<QLineEdit *>(QStringLiteral("txtPassword")), test::FtpTestServer::password());
        QTest::keyClicks(w->findChild<QLineEdit *>(QStringLiteral("txtIndexURL")), QStringLiteral("index.htm"));
        QTest::keyClicks(w->findChild<QLineEdit *>(QStringLiteral("txtsavedirectory")), save);
        QTest::keyClicks(w->findChild<QLineEdit *>(QStringLiteral("txtprojectname")), QStringLiteral("Copy"));
        click(w, "btnFetch");
        status = text(w, "lblStatus");
        history = core::ReadHistory(QStringLiteral("Web Servers Used")).value(0);
        click(w, "btnClose");
    });
    QVERIFY(m_main->commands().run(QStringLiteral("ToolsDownload")));
    QCOMPARE(status, QStringLiteral("Finished"));
    QCOMPARE(history, server.host());
    QCOMPARE(readFile(save + QStringLiteral("/pic.gif")), readFile(root.path() + QStringLiteral("/www/pic.gif")));
    QVERIFY(QFile::exists(save + QStringLiteral("/sub/two.htm")));
    const QString prj = save + QStringLiteral("/Copy.prj");
    QCOMPARE(websites::ReadProjectValue(prj, QStringLiteral("Details"), QStringLiteral("Name")), QStringLiteral("Copy"));
    QCOMPARE(websites::ReadProjectFiles(prj),
             (QStringList{save + QStringLiteral("/index.htm"), save + QStringLiteral("/sub/two.htm")}));
    QCOMPARE(readFile(save + QStringLiteral("/Autodownload.log")), QByteArray("Couldn't get: missing.gif\r\n"));
    // The new project opens as a website.
    QVERIFY(websites::OpenWebsite(prj));
}

QTEST_MAIN(tst_TransferWindows)
#include "tst_transferwindows.moc"
