#include "core/Globals.h"
#include "core/Settings.h"
#include "markup/CharacterCodes.h"
#include "publish/Aliases.h"
#include "publish/Publish.h"
#include "support/FakeWorkspace.h"
#include "support/PublishRules.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

using namespace qly;

namespace {

const QString kCases = QStringLiteral(TEST_DATA_DIR "/publish");

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

} // namespace

class tst_Publish : public QObject
{
    Q_OBJECT
private slots:
    void goldenCases_data();
    void goldenCases();
    void convertSlashes_data();
    void convertSlashes();
    void slashesMatchTheRuleOnRandomText();
    void backupOfTargetFollowsReverseRule();
    void untitledDocumentWithoutPublishDirectory();
    void currentDocumentWithUnsavedChanges();
    void missingSourceFails();
    void missingAliasFileIsNoFailure();
};

void tst_Publish::goldenCases_data()
{
    QTest::addColumn<QString>("dir");
    const QStringList cases = QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(cases.size() >= 10);
    for (const QString &c : cases)
        QTest::newRow(qPrintable(c)) << QDir(kCases).filePath(c);
}

void tst_Publish::goldenCases()
{
    QFETCH(QString, dir);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("quillery.ini"), readFile(dir + QStringLiteral("/settings.ini")));
    const QString chars = QFile::exists(dir + QStringLiteral("/character.inf"))
        ? dir + QStringLiteral("/character.inf")
        : QStringLiteral(TEST_DATA_DIR "/../../data/character.inf");
    env.write(QStringLiteral("character.inf"), readFile(chars));
    if (QFile::exists(dir + QStringLiteral("/aliases.inf")))
        env.write(QStringLiteral("aliases.inf"), readFile(dir + QStringLiteral("/aliases.inf")));
    markup::LoadCharacterCodes();
    const QString input = env.write(QStringLiteral("in.html"), readFile(dir + QStringLiteral("/input.html")));
    const QString output = env.path(QStringLiteral("out.html"));
    QVERIFY(publish::PublishFile(input, output));
    QCOMPARE(env.read(output), readFile(dir + QStringLiteral("/expected.html")));
    QVERIFY(prompts.shown.isEmpty());
}

void tst_Publish::convertSlashes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("expected");
    QTest::newRow("inside tag only") << "a\\b <IMG SRC=b\\c.gif> c\\d" << "TOUNIX" << "a\\b <IMG SRC=b/c.gif> c\\d";
    QTest::newRow("to dos") << "x/y <A HREF=a/b/c.htm>z</A>" << "todos" << "x/y <A HREF=a\\b\\c.htm>z<\\A>";
    QTest::newRow("other direction") << "<a\\b>" << "TOMAC" << "<a\\b>";
    QTest::newRow("empty tag skipped") << "<>\\<b\\c>" << "TOUNIX" << "<>\\<b/c>";
    QTest::newRow("unterminated at end") << "<b\\c> <d\\e" << "TOUNIX" << "<b/c> <d\\e";
    QTest::newRow("lone < at end") << "a\\<" << "TOUNIX" << "a\\<";
    QTest::newRow("nested <") << "<a <b\\> c\\>" << "TOUNIX" << "<a <b/> c\\>";
}

void tst_Publish::convertSlashes()
{
    QFETCH(QString, text);
    QFETCH(QString, direction);
    QTEST(publish::ConvertSlashes(text, direction), "expected");
}

void tst_Publish::slashesMatchTheRuleOnRandomText()
{
    auto *rng = QRandomGenerator::global();
    const QString alphabet = QStringLiteral("<>\\/ab");
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (int i = int(rng->bounded(24)); i > 0; --i)
            text += alphabet.at(int(rng->bounded(alphabet.size())));
        QString copy = text;
        QCOMPARE(publish::ConvertSlashes(copy, QStringLiteral("TOUNIX")), test::slashesByRule(text));
    }
}

