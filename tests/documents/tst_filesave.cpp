#include "core/Globals.h"
#include "core/Settings.h"
#include "documents/AutoSave.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/DocumentOptions.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QtTest>

using namespace qly;
using platform::Answer;

// Saving: failed writes, the session list and auto-save.
class tst_FileSave : public QObject
{
    Q_OBJECT
private slots:
    void readOnlyFileKeepsChanges();
    void saveIntoRemovedDirectory();
    void saveAsStartsBesideTheDocument();
    void sessionListOnCancel();
    void sessionListLimit();
    void autoSaveThreshold_data();
    void autoSaveThreshold();
    void saveAsProposesTitleAndFilter();
};

namespace {

const QString kSession = QStringLiteral("Last Session");

QString session(int n)
{
    return core::ReadSetting(kSession, QString::number(n));
}

} // namespace

void tst_FileSave::readOnlyFileKeepsChanges()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString path = env.write(QStringLiteral("ro.htm"), "original");
    QVERIFY(documents::OpenDocumentFile(path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    test::FakeDocument *doc = ws.document(0);
    doc->edit.setText(QStringLiteral("changed"));
    QVERIFY(doc->edit.Dirty());

    QVERIFY(!doc->Save());
    QCOMPARE(prompts.shown.size(), 1);
    QCOMPARE(prompts.shown[0].title, QStringLiteral("Problem Saving File"));
    QCOMPARE(prompts.shown[0].text, QStringLiteral("This file is read-only and Quillery 4.01 cannot save any changes to it."));
    QCOMPARE(prompts.shown[0].icon, platform::Icon::Exclamation);
    QVERIFY(doc->edit.Dirty());
    QCOMPARE(env.read(QStringLiteral("ro.htm")), QByteArray("original"));

}

void tst_FileSave::saveIntoRemovedDirectory()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString page = env.write(QStringLiteral("keep/page.htm"), "kept");
    const QString doomed = env.write(QStringLiteral("doomed/old.htm"), "old");
    QVERIFY(documents::OpenDocumentFile(page));
    QVERIFY(documents::OpenDocumentFile(doomed));
    QVERIFY(QDir(env.path(QStringLiteral("doomed"))).removeRecursively());
    ws.document(0)->edit.setText(QStringLiteral("new text"));
    ws.document(1)->edit.setText(QStringLiteral("more"));

    // Save As into the removed directory.
    const QString target = env.path(QStringLiteral("doomed/page.htm"));
    QVERIFY(!ws.document(0)->NamedSaveAs(target));
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY(prompts.shown[0].text.contains(QStringLiteral("does not exist")));
    QCOMPARE(ws.document(0)->LocalFileName, page);
    QCOMPARE(env.read(QStringLiteral("keep/page.htm")), QByteArray("kept"));
    QVERIFY(!QFile::exists(target));

    // Save of the document whose file went with its directory says why, then
    // asks for a name; a name in the same removed directory fails the same way.
    prompts.chooseFiles({env.path(QStringLiteral("doomed/again"))});
    QVERIFY(!ws.document(1)->Save());
    QCOMPARE(prompts.fileRequests.size(), 1);
    QCOMPARE(prompts.shown.size(), 3);
    QCOMPARE(prompts.shown[1].text, QStringLiteral("The folder ") + env.path(QStringLiteral("doomed"))
                                        + QStringLiteral(" no longer exists. Choose where to save old.htm."));
    QCOMPARE(prompts.shown[1].icon, platform::Icon::Exclamation);
    QVERIFY(prompts.shown[2].text.startsWith(QStringLiteral("Quillery 4.01 could not save ")
                                             + env.path(QStringLiteral("doomed/again.HTM"))));
    QVERIFY(ws.document(1)->edit.Dirty());
    QVERIFY(!QDir(env.path(QStringLiteral("doomed"))).exists());
    QCOMPARE(QDir(env.path(QStringLiteral("keep"))).entryList(QDir::Files), QStringList{QStringLiteral("page.htm")});
}

