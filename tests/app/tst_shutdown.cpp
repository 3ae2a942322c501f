#include "app/Shutdown.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace qly;

namespace {

// The main window as the close sees it.
struct Window : app::ClosingWindow {
    void StoreDisplayState() override { ++stores; }
    void UnloadAllForms() override { ++unloads; }
    int stores = 0;
    int unloads = 0;
};

} // namespace

class tst_Shutdown : public QObject
{
    Q_OBJECT
private slots:
    void init() { core::gStartupPassed = true; }
    void closeIsRefusedDuringStartup();
    void cancelInSavePromptKeepsEverything();
    void closeSweepsOnlyTheCurrentDirectory();
};

void tst_Shutdown::closeIsRefusedDuringStartup()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    core::gStartupPassed = false;
    Window window;
    QVERIFY(!app::CloseEverything(window));
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral(
        "Quillery has not yet finished its startup process. Please try again in a few seconds ")});
    QCOMPARE(prompts.shown[0].title, QStringLiteral("Quillery 4.01 - Error"));
    QCOMPARE(window.unloads, 0);
}

void tst_Shutdown::cancelInSavePromptKeepsEverything()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString file = env.write(QStringLiteral("a.html"), "old");
    ws.addDocument(file, QStringLiteral("new text"), file);
    Window window;
    prompts.answer(platform::Answer::Cancel);
    QVERIFY(!app::CloseEverything(window));
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("Do you want to save ") + file + u'?'});
    QCOMPARE(window.unloads, 0);
    QVERIFY(!core::gClosing);
    QCOMPARE(env.read(file), QByteArray("old"));
    QVERIFY(ws.document(0)->edit.Dirty());
    // Asked again, Yes saves and the program goes.
    prompts.answer(platform::Answer::Yes);
    QVERIFY(app::CloseEverything(window));
    QCOMPARE(env.read(file), QByteArray("new text"));
    QCOMPARE(window.unloads, 1);
    QCOMPARE(core::ReadSetting(QStringLiteral("Last Session"), QStringLiteral("1")).section(u',', 0, 0), file);
}

void tst_Shutdown::closeSweepsOnlyTheCurrentDirectory()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    Window window;
    const QString docs = env.path(QStringLiteral("docs"));
    const QString autosave = env.path(QStringLiteral("autosave"));
    QDir().mkpath(docs);
    QDir().mkpath(autosave);
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"), docs);
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("AutoSave"), autosave);
    env.write(QStringLiteral("docs/~qly1234.tmp"), "t");
    env.write(QStringLiteral("docs/~qlpreview.htm"), "t");
    env.write(QStringLiteral("docs/keep.htm"), "k");
    env.write(QStringLiteral("here.qnb"), "a");           // the current directory
    env.write(QStringLiteral("autosave/kept.qnb"), "a");
    QVERIFY(app::CloseEverything(window));
    QCOMPARE(QDir(docs).entryList(QDir::Files), QStringList{QStringLiteral("keep.htm")});
    QVERIFY(!QFile::exists(env.path(QStringLiteral("here.qnb"))));
    QVERIFY(QFile::exists(env.path(QStringLiteral("autosave/kept.qnb"))));
}

QTEST_GUILESS_MAIN(tst_Shutdown)
#include "tst_shutdown.moc"
