// Uploads and remote documents against a real FTP server on 127.0.0.1:
// the rows of an upload, a folder of pages and images, only changed files,
// a refused directory, the password prompt, the error texts, and a
// document that is saved back to its server.
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "support/FakeWorkspace.h"
#include "support/FtpTestServer.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/RemoteDocuments.h"
#include "transfer/UploadList.h"
#include "transfer/Uploader.h"

#include <QFile>
#include <QTest>

using namespace qly;
using namespace qly::transfer;

namespace {

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void setUp(FtpClient &ftp, const test::FtpTestServer &server)
{
    ftp.HostName = server.host();
    ftp.UserName = test::FtpTestServer::user();
    ftp.password = test::FtpTestServer::password();
    ftp.TimeoutSeconds = 10;
}

} // namespace

class tst_upload : public QObject
{
    Q_OBJECT

private slots:
    void rows();
    void folderWithImages();
    void refusedDirectoryAndLogin();
    void errorTexts();
    void remoteDocumentSavesBack();
};

void tst_upload::rows()
{
    test::TestEnv env;
    QCOMPARE(UploadList::StripLocation(QStringLiteral("/site/a.htm:25")), QStringLiteral("/site/a.htm"));
    QCOMPARE(UploadList::StripLocation(QStringLiteral("/site/a:b.htm")), QStringLiteral("/site/a:b.htm"));
    QCOMPARE(UploadList::StripLocation(QStringLiteral("C:\\site\\a.htm:3")), QStringLiteral("C:\\site\\a.htm"));

    const QString page = env.write(QStringLiteral("a.htm"), "<p>a</p>\n");
    UploadList list;
    QStringList asked;
    UploadList::collectLinkedFiles() = [&](UploadList &l, const QString &file, const QString &attribute) {
        asked << attribute;
        if (attribute == QLatin1String("src=") && file == page)
            l.AddLinkedFile(file);   // the page itself, found through a link: a second, indented row
    };
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Parse For"), QStringLiteral("src,,href"));
    list.AddFileToSend(page + QStringLiteral(":12"));
    list.AddFileToSend(page);   // the same row again: refused, and no second walk
    list.AddFileToSend(env.path(QStringLiteral("gone.gif")));
    UploadList::collectLinkedFiles() = nullptr;
    // The page's links and the missing file's (its row is new), once each.
    QCOMPARE(asked, (QStringList{QStringLiteral("src="), QStringLiteral("href="), QStringLiteral("src="),
                                 QStringLiteral("href=")}));
    QCOMPARE(list.rows.size(), size_t(3));
    QCOMPARE(list.rows[0].text, page + u'\t');
    QCOMPARE(list.rows[1].text, QStringLiteral("   ") + page + u'\t');
    QCOMPARE(list.rows[2].text, QStringLiteral("ERROR: File not found\t"));
    QCOMPARE(list.rows[2].size, 0);
    QCOMPARE(list.GetTotalBytes(), 18);
}