void tst_FileSave::saveAsStartsBesideTheDocument()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    documents::InstallDocumentOptionHooks();
    const QString page = env.write(QStringLiteral("site/page.htm"), "p");
    QVERIFY(documents::OpenDocumentFile(page));

    // No documents location: the dialog opens in the document's own folder.
    prompts.chooseNothing();
    QVERIFY(!ws.document(0)->SaveAs());
    QCOMPARE(prompts.fileRequests.last().directory, env.path(QStringLiteral("site")));

    // The documents location of the configuration comes first.
    const QString docs = env.path(QStringLiteral("docs"));
    QVERIFY(QDir().mkpath(docs));
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"), docs);
    prompts.chooseNothing();
    QVERIFY(!ws.document(0)->SaveAs());
    QCOMPARE(prompts.fileRequests.last().directory, docs);
    QCOMPARE(ws.document(0)->LocalFileName, page);
    core::setActiveDocumentFolder({});
}

void tst_FileSave::sessionListOnCancel()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    for (int n = 1; n <= 5; ++n)
        core::WriteSetting(kSession, QString::number(n), QStringLiteral("/old/%1.htm,0,1,2,3,4").arg(n));
    test::FakeDocument *a = ws.addDocument(env.path(QStringLiteral("a.htm")), QStringLiteral("a"), env.write(QStringLiteral("a.htm"), "a"));
    test::FakeDocument *b = ws.addDocument(env.path(QStringLiteral("b.htm")), QStringLiteral("b"), env.write(QStringLiteral("b.htm"), "b"));
    test::FakeDocument *c = ws.addDocument(env.path(QStringLiteral("c.htm")), QStringLiteral("c"), env.write(QStringLiteral("c.htm"), "c"));
    a->edit.setDirty(false);
    c->setGeometryTwips(QRect(15, 30, 4500, 3000));

    // From the last window to the first: c is not saved, b is cancelled.
    prompts.answer(Answer::No);
    prompts.answer(Answer::Cancel);
    QVERIFY(!documents::SaveAllDocuments(true));
    QCOMPARE(prompts.texts(), QStringList({QStringLiteral("Do you want to save ") + c->caption() + u'?',
                                           QStringLiteral("Do you want to save ") + b->caption() + u'?'}));
    QCOMPARE(prompts.shown[0].title, QStringLiteral("Quillery 4.01"));
    QCOMPARE(session(1), c->caption() + QStringLiteral(",0,4500,3000,15,30"));
    for (int n = 2; n <= 5; ++n)
        QCOMPARE(session(n), QString());
    QCOMPARE(env.read(QStringLiteral("c.htm")), QByteArray("c"));
    QVERIFY(c->edit.Dirty());
    QCOMPARE(ws.count(), 3);

}

void tst_FileSave::sessionListLimit()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    for (int n = 1; n <= 120; ++n)
        core::WriteSetting(kSession, QString::number(n), QStringLiteral("/old/%1.htm").arg(n));
    ws.addDocument(QStringLiteral("Untitled-1"), QStringLiteral("x"))->edit.setDirty(false);
    ws.addDocument(env.path(QStringLiteral("one.htm")), QString());
    ws.document(1)->edit.setDirty(false);

    QVERIFY(documents::SaveAllDocuments(false));
    QCOMPARE(session(1).section(u',', 0, 0), env.path(QStringLiteral("one.htm")));
    for (int n = 2; n <= 99; ++n)
        QCOMPARE(session(n), QString());
    QCOMPARE(session(100), QStringLiteral("/old/100.htm"));   // beyond the 99 cleared
    QCOMPARE(session(120), QStringLiteral("/old/120.htm"));

    // More than 99 documents are written whole.
    for (int n = 0; n < 130; ++n)
        ws.addDocument(env.path(QStringLiteral("d%1.htm").arg(n)), QString())->edit.setDirty(false);
    QVERIFY(documents::SaveAllDocuments(false));
    QCOMPARE(session(131).section(u',', 0, 0), env.path(QStringLiteral("one.htm")));
    QCOMPARE(session(1).section(u',', 0, 0), env.path(QStringLiteral("d129.htm")));
    QCOMPARE(session(132), QString());
}

