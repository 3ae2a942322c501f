#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Startup.h"
#include "documents/DocumentList.h"
#include "documents/StartupDocuments.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace qly;

class tst_Startup : public QObject
{
    Q_OBJECT
private slots:
    void iniSwitch_data();
    void iniSwitch();
    void iniFileIsChosenAndSeeded();
    void geometryRoundTrip();
    void commandLineWinsOverSession();
    void newDocumentComesBeforeRestoredOnes();
    void restoreStopsAtFirstEmptyKey();
    void websiteEntriesSayTheyCannotOpen();
};

void tst_Startup::iniSwitch_data()
{
    QTest::addColumn<QString>("line");       // %1 stands for an existing file
    QTest::addColumn<QString>("rest");
    QTest::addColumn<bool>("switched");
    QTest::addColumn<int>("boxes");
    QTest::newRow("none") << QStringLiteral("page.html") << QStringLiteral("page.html") << false << 0;
    QTest::newRow("before file") << QStringLiteral("/ini:%1 page.html") << QStringLiteral(" page.html") << true << 0;
    QTest::newRow("after file, any case") << QStringLiteral("page.html /INI:%1") << QStringLiteral("page.html ") << true << 0;
    QTest::newRow("missing file") << QStringLiteral("/ini:nothere.ini x") << QStringLiteral(" x") << false << 1;
    QTest::newRow("no value") << QStringLiteral("a.html /ini:") << QStringLiteral("a.html ") << false << 1;
    QTest::newRow("first only") << QStringLiteral("/ini:%1 /ini:%1") << QStringLiteral(" /ini:%1") << true << 0;
}

void tst_Startup::iniSwitch()
{
    QFETCH(QString, line);
    QFETCH(QString, rest);
    QFETCH(bool, switched);
    QFETCH(int, boxes);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString other = env.write(QStringLiteral("other.ini"), "[A]\r\nb=c\r\n");
    const QString before = core::gIniFile;
    const auto fill = [&](QString s) { return s.replace(QStringLiteral("%1"), other); };
    QCOMPARE(core::ProcessCommandLine(fill(line)), fill(rest));
    QCOMPARE(core::gIniFile, switched ? other : before);
    QCOMPARE(prompts.shown.size(), boxes);
    if (boxes)
        QVERIFY(prompts.shown[0].text.startsWith(QStringLiteral("Error retrieving ")));
    if (switched)
        QCOMPARE(core::ReadSetting(QStringLiteral("a"), QStringLiteral("B")), QStringLiteral("c"));
}

void tst_Startup::iniFileIsChosenAndSeeded()
{
    test::TestEnv env;
    const QByteArray oldConfig = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", env.path(QStringLiteral("config")).toLocal8Bit());
    env.write(QStringLiteral("quillery.default.ini"), "[General]\r\nOpen New Document=Yes\r\n");
    const QString user = env.path(QStringLiteral("config/quillery/quillery.ini"));
    // No file anywhere: the shipped defaults are copied to the user's directory.
    // The file dialogs start in the user's documents, or at home when there are none.
    const QByteArray oldHome = qgetenv("HOME");
    qputenv("HOME", env.path(QStringLiteral("home")).toLocal8Bit());
    QVERIFY(QDir().mkpath(env.path(QStringLiteral("home"))));
    QCOMPARE(core::ChooseIniFile(), user);
    QVERIFY(env.read(user).startsWith("[General]\r\nOpen New Document=Yes\r\n"));
    QCOMPARE(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"), user),
             env.path(QStringLiteral("home")));
    QVERIFY(QFile::remove(user));
    QVERIFY(QDir().mkpath(env.path(QStringLiteral("home/Documents"))));
    QCOMPARE(core::ChooseIniFile(), user);
    QCOMPARE(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"), user),
             env.path(QStringLiteral("home/Documents")));
    qputenv("HOME", oldHome);
    // The user's own file is never overwritten.
    env.write(QStringLiteral("config/quillery/quillery.ini"), "[Mine]\r\n");
    QCOMPARE(core::ChooseIniFile(), user);
    QCOMPARE(env.read(user), QByteArray("[Mine]\r\n"));
    // A file beside the program's data wins: a portable installation.
    env.write(QStringLiteral("quillery.ini"), "");
    QCOMPARE(core::ChooseIniFile(), env.path(QStringLiteral("quillery.ini")));
    qputenv("XDG_CONFIG_HOME", oldConfig);
}