void tst_upload::folderWithImages()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QTemporaryDir root;
    QDir(root.path()).mkdir(QStringLiteral("www"));
    QLY_FTP_SERVER(server, root.path());

    UploadList list;
    QHash<QString, QByteArray> files;
    for (int i = 0; i < 12; ++i) {
        const QString name = QStringLiteral("page %1.htm").arg(i);
        files[name] = QStringLiteral("<html><body><img src=\"pic%1.gif\"></body></html>\n").arg(i).toUtf8();
        list.AddFileToSend(env.write(name, files[name]));
        QByteArray gif("GIF89a");
        gif += QByteArray(5000 + i * 100, char(i));
        files[QStringLiteral("pic%1.gif").arg(i)] = gif;
        list.AddFileToSend(env.write(QStringLiteral("pic%1.gif").arg(i), gif));
    }
    list.AddFileToSend(env.path(QStringLiteral("missing.gif")));
    FtpClient ftp;
    ftp.TimeoutSeconds = 10;
    Uploader up(ftp, list);
    QStringList status;
    int lastFiles = 0;
    int lastPercent = 0;
    connect(&up, &Uploader::status, [&](const QString &s) { status << s; });
    connect(&up, &Uploader::progress, [&](int percent, qint64, qint64, int done, int) {
        lastFiles = done;
        lastPercent = percent;
    });
    const auto connectTyped = [&] {
        return ConnectToFtp(server.host(), test::FtpTestServer::user(), test::FtpTestServer::password(), ftp);
    };
    QVERIFY(up.Send(connectTyped, QStringLiteral("www")));
    QCOMPARE(up.base(), QStringLiteral("/www"));
    QCOMPARE(up.sent(), 24);
    QVERIFY(up.failed().isEmpty());
    QCOMPARE(lastFiles, 24);
    QCOMPARE(lastPercent, 100);
    QVERIFY(status.contains(QStringLiteral("Creating Remote Directories")));
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        QCOMPARE(readFile(root.path() + QStringLiteral("/www/") + it.key()), it.value());
    QCOMPARE(QDir(root.path() + QStringLiteral("/www")).entryList(QDir::Files).size(), 24);
    QVERIFY(prompts.shown.isEmpty());

    // Again, only what changed: one page rewritten with a later time.
    QTest::qWait(1100);
    files[QStringLiteral("page 3.htm")] = "<html><body>new</body></html>\n";
    env.write(QStringLiteral("page 3.htm"), files[QStringLiteral("page 3.htm")]);
    up.onlyChanged = true;
    up.SendFiles();
    QCOMPARE(up.sent(), 1);
    QCOMPARE(up.skipped(), 23);
    QCOMPARE(readFile(root.path() + QStringLiteral("/www/page 3.htm")), files[QStringLiteral("page 3.htm")]);
}

void tst_upload::refusedDirectoryAndLogin()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QTemporaryDir root;
    QDir(root.path()).mkdir(QStringLiteral("locked"));
    QLY_FTP_SERVER(server, root.path(), {QStringLiteral("--locked"), QStringLiteral("locked")});
    FtpClient ftp;
    ftp.TimeoutSeconds = 10;

    // No stored password: asked for; cancelling the question connects nothing.
    prompts.input(std::nullopt);
    QVERIFY(!ConnectToFtp(server.host(), QStringLiteral("tester"), QString(), ftp));
    QVERIFY(prompts.unanswered == 0);
    // A wrong one typed in: the login fails with the message.
    prompts.input(QStringLiteral("wrong"));
    QVERIFY(!ConnectToFtp(server.host(), QStringLiteral("tester"), QString(), ftp, QStringLiteral("locked")));
    QVERIFY(prompts.texts().contains(
        QStringLiteral("Couldn't log in.  Please check that the Login and Password are correct.")));
    QCOMPARE(ftp.LastError, 0);

    QVERIFY(ConnectToFtp(server.host(), QStringLiteral("tester"), QStringLiteral("secret"), ftp,
                         QStringLiteral("locked")));
    QCOMPARE(ftp.RemoteDir, QStringLiteral("/locked"));
    // The same host again: nothing asked, nothing changed.
    QVERIFY(ConnectToFtp(server.host(), QStringLiteral("x"), QString(), ftp, QStringLiteral("/")));
    QCOMPARE(ftp.RemoteDir, QStringLiteral("/locked"));

    // A row for a directory the server refuses to make ends the upload.
    UploadList list;
    list.rows.push_back({env.write(QStringLiteral("a.htm"), "a\n") + QStringLiteral("\tpics"), 2});
    list.rows.push_back({env.path(QStringLiteral("a.htm")) + QStringLiteral("\tdeep/pics"), 2});
    Uploader up(ftp, list);
    prompts.shown.clear();
    QVERIFY(!up.Send([] { return true; }, QString()));
    QVERIFY(prompts.texts().contains(QStringLiteral("Unable to create directory pics")));
    QVERIFY(!ftp.Connected());
    QVERIFY(!QDir(root.path() + QStringLiteral("/locked/pics")).exists());
}