void tst_FileSave::autoSaveThreshold_data()
{
    QTest::addColumn<QString>("location");   // [File Locations] "AutoSave", relative to the temp dir
    QTest::addColumn<int>("passAt");         // the tick that writes; 0: never
    // An ordinary directory reads as the number 0: auto-save never runs,
    // whatever the minutes of [General] "AutoSave" say.
    QTest::newRow("ordinary directory") << "autosave" << 0;
    QTest::newRow("directory named 3") << "3" << 3;
    QTest::newRow("directory named 2min") << "2min" << 2;
    QTest::newRow("directory named 1") << "1" << 1;
}

void tst_FileSave::autoSaveThreshold()
{
    QFETCH(QString, location);
    QFETCH(int, passAt);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    QDir(env.dir()).mkpath(location);
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("AutoSave"), location);
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("AutoSave"), QStringLiteral("1"));
    QStringList switches;
    documents::autoSaveTimerSwitch() = [&switches](bool on) { switches << (on ? QStringLiteral("on") : QStringLiteral("off")); };
    documents::resetAutoSaveMinutes();

    const QString page = env.write(QStringLiteral("page.htm"), "on disk");
    QVERIFY(documents::OpenDocumentFile(page));
    ws.document(0)->edit.setText(QStringLiteral("edited"));
    ws.addDocument(QStringLiteral("Untitled-1"), QStringLiteral("new"));
    ws.addDocument(env.path(QStringLiteral("clean.htm")), QString())->edit.setDirty(false);

    const QString dir = env.path(location);
    for (int tick = 1; tick <= 4; ++tick) {
        documents::AutoSaveTick();
        const bool written = QFile::exists(dir + QStringLiteral("/page.qnb"));
        QCOMPARE(written, passAt != 0 && tick >= passAt);
        if (tick == passAt) {
            QCOMPARE(documents::autoSaveMinutes(), 0);
            QCOMPARE(switches, QStringList({QStringLiteral("off"), QStringLiteral("on")}));
        }
    }
    if (passAt == 0) {
        QCOMPARE(documents::autoSaveMinutes(), 4);
        QVERIFY(switches.isEmpty());
        QCOMPARE(QDir(dir).entryList(QDir::Files), QStringList());
        return;
    }
    QCOMPARE(env.read(dir + QStringLiteral("/page.qnb")), QByteArray("edited"));
    QCOMPARE(env.read(dir + QStringLiteral("/quillery2.qnb")), QByteArray("new"));
    QCOMPARE(QDir(dir).entryList(QDir::Files), QStringList({QStringLiteral("page.qnb"), QStringLiteral("quillery2.qnb")}));
    // An auto-save is no save: the documents stay changed, the file stays as it was.
    QVERIFY(ws.document(0)->edit.Dirty());
    QCOMPARE(ws.document(0)->LocalFileName, page);
    QCOMPARE(env.read(QStringLiteral("page.htm")), QByteArray("on disk"));
    documents::autoSaveTimerSwitch() = nullptr;
}

void tst_FileSave::saveAsProposesTitleAndFilter()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("Untitled-1"),
                                             QStringLiteral("<html><title>  My Page </TITLE>"));
    // The document extension of [Editing] joins the web page masks; the other
    // key of [Editing] stands in only when it is empty.
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"), QStringLiteral("php"));
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Default Extension"), QStringLiteral("asp"));
    prompts.chooseNothing();
    QVERIFY(!doc->SaveAs());
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"), QString());
    prompts.chooseNothing();
    QVERIFY(!doc->SaveAs());

    QCOMPARE(prompts.fileRequests.size(), 2);
    QCOMPARE(prompts.fileRequests[0].fileName, QStringLiteral("  My Page "));
    QVERIFY(prompts.fileRequests[0].filter.startsWith(QStringLiteral("Web Pages (*.htm;*.html;*.shtml;*.ht3;*.pub;*.php)|")));
    QVERIFY(!prompts.fileRequests[0].filter.contains(QStringLiteral("*.asp")));
    QVERIFY(prompts.fileRequests[1].filter.startsWith(QStringLiteral("Web Pages (*.htm;*.html;*.shtml;*.ht3;*.pub;*.asp)|")));
}

QTEST_GUILESS_MAIN(tst_FileSave)
#include "tst_filesave.moc"