void tst_Startup::geometryRoundTrip()
{
    test::TestEnv env;
    QVERIFY(!core::ReadMainGeometry().normal);   // absent: maximized
    core::WriteMainGeometry(true, QRect(150, 300, 9000, 6000));
    core::MainGeometry g = core::ReadMainGeometry();
    QVERIFY(g.normal);
    QCOMPARE(QRect(g.left, g.top, g.width, g.height), QRect(150, 300, 9000, 6000));
    // Maximized keeps the old position keys.
    core::WriteMainGeometry(false, QRect());
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Window State")), QStringLiteral("Maximized"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Main Window Width")), QStringLiteral("9000"));
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Window State"), QStringLiteral("nORMAL"));
    core::DeleteSetting(QStringLiteral("Display"), QStringLiteral("Main Window Top"));
    g = core::ReadMainGeometry();
    QVERIFY(g.normal);
    QCOMPARE(g.top, -1);
}

void tst_Startup::commandLineWinsOverSession()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    const QString page = env.write(QStringLiteral("my page.html"), "<P>x");
    const QString other = env.write(QStringLiteral("other.html"), "o");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Open New Document"), QStringLiteral("yes"));
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Restore Last Session"), QStringLiteral("yes"));
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("1"), other + QStringLiteral(",0,1,1,1,1"));
    int newDocs = 0;
    documents::OpenStartupDocuments(u' ' + page + u' ', {[&] { ++newDocs; }, {}});
    QCOMPARE(newDocs, 0);
    QCOMPARE(ws.count(), 1);
    QCOMPARE(ws.document(0)->caption(), page);
    QCOMPARE(ws.document(0)->edit.Text(), QStringLiteral("<P>x"));
}

void tst_Startup::newDocumentComesBeforeRestoredOnes()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    const QString a = env.write(QStringLiteral("a.html"), "a");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Open New Document"), QStringLiteral("Yes"));
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Restore Last Session"), QStringLiteral("Yes"));
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("1"), a + QStringLiteral(",2,7500,6000,15,30,1"));
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("2"), QStringLiteral("/x/Site.PRJ,0,1,1,1,1"));
    test::ScriptedPrompts prompts;
    documents::OpenStartupDocuments(QString(), {[&] { ws.addDocument(QStringLiteral("Untitled-1"), {}); }, {}});
    QCOMPARE(ws.count(), 2);
    QCOMPARE(ws.document(0)->caption(), QStringLiteral("Untitled-1"));
    QCOMPARE(ws.document(1)->caption(), a);
    QCOMPARE(ws.document(1)->windowState(), 2);
    QCOMPARE(ws.document(1)->currentTab(), 1);
    // The website entry is not silently dropped.
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY(prompts.texts()[0].startsWith(QStringLiteral("/x/Site.PRJ is a website project.")));
}

void tst_Startup::restoreStopsAtFirstEmptyKey()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    const QString a = env.write(QStringLiteral("a.html"), "a");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Restore Last Session"), QStringLiteral("Yes"));
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("2"), a + QStringLiteral(",0,1,1,1,1"));
    documents::OpenStartupDocuments(QString(), {});
    QCOMPARE(ws.count(), 0);
}

void tst_Startup::websiteEntriesSayTheyCannotOpen()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString project = env.write(QStringLiteral("site.prj"), "[Files]\r\n");
    QVERIFY(!documents::OpenDocumentFile(project));
    QCOMPARE(ws.count(), 0);
    QCOMPARE(prompts.texts(), QStringList{project + QStringLiteral(
        " is a website project. This version of Quillery cannot open website projects yet, so it was not opened.")});

    // A session that stops early: the start-up is closing.
    const QString a = env.write(QStringLiteral("a.html"), "a");
    const QString b = env.write(QStringLiteral("b.html"), "b");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Restore Last Session"), QStringLiteral("Yes"));
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("1"), a + QStringLiteral(",0,1,1,1,1"));
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("2"), b + QStringLiteral(",0,1,1,1,1"));
    documents::OpenStartupDocuments(QString(), {{}, [] { return true; }});
    QCOMPARE(ws.count(), 1);
    QCOMPARE(ws.document(0)->caption(), a);
}

QTEST_GUILESS_MAIN(tst_Startup)
#include "tst_startup.moc"