void tst_upload::errorTexts()
{
    test::TestEnv env;
    FtpClient ftp;
    ftp.RemoteDir = QStringLiteral("/www");
    ftp.RemoteFile = QStringLiteral("a.htm");
    ftp.LocalFile = QStringLiteral("/home/me/a.htm");
    FtpErrorReport r = uploadErrorReport(ErrPermission, QStringLiteral("curl"), ftp);
    QVERIFY(r.box);
    QCOMPARE(r.text, QStringLiteral("Error Code : 22051  Permission Denied - You cannot do that command in this "
                                    "directory.  Please check your 'Write Access' before trying again."));
    QVERIFY(r.title.startsWith(QLatin1String("FTP Error : ")));
    r = uploadErrorReport(ErrRemoteName, QString(), ftp);
    QCOMPARE(r.status,
             QStringLiteral("A problem occurred with a remote directory name.  The current directory is now /www"));
    r = uploadErrorReport(ErrNotConnected, QStringLiteral("x"), ftp);
    QVERIFY(!r.box);
    QCOMPARE(r.status, QStringLiteral("Tried to disconnect while not connected ..."));

    r = mainErrorReport(ErrTimedOut, QString(), ftp);
    QCOMPARE(r.text, QStringLiteral("Operation timed out."));
    QCOMPARE(r.icon, platform::Icon::Exclamation);
    r = mainErrorReport(ErrRemoteName, QString(), ftp);
    QVERIFY(!r.box);
    QCOMPARE(r.status, QStringLiteral("Error in FTP filename.  Remote - a.htm Local - /home/me/a.htm"));
    r = mainErrorReport(ErrLogin, QString(), ftp);
    QCOMPARE(r.text, QStringLiteral("FTP Server did not allow a connection."));
    r = mainErrorReport(ErrConnectionLost, QStringLiteral("Recv failure"), ftp);
    QCOMPARE(r.text, QStringLiteral("22030 Recv failure"));
    QCOMPARE(r.icon, platform::Icon::Information);
}

void tst_upload::remoteDocumentSavesBack()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    QTemporaryDir root;
    QDir(root.path()).mkdir(QStringLiteral("site"));
    QFile page(root.path() + QStringLiteral("/site/index.htm"));
    QVERIFY(page.open(QIODevice::WriteOnly));
    page.write("<p>old</p>\n");
    page.close();
    installRemoteDocumentHooks();
    QString tempFile;
    {
        QLY_FTP_SERVER(server, root.path());
        FtpClient &ftp = sharedSession();
        setUp(ftp, server);
        ftp.setAction(FtpClient::Connect);
        ftp.ChangeDirectory(QStringLiteral("site"));
        QVERIFY(OpenRemoteDocument(ftp, QStringLiteral("index.htm")));
        documents::Document *doc = documents::Workspace::CurrentDocument();
        QVERIFY(doc && doc->bRemote);
        QCOMPARE(doc->ShowFileName, QStringLiteral("ftp://") + server.host() + QStringLiteral("/site/index.htm"));
        tempFile = doc->LocalFileName;
        QVERIFY(QFileInfo(tempFile).fileName().startsWith(QLatin1String("~qn")));
        QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<p>old</p>\n"));

        doc->txtDoc().setText(QStringLiteral("<p>new</p>\n"));
        QVERIFY(doc->Save());
        QCOMPARE(readFile(root.path() + QStringLiteral("/site/index.htm")), QByteArray("<p>new</p>\n"));
        QVERIFY(!doc->txtDoc().Dirty());

        // The server goes away: the save fails, the document stays changed,
        // and closing it keeps the local copy until the user lets it go.
        doc->txtDoc().setText(QStringLiteral("<p>newer</p>\n"));
        doc->txtDoc().setDirty(true);
        ftp.Quit();
    }
    documents::Document *doc = documents::Workspace::CurrentDocument();
    sharedSession().TimeoutSeconds = 3;
    QVERIFY(!doc->Save());
    QVERIFY(prompts.texts().contains(
        QStringLiteral("Couldn't log in.  Please check that the Login and Password are correct.")));
    QVERIFY(doc->txtDoc().Dirty());
    QCOMPARE(readFile(tempFile), QByteArray("<p>newer</p>\n"));
    QCOMPARE(readFile(root.path() + QStringLiteral("/site/index.htm")), QByteArray("<p>new</p>\n"));
    prompts.answer(platform::Answer::Cancel);
    QVERIFY(documents::DocumentCloseQuery(*doc));
    QVERIFY(QFile::exists(tempFile));
    documents::documentHooks().sendRemote = nullptr;
    documents::documentHooks().saveRemote = nullptr;
    QFile::remove(tempFile);
}

QTEST_GUILESS_MAIN(tst_upload)
#include "tst_upload.moc"
