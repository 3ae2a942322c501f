#include "core/Globals.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/DroppedFile.h"
#include "documents/FileMenu.h"
#include "documents/RecentFiles.h"
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
    void init();
    void cleanup();
    void backupCopies();
    void argumentForms_data();
    void argumentForms();
    void missingFileIsTold();
    void openDialogOpensInOrder();
    void recentListRewritesOnlyTheFirstEntry();
    void shortenPath_data();
    void shortenPath();
    void droppedFiles_data();
    void droppedFiles();
    void droppedOtherFileAsks();

private:
    QMap<int, QString> m_menu;
};

void tst_FileOpen::init()
{
    m_menu.clear();
    documents::documentHooks().addRecentFile = [](const QString &p) { documents::AddRecentFile(p); };
    documents::recentFileView() = [this](int n, const QString &caption) { m_menu[n] = caption; };
}

void tst_FileOpen::cleanup()
{
    documents::documentHooks().addRecentFile = nullptr;
    documents::recentFileView() = nullptr;
}

void tst_FileOpen::backupCopies()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Create BAK Files"), QStringLiteral("Yes"));
    const QString page = env.write(QStringLiteral("site/page.htm"), "first\r\n");

    QVERIFY(OpenDocumentFile(page));
    QCOMPARE(env.read(QStringLiteral("site/page.bak")), QByteArray("first\r\n"));
    QVERIFY(!core::gLoadingDocument);

    // The second open of the same file overwrites the copy and makes a second window.
    env.write(QStringLiteral("site/page.htm"), "second\r\n");
    QVERIFY(OpenDocumentFile(page));
    QCOMPARE(ws.count(), 2);
    QCOMPARE(env.read(QStringLiteral("site/page.bak")), QByteArray("second\r\n"));

    // A .bak opened is its own backup path: it is neither deleted nor copied.
    const QString bak = env.path(QStringLiteral("site/page.bak"));
    QVERIFY(OpenDocumentFile(bak));
    QCOMPARE(env.read(QStringLiteral("site/page.bak")), QByteArray("second\r\n"));
    QCOMPARE(ws.document(2)->edit.Text(), QStringLiteral("second\r\n"));
    QCOMPARE(QDir(env.path(QStringLiteral("site"))).entryList(QDir::Files).size(), 2);

    // With the setting off, no copy is made.
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Create BAK Files"), QStringLiteral("No"));
    const QString other = env.write(QStringLiteral("site/other.htm"), "x");
    QVERIFY(OpenDocumentFile(other));
    QVERIFY(!QFile::exists(env.path(QStringLiteral("site/other.bak"))));
    QCOMPARE(prompts.shown.size(), 0);
}

void tst_FileOpen::argumentForms_data()
{
    QTest::addColumn<QString>("fileName");   // created in the temp dir
    QTest::addColumn<QString>("suffix");     // appended to its path to form the argument
    QTest::addColumn<int>("state");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<int>("tab");

    const QRect fresh(0, 0, 7500, 6000);   // the fake window's own geometry
    QTest::newRow("plain path") << "page.htm" << "" << 0 << fresh << 0;
    QTest::newRow("one comma stays a path") << "a,b.htm" << "" << 0 << fresh << 0;
    QTest::newRow("four commas stay a path") << "1,2,3,4,5.htm" << "" << 0 << fresh << 0;
    QTest::newRow("session entry") << "s.htm" << ",0,9000,4500,300,450" << 0 << QRect(300, 450, 9000, 4500) << 0;
    QTest::newRow("session entry with tab") << "s.htm" << ",0,9000,4500,30,45,1" << 0 << QRect(30, 45, 9000, 4500) << 1;
    QTest::newRow("maximized keeps its size") << "s.htm" << ",2,9000,4500,30,45" << 2 << fresh << 0;
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
    const QString path = env.write(fileName, "<P>text</P>");

    QVERIFY(OpenDocumentFile(path + suffix));
    QCOMPARE(prompts.shown.size(), 0);
    QCOMPARE(ws.count(), 1);
    test::FakeDocument *doc = ws.document(0);
    QCOMPARE(doc->LocalFileName, path);
    QCOMPARE(doc->caption(), path);
    QCOMPARE(doc->edit.Text(), QStringLiteral("<P>text</P>"));
    QCOMPARE(doc->windowState(), state);
    QCOMPARE(doc->geometryTwips(), geometry);
    QCOMPARE(doc->currentTab(), tab);
    QVERIFY(!doc->edit.Dirty());
}

void tst_FileOpen::missingFileIsTold()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString gone = env.path(QStringLiteral("gone.htm"));
    QVERIFY(!OpenDocumentFile(gone));
    QVERIFY(!OpenDocumentFile(gone + QStringLiteral(",0,1,2,3,4")));
    // A session entry with an empty path ends quietly.
    QVERIFY(!OpenDocumentFile(QStringLiteral(",0,1,2,3,4")));
    QCOMPARE(ws.count(), 0);
    QCOMPARE(prompts.texts(), QStringList({gone + QStringLiteral(": File not found."),
                                           gone + QStringLiteral(": File not found.")}));
    QCOMPARE(prompts.shown.first().title, QStringLiteral("Quillery 4.01 - Error"));

}

