#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/DroppedFile.h"
#include "documents/FileMenu.h"
#include "documents/RecentFiles.h"
#include "markup/TagPrimitives.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QtTest>

using namespace qly;
using documents::OpenDocumentFile;

// Opening files: the .bak copy, session entries, the open dialog, the
// recent list and files dropped onto a document.
class tst_FileOpen : public QObject
{
    Q_OBJECT
private slots:
    void backupCopies();
    void argumentForms_data();
    void argumentForms();
    void openDialogOpensAtMostFifty();
    void recentListRewritesOnlyTheFirstEntry();
    void shortenPath_data();
    void shortenPath();
    void droppedFiles_data();
    void droppedFiles();
};

void tst_FileOpen::backupCopies()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Create BAK Files"), QStringLiteral("Yes"));
    const QString page = env.write(QStringLiteral("site/page.htm"), "first");
    QVERIFY(OpenDocumentFile(page));
    QCOMPARE(env.read(QStringLiteral("site/page.bak")), QByteArray("first"));

    // The second open of the same file makes a second window and overwrites the copy.
    env.write(QStringLiteral("site/page.htm"), "second");
    QVERIFY(OpenDocumentFile(page));
    QCOMPARE(ws.count(), 2);
    QCOMPARE(env.read(QStringLiteral("site/page.bak")), QByteArray("second"));
    // The second window's caption carries the suffix ":2"; its name stays the path.
    QCOMPARE(ws.document(0)->caption(), page);
    QCOMPARE(ws.document(1)->caption(), page + QStringLiteral(":2"));
    QCOMPARE(ws.document(1)->ShowFileName, page);
    QCOMPARE(ws.document(1)->captionPath(), page);

    // A .bak opened is its own backup path: it is neither deleted nor copied.
    QVERIFY(OpenDocumentFile(env.path(QStringLiteral("site/page.bak"))));
    QCOMPARE(ws.document(2)->edit.Text(), QStringLiteral("second"));
    QCOMPARE(QDir(env.path(QStringLiteral("site"))).entryList(QDir::Files).size(), 2);
    QCOMPARE(prompts.shown.size(), 0);
}

void tst_FileOpen::argumentForms_data()
{
    QTest::addColumn<QString>("fileName");   // created in the temp dir; "" for none
    QTest::addColumn<QString>("suffix");     // appended to its path to form the argument
    QTest::addColumn<int>("state");          // -1: no window and "File not found."
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<int>("tab");
    const QRect fresh(0, 0, 7500, 6000);   // the fake window's own geometry
    QTest::newRow("one comma stays a path") << "a,b.htm" << "" << 0 << fresh << 0;
    QTest::newRow("four commas stay a path") << "1,2,3,4,5.htm" << "" << 0 << fresh << 0;
    QTest::newRow("session entry") << "s.htm" << ",0,9000,4500,300,450" << 0 << QRect(300, 450, 9000, 4500) << 0;
    QTest::newRow("entry with tab") << "s.htm" << ",0,9000,4500,30,45,1" << 0 << QRect(30, 45, 9000, 4500) << 1;
    QTest::newRow("maximized keeps its size") << "s.htm" << ",2,9000,4500,30,45" << 2 << fresh << 0;
    QTest::newRow("missing file") << "" << "gone.htm" << -1 << fresh << 0;
    QTest::newRow("missing file in entry") << "" << "gone.htm,0,1,2,3,4" << -1 << fresh << 0;
}

void tst_FileOpen::argumentForms()
{
    QFETCH(QString, fileName);
    QFETCH(QString, suffix);
    QFETCH(int, state);
    QFETCH(QRect, geometry);
    QFETCH(int, tab);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString path = fileName.isEmpty() ? env.dir() + u'/' : env.write(fileName, "<P>text</P>");

    QCOMPARE(OpenDocumentFile(path + suffix), state >= 0);
    if (state < 0) {
        QCOMPARE(ws.count(), 0);
        QCOMPARE(prompts.texts(), QStringList{env.path(QStringLiteral("gone.htm: File not found."))});
        QCOMPARE(prompts.shown[0].title, QStringLiteral("Quillery 4.01 - Error"));
        return;
    }
    test::FakeDocument *doc = ws.document(0);
    QCOMPARE(doc->LocalFileName, path);
    QCOMPARE(doc->caption(), path);
    QCOMPARE(doc->edit.Text(), QStringLiteral("<P>text</P>"));
    QCOMPARE(doc->windowState(), state);
    QCOMPARE(doc->geometryTwips(), geometry);
    QCOMPARE(doc->currentTab(), tab);
}

void tst_FileOpen::openDialogOpensAtMostFifty()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    QStringList files;
    for (int i = 0; i < 53; ++i)
        files << env.write(QStringLiteral("f%1.htm").arg(i), QByteArray::number(i));
    prompts.chooseFiles(files);
    documents::mnuOpen_Click();
    QVERIFY(prompts.fileRequests[0].multiple);
    QCOMPARE(ws.count(), 50);
    QCOMPARE(ws.document(49)->edit.Text(), QStringLiteral("49"));
}