void tst_Publish::backupOfTargetFollowsReverseRule()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString source = env.write(QStringLiteral("page.html"), "new");
    const QString target = env.write(QStringLiteral("site/page.html"), "old");
    const QString backup = env.path(QStringLiteral("site/page.bak"));

    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Create BAK Files"), QStringLiteral("No"));
    QVERIFY(publish::PublishFile(source, target));
    QCOMPARE(env.read(backup), QByteArray("old"));
    QCOMPARE(env.read(target), QByteArray("new"));

    QFile::remove(backup);
    env.write(QStringLiteral("site/page.html"), "older");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Create BAK Files"), QStringLiteral("yes"));
    QVERIFY(publish::PublishFile(source, target));
    QVERIFY(!QFile::exists(backup));
    QCOMPARE(env.read(target), QByteArray("new"));
    QVERIFY(prompts.shown.isEmpty());
}

void tst_Publish::untitledDocumentWithoutPublishDirectory()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    workspace.addDocument(QStringLiteral("Untitled-1"), QStringLiteral("text"));
    const QString target = env.path(QStringLiteral("out.html"));
    QVERIFY(!publish::PublishFile(QString(), target));
    QVERIFY(!QFile::exists(target));
    QCOMPARE(prompts.shown.size(), 1);
    QCOMPARE(prompts.shown.first().title, QStringLiteral("Cannot Publish File"));
    QCOMPARE(prompts.shown.first().icon, platform::Icon::Information);
    QVERIFY(QDir(env.dir()).entryList({QStringLiteral("~qly*")}).isEmpty());
}

void tst_Publish::currentDocumentWithUnsavedChanges()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QDir(env.dir()).mkpath(QStringLiteral("pub"));
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Publish"), env.path(QStringLiteral("pub")));
    core::WriteSetting(QStringLiteral("Publishing"), QStringLiteral("Publish as UNIX Text"), QStringLiteral("yes"));
    test::FakeWorkspace workspace;
    const QString file = env.write(QStringLiteral("page.html"), "on disk\r\n");
    test::FakeDocument *doc = workspace.addDocument(file, QStringLiteral("edited\r\nnot saved\r\n"), file);
    doc->edit.setDirty(true);
    const QString target = env.path(QStringLiteral("out.html"));
    QVERIFY(publish::PublishFile(QString(), target));
    QCOMPARE(env.read(target), QByteArray("edited\nnot saved\n"));
    QCOMPARE(env.read(file), QByteArray("on disk\r\n"));
    QVERIFY(doc->edit.Dirty());
    QCOMPARE(QDir(env.path(QStringLiteral("pub"))).entryList({QStringLiteral("~qly*.tmp")}).size(), 1);
}

void tst_Publish::missingSourceFails()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString missing = env.path(QStringLiteral("nothing.html"));
    QVERIFY(!publish::PublishFile(missing, env.path(QStringLiteral("out.html"))));
    QVERIFY(prompts.texts().contains(QStringLiteral("File not found.: ") + missing));
    QVERIFY(prompts.texts().contains(QStringLiteral("Couldn't read ") + missing));
}

void tst_Publish::missingAliasFileIsNoFailure()
{
    test::TestEnv env;
    publish::Aliases().push_back({QStringLiteral("x"), QStringLiteral("y"), {}, {}});
    QVERIFY(publish::LoadAliases());
    QVERIFY(publish::Aliases().empty());
    core::WriteSetting(QStringLiteral("Publishing"), QStringLiteral("Use Aliases"), QStringLiteral("yes"));
    const QString source = env.write(QStringLiteral("a.html"), "x");
    QVERIFY(publish::PublishFile(source, env.path(QStringLiteral("b.html"))));
    QCOMPARE(env.read(QStringLiteral("b.html")), QByteArray("x"));
}

QTEST_GUILESS_MAIN(tst_Publish)
#include "tst_publish.moc"
