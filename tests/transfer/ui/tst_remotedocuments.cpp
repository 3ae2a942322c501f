// Documents on an FTP server through the File menu's commands in the real
// main window, over a real server on 127.0.0.1: a page opened with "Open
// from Server" (a missing file first, then the password asked for), edited
// and saved back with Save and Save to Server; a local page sent with "Save to Server", and
// the message when no session is open.
#include "app/MainWindow.h"
#include "core/HistoryList.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "support/FtpTestServer.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/ui/frmOpenRemote.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace qly;
using transfer::ui::frmOpenRemote;

namespace {

void setField(QWidget *w, const char *name, const QString &text)
{
    auto *edit = w->findChild<QLineEdit *>(QString::fromLatin1(name));
    edit->clear();
    QTest::keyClicks(edit, text);
}

} // namespace

class tst_RemoteDocuments : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void openEditAndSaveBack();
    void saveLocalPageToServer();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_RemoteDocuments::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
    transfer::sharedSession().Quit();
    transfer::sharedSession().TimeoutSeconds = 10;
}

void tst_RemoteDocuments::cleanup()
{
    transfer::sharedSession().Quit();
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

void tst_RemoteDocuments::openEditAndSaveBack()
{
    m_env->write(QStringLiteral("server/www/page.htm"), "<p>old</p>\n");
    QLY_FTP_SERVER(server, m_env->path(QStringLiteral("server")));

    bool stayedAfterMissing = false;
    QString missingText;
    m_prompts->input(test::FtpTestServer::password());
    QTimer::singleShot(0, [&] {
        auto *w = m_main->findChild<frmOpenRemote *>(QStringLiteral("frmOpenRemote"));
        if (!w)
            return;
        w->findChild<QComboBox *>(QStringLiteral("cmbHost"))->setEditText(server.host());
        setField(w, "txtLoginAs", test::FtpTestServer::user());
        // No password: it is asked for.
        setField(w, "txtRemoteFile", QStringLiteral("www/missing.htm"));
        QTest::mouseClick(w->findChild<QPushButton *>(QStringLiteral("btnOpen")), Qt::LeftButton);
        stayedAfterMissing = w->isVisible();
        missingText = m_prompts->texts().join(u'|');
        setField(w, "txtRemoteFile", QStringLiteral("www/page.htm"));
        QTest::mouseClick(w->findChild<QPushButton *>(QStringLiteral("btnOpen")), Qt::LeftButton);
    });
    QVERIFY(m_main->commands().run(QStringLiteral("FileOpenRemote")));
    QVERIFY(stayedAfterMissing);
    QVERIFY2(missingText.contains(QStringLiteral("Could not open www/missing.htm from ") + server.host()),
             qPrintable(missingText));
    QVERIFY2(missingText.contains(QStringLiteral("Please enter the password for 'tester' to connect to ")
                                  + server.host()),
             qPrintable(missingText));
    QCOMPARE(core::ReadHistory(QStringLiteral("Web Servers Used")).value(0), server.host());

    documents::Document *doc = documents::Workspace::CurrentDocument();
    QVERIFY(doc);
    QVERIFY(doc->bRemote);
    QVERIFY(doc->ShowFileName.endsWith(QStringLiteral("/www/page.htm")));
    const QString temp = doc->LocalFileName;
    QVERIFY(QFileInfo(temp).fileName().startsWith(QStringLiteral("~qn")));
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<p>old</p>\n"));

    doc->txtDoc().setSelStart(0);
    doc->txtDoc().setSelText(QStringLiteral("<h1>new</h1>"));
    QVERIFY(m_main->commands().run(QStringLiteral("mnuSave")));
    QCOMPARE(m_env->read(QStringLiteral("server/www/page.htm")), QByteArray("<h1>new</h1><p>old</p>\n"));
    // The local copy stays while the document is open.
    QCOMPARE(m_env->read(temp), QByteArray("<h1>new</h1><p>old</p>\n"));

    // Save to Server with the session elsewhere asks; No keeps the page's place.
    transfer::sharedSession().ChangeDirectory(QStringLiteral("/"));
    doc->txtDoc().setSelStart(0);
    doc->txtDoc().setSelText(QStringLiteral("<!-- 2 -->"));
    m_prompts->answer(platform::Answer::No);
    QVERIFY(m_main->commands().run(QStringLiteral("FileSaveRemote")));
    QCOMPARE(m_prompts->shown.last().text,
             QStringLiteral("Would you like to save /www/page.htm as /page.htm\r\n  If you choose 'No' then the file "
                            "will be saved in its original location."));
    QCOMPARE(m_env->read(QStringLiteral("server/www/page.htm")),
             QByteArray("<!-- 2 --><h1>new</h1><p>old</p>\n"));
    QVERIFY(!QFile::exists(m_env->path(QStringLiteral("server/page.htm"))));
    QCOMPARE(m_prompts->unanswered, 0);
}

void tst_RemoteDocuments::saveLocalPageToServer()
{
    QDir().mkpath(m_env->path(QStringLiteral("server/www")));
    QLY_FTP_SERVER(server, m_env->path(QStringLiteral("server")));
    const QString local = m_env->write(QStringLiteral("local.htm"), "<p>here</p>\n");
    QVERIFY(documents::OpenDocumentFile(local));

    // No session yet.
    QVERIFY(m_main->commands().run(QStringLiteral("FileSaveRemote")));
    QCOMPARE(m_prompts->shown.size(), 1);
    QCOMPARE(m_prompts->shown.at(0).text,
             QStringLiteral("You must be connected to an FTP server before using this function."));
    QCOMPARE(m_prompts->shown.at(0).title, QStringLiteral("Not Connected To Web Server"));
    QVERIFY(!QFile::exists(m_env->path(QStringLiteral("server/www/local.htm"))));

    // Connected in "www": the page goes there under its own name.
    transfer::FtpClient &ftp = transfer::sharedSession();
    QVERIFY(transfer::ConnectToFtp(server.host(), test::FtpTestServer::user(), test::FtpTestServer::password(), ftp,
                                   QStringLiteral("www")));
    QVERIFY(m_main->commands().run(QStringLiteral("FileSaveRemote")));
    QCOMPARE(m_env->read(QStringLiteral("server/www/local.htm")), QByteArray("<p>here</p>\n"));
    QVERIFY(QFile::exists(local));
    QCOMPARE(m_prompts->unanswered, 0);
}

QTEST_MAIN(tst_RemoteDocuments)
#include "tst_remotedocuments.moc"