void tst_FileOpen::recentListRewritesOnlyTheFirstEntry()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    QMap<int, QString> menu;
    documents::documentHooks().addRecentFile = [](const QString &p) { documents::AddRecentFile(p); };
    documents::recentFileView() = [&menu](int n, const QString &caption) { menu[n] = caption; };
    const QString section = QStringLiteral("Most Recent Files");
    core::WriteSetting(section, QStringLiteral("2"), QStringLiteral("/old/two.htm"));
    core::WriteSetting(section, QStringLiteral("4"), QStringLiteral("/old/four&more.htm"));
    for (const char *name : {"a.htm", "b.htm", "c.htm"})
        QVERIFY(OpenDocumentFile(env.write(QString::fromLatin1(name), "x")));
    documents::AddRecentFile(env.path(QStringLiteral("~qn12.htm")));   // temporary files are not listed
    documents::AddRecentFile(env.path(QStringLiteral("page.TMP")));

    QCOMPARE(core::ReadSetting(section, QStringLiteral("1")), env.path(QStringLiteral("c.htm")));
    QCOMPARE(core::ReadSetting(section, QStringLiteral("2")), QStringLiteral("/old/two.htm"));
    QCOMPARE(menu.value(2), QStringLiteral("&2 /old/two.htm"));
    QVERIFY(!menu.contains(3));   // an empty key leaves its entry as it is
    QCOMPARE(menu.value(4), QStringLiteral("&4 /old/four&&more.htm"));

    // An entry whose file has gone says so.
    QVERIFY(!documents::FileRecent_Click(2));
    QCOMPARE(prompts.texts().last(), QStringLiteral("/old/two.htm: File not found."));
    documents::documentHooks().addRecentFile = nullptr;
    documents::recentFileView() = nullptr;
}

void tst_FileOpen::shortenPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("shown");
    const QString fifty = QStringLiteral("C:\\") + QString(41, u'd') + QStringLiteral("\\a.htm");
    QTest::newRow("50 characters stay") << fifty << fifty;
    const QString deep = QStringLiteral("C:\\") + QString(42, u'd') + QStringLiteral("\\a.htm");
    QTest::newRow("no shorter by the rule: last 50") << deep << deep.right(50);
    QTest::newRow("drive path, backslashes")
        << QStringLiteral("C:\\Documents and Settings\\author\\My Webs\\site\\pages\\index.htm")
        << QStringLiteral("C:\\Documents and Settings\\..\\pages\\index.htm");
    QTest::newRow("drive path, slashes")
        << QStringLiteral("D:/Documents and Settings/author/My Webs/site/pages/index.htm")
        << QStringLiteral("D:/Documents and Settings/../pages/index.htm");
    const QString posix = QStringLiteral("/home/author/projects/websites/example/pages/index.htm");
    QTest::newRow("other long path: last 50") << posix << posix.right(50);
}

void tst_FileOpen::shortenPath()
{
    QFETCH(QString, path);
    QFETCH(QString, shown);
    QCOMPARE(documents::ShortenPath(path), shown);
}

void tst_FileOpen::droppedFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<int>("answer");   // to the question about other kinds; -1 none
    QTest::addColumn<QString>("inserted");
    QTest::newRow("page") << "sub/next.HTML" << "" << -1 << "<A HREF=\"sub/next.HTML\">next.HTML</A>";
    QTest::newRow("page wraps selection") << "other.shtml" << "click" << -1 << "<A HREF=\"other.shtml\">click</A>";
    QTest::newRow("image") << "../pics/p.jpg" << "" << -1 << "<IMG SRC=\"../pics/p.jpg\">";
    QTest::newRow("text file") << "notes.txt" << "old" << -1 << "text of notes.txt";
    QTest::newRow("other kind, link") << "d.csv" << "" << int(platform::Answer::Yes) << "<A HREF=\"d.csv\">d.csv</A>";
    QTest::newRow("other kind, open") << "d.csv" << "" << int(platform::Answer::No) << "";
}

void tst_FileOpen::droppedFiles()
{
    QFETCH(QString, file);
    QFETCH(QString, selection);
    QFETCH(int, answer);
    QFETCH(QString, inserted);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString dropped = env.write(QStringLiteral("site/") + file, "line one\r\nline two");
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("index.htm"), u'[' + selection + u']',
                                             env.path(QStringLiteral("site/index.htm")));
    doc->edit.SetSel(1, 1 + int(selection.size()));
    if (answer >= 0)
        prompts.answer(platform::Answer(answer));

    documents::documentHooks().insertTextFile = [](const QString &path) {
        markup::InsertMarkup(QStringLiteral("text of ") + core::FileNameOf(path), QString());
    };
    documents::txtDoc_DropFileOnMe(*doc, dropped);
    documents::documentHooks().insertTextFile = nullptr;
    QCOMPARE(doc->edit.Text(), u'[' + inserted + u']');
    QCOMPARE(prompts.shown.size(), answer >= 0 ? 1 : 0);
    QCOMPARE(ws.count(), answer == int(platform::Answer::No) ? 2 : 1);
}

QTEST_GUILESS_MAIN(tst_FileOpen)
#include "tst_fileopen.moc"