void tst_FileOpen::openDialogOpensInOrder()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"), QStringLiteral("html"));
    QStringList files;
    for (int i = 0; i < 53; ++i)
        files << env.write(QStringLiteral("f%1.htm").arg(i), QByteArray::number(i));

    prompts.chooseNothing();
    documents::mnuOpen_Click();
    QCOMPARE(ws.count(), 0);
    const platform::FileRequest &r = prompts.fileRequests.first();
    QCOMPARE(r.title, QStringLiteral("Open File"));
    QCOMPARE(r.filterIndex, 2);
    QCOMPARE(r.defaultSuffix, QStringLiteral("html"));
    QVERIFY(r.multiple);

    // The answer holds at most 50 files; they open in the order chosen.
    prompts.chooseFiles(files);
    documents::mnuOpen_Click();
    QCOMPARE(ws.count(), 50);
    QCOMPARE(ws.document(0)->LocalFileName, files.at(0));
    QCOMPARE(ws.document(49)->LocalFileName, files.at(49));
    QCOMPARE(ws.document(49)->edit.Text(), QStringLiteral("49"));
}

void tst_FileOpen::recentListRewritesOnlyTheFirstEntry()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString section = QStringLiteral("Most Recent Files");
    core::WriteSetting(section, QStringLiteral("2"), QStringLiteral("/old/two.htm"));
    core::WriteSetting(section, QStringLiteral("4"), QStringLiteral("/old/four&more.htm"));
    const QString a = env.write(QStringLiteral("a.htm"), "a");
    const QString b = env.write(QStringLiteral("b.htm"), "b");
    const QString c = env.write(QStringLiteral("c.htm"), "c");
    for (const QString &p : {a, b, c})
        QVERIFY(OpenDocumentFile(p));

    QCOMPARE(core::ReadSetting(section, QStringLiteral("1")), c);
    QCOMPARE(core::ReadSetting(section, QStringLiteral("2")), QStringLiteral("/old/two.htm"));
    QCOMPARE(core::ReadSetting(section, QStringLiteral("3")), QString());
    QCOMPARE(core::ReadSetting(section, QStringLiteral("4")), QStringLiteral("/old/four&more.htm"));
    QCOMPARE(m_menu.value(1), QStringLiteral("&1 ") + documents::ShortenPath(c));
    QCOMPARE(m_menu.value(2), QStringLiteral("&2 /old/two.htm"));
    QVERIFY(!m_menu.contains(3));   // an empty key leaves its entry as it is
    QCOMPARE(m_menu.value(4), QStringLiteral("&4 /old/four&&more.htm"));

    // Temporary files are not listed.
    documents::AddRecentFile(env.path(QStringLiteral("~qn12.htm")));
    documents::AddRecentFile(env.path(QStringLiteral("page.TMP")));
    QCOMPARE(core::ReadSetting(section, QStringLiteral("1")), c);

    // An entry opens its file; one whose file has gone says so.
    QVERIFY(documents::FileRecent_Click(1));
    QCOMPARE(ws.count(), 4);
    QVERIFY(!documents::FileRecent_Click(2));
    QCOMPARE(prompts.texts().last(), QStringLiteral("/old/two.htm: File not found."));
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
    QTest::addColumn<QString>("inserted");
    QTest::newRow("page") << "sub/next.HTML" << "" << "<A HREF=\"sub/next.HTML\">next.HTML</A>";
    QTest::newRow("page wraps selection") << "other.shtml" << "click" << "<A HREF=\"other.shtml\">click</A>";
    QTest::newRow("image") << "img/logo.gif" << "" << "<IMG SRC=\"img/logo.gif\">";
    QTest::newRow("sibling directory") << "../pics/p.jpg" << "" << "<IMG SRC=\"../pics/p.jpg\">";
    QTest::newRow("text file") << "notes.txt" << "old" << "line one\r\nline two";
}

void tst_FileOpen::droppedFiles()
{
    QFETCH(QString, file);
    QFETCH(QString, selection);
    QFETCH(QString, inserted);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString dropped = env.write(QStringLiteral("site/") + file, "line one\r\nline two");
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("index.htm"), QStringLiteral("[") + selection + u']',
                                             env.path(QStringLiteral("site/index.htm")));
    doc->edit.setDirty(false);
    doc->edit.SetSel(1, 1 + int(selection.size()));

    documents::txtDoc_DropFileOnMe(*doc, dropped);
    QCOMPARE(doc->edit.Text(), u'[' + inserted + u']');
    QVERIFY(doc->edit.Dirty());
    QCOMPARE(prompts.shown.size(), 0);
}

void tst_FileOpen::droppedOtherFileAsks()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString data = env.write(QStringLiteral("data.csv"), "1,2");
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("Untitled-1"), QString());

    prompts.answer(platform::Answer::Yes);
    documents::txtDoc_DropFileOnMe(*doc, data);
    QCOMPARE(doc->edit.Text(), QStringLiteral("<A HREF=\"") + QUrl::fromLocalFile(data).toString()
                                   + QStringLiteral("\">data.csv</A>"));
    prompts.answer(platform::Answer::No);
    documents::txtDoc_DropFileOnMe(*doc, data);
    QCOMPARE(ws.count(), 2);
    QCOMPARE(ws.document(1)->edit.Text(), QStringLiteral("1,2"));
    prompts.answer(platform::Answer::Cancel);
    documents::txtDoc_DropFileOnMe(*doc, data);
    QCOMPARE(ws.count(), 2);
    QCOMPARE(prompts.shown.size(), 3);
    QVERIFY(prompts.shown.first().text.startsWith(QStringLiteral("Insert a link to data.csv?")));
}

QTEST_GUILESS_MAIN(tst_FileOpen)
#include "tst_fileopen.moc"
