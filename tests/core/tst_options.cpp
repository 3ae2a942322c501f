#include "core/Globals.h"
#include "core/MoveTemplates.h"
#include "core/OptionsHooks.h"
#include "core/OptionsModel.h"
#include "core/Settings.h"
#include "platform/HTMLEdit.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QtTest>

using namespace qly;
using core::OptionCheck;
using core::OptionsModel;
using platform::Answer;

namespace {

QString setting(const char *section, const char *key)
{
    return core::ReadSetting(QString::fromLatin1(section), QString::fromLatin1(key));
}

} // namespace

class tst_Options : public QObject
{
    Q_OBJECT
private slots:
    void init() { core::optionsHooks() = {}; }
    void checkShowsStoredOrAbsent_data();
    void checkShowsStoredOrAbsent();
    void confirmingUnchangedWritesShownValues();
    void combosSelectBySearch();
    void scoutIsCutToWholeSeconds_data();
    void scoutIsCutToWholeSeconds();
    void longExtensionForcesIt();
    void lastSessionErasedWhenNotRestored();
    void customDictionaryFallsBackToStem();
    void browserListKeepsDefaultMark();
    void missingDirectoryIsOfferedAndMade();
    void templatesMoveAskingBeforeReplacing();
    void commitReachesOpenDocuments();
};

void tst_Options::checkShowsStoredOrAbsent_data()
{
    QTest::addColumn<int>("check");
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<bool>("shown");
    const int bak = int(OptionCheck::CreateBak);            // on when absent
    const int restore = int(OptionCheck::RestoreLastSession); // off when absent
    const int slashes = int(OptionCheck::UnixSlashes);      // on when absent, [Publishing]
    QTest::newRow("on-absent, no key") << bak << QByteArray() << true;
    QTest::newRow("on-absent, No") << bak << QByteArray("No") << false;
    QTest::newRow("on-absent, 1") << bak << QByteArray("1") << false;
    QTest::newRow("off-absent, no key") << restore << QByteArray() << false;
    QTest::newRow("off-absent, YES") << restore << QByteArray("YES") << true;
    QTest::newRow("publishing, no key") << slashes << QByteArray() << true;
    QTest::newRow("publishing, no") << slashes << QByteArray("no") << false;
}

void tst_Options::checkShowsStoredOrAbsent()
{
    QFETCH(int, check);
    QFETCH(QByteArray, stored);
    QFETCH(bool, shown);
    test::TestEnv env;
    const core::CheckBinding &b = core::checkBinding(OptionCheck(check));
    if (!stored.isEmpty())
        core::WriteSetting(b.section, b.key, QString::fromLatin1(stored));
    OptionsModel m;
    m.load();
    QCOMPARE(m.check(OptionCheck(check)), shown);
}

void tst_Options::confirmingUnchangedWritesShownValues()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    OptionsModel m;
    m.load();
    m.commit();
    for (const core::CheckBinding &b : core::checkBindings())
        QCOMPARE(core::ReadSetting(b.section, b.key), core::YesNo(b.shownWhenAbsent));
    QCOMPARE(setting("General", "Create BAK Files"), QStringLiteral("Yes"));
    QVERIFY(!core::ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Restore Last Session")));
    QCOMPARE(setting("Editing", "No Parse For Table"), QStringLiteral("No"));
    QCOMPARE(setting("Editing", "Default Document Extension"), QStringLiteral("htm"));
    QCOMPARE(setting("Publishing", "Default Extension"), QStringLiteral("html"));
    QCOMPARE(setting("General", "Target"), QStringLiteral("NAME"));
    QCOMPARE(setting("General", "Big First Letter Size"), QStringLiteral("+2"));
    QCOMPARE(setting("Editing", "Text"), QString());   // colours left to the buffer
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("The bookmarks tab will not contain any information")});

    // An emptied extension box writes the default.
    m.documentExtension.clear();
    m.commit();
    QCOMPARE(setting("Editing", "Default Document Extension"), QStringLiteral("HTM"));
}

void tst_Options::combosSelectBySearch()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"),
              "[General]\r\nTarget=id\r\nBig First Letter Size=+9\r\n[Editing]\r\nDefault Document Extension=HTML\r\n"
              "Font Size=0\r\n[Publishing]\r\nDefault Extension=shtml\r\n");
    OptionsModel m;
    m.load();
    QCOMPARE(m.anchor, QStringLiteral("ID"));
    QCOMPARE(m.bigLetterSize, QStringLiteral("+2"));
    QCOMPARE(m.documentExtension, QStringLiteral("html"));
    QVERIFY(m.forceExtensionVisible());
    QCOMPARE(m.fontSize, QStringLiteral("10"));
    QCOMPARE(m.publishExtension, QStringLiteral("shtml"));
}

void tst_Options::scoutIsCutToWholeSeconds_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("plain") << QStringLiteral("12") << QStringLiteral("12");
    QTest::newRow("negative fraction") << QStringLiteral("-7.9") << QStringLiteral("7");
    QTest::newRow("above 60") << QStringLiteral("75") << QStringLiteral("60");
    QTest::newRow("huge") << QStringLiteral("99999999999999999999999") << QStringLiteral("60");
    QTest::newRow("trailing text") << QStringLiteral(" 3 sec") << QStringLiteral("3");
    QTest::newRow("no number") << QStringLiteral("abc") << QStringLiteral("0");
}

void tst_Options::scoutIsCutToWholeSeconds()
{
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    QCOMPARE(OptionsModel::normalizeScout(typed), kept);
}

void tst_Options::longExtensionForcesIt()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    OptionsModel m;
    m.load();
    m.chooseDocumentExtension(QStringLiteral("shtml"));
    QVERIFY(m.forceExtensionVisible());
    QVERIFY(m.check(OptionCheck::ForceDefaultExt));
    m.chooseDocumentExtension(QStringLiteral("htm"));
    QVERIFY(!m.forceExtensionVisible());
    QVERIFY(!m.check(OptionCheck::ForceDefaultExt));

    m.setScoutEnabled(true);
    QCOMPARE(m.scoutSeconds, QStringLiteral("5"));
    m.scoutSeconds = QStringLiteral("90");
    m.commit();
    QCOMPARE(setting("Display", "Scout Refresh"), QStringLiteral("60"));
    m.setScoutEnabled(false);
    m.commit();
    QCOMPARE(setting("Display", "Scout Refresh"), QString());
}

void tst_Options::lastSessionErasedWhenNotRestored()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("quillery.ini"), "[Last Session]\r\n1=/a.htm,0,1,1,1,1\r\nWebSplit=100\r\n");
    OptionsModel m;
    m.load();
    m.setCheck(OptionCheck::RestoreLastSession, true);
    m.commit();
    QCOMPARE(core::ReadSection(QStringLiteral("Last Session")).size(), 2);
    m.setCheck(OptionCheck::RestoreLastSession, false);
    m.commit();
    QVERIFY(core::ReadSection(QStringLiteral("Last Session")).isEmpty());
}

void tst_Options::customDictionaryFallsBackToStem()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString real = env.write(QStringLiteral("mine.txt"), "word\n");
    OptionsModel m;
    m.load();
    m.dictionaries[1] = QStringLiteral("/nowhere/words.lst");
    m.commit();
    QCOMPARE(setting("General", "Custom Dictionary"), env.path(QStringLiteral("words.dic")));
    m.dictionaries[1] = real;
    m.commit();
    QCOMPARE(setting("General", "Custom Dictionary"), real);
}

void tst_Options::browserListKeepsDefaultMark()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("quillery.ini"),
              "[File Locations]\r\nBrowser=/usr/bin/b\r\n[Browsers]\r\n1=/usr/bin/a\r\n2=/usr/bin/b\r\n");
    int menus = 0;
    core::optionsHooks().loadBrowserMenu = [&menus] { ++menus; };
    OptionsModel m;
    m.load();
    QCOMPARE(m.browsers(), (QStringList{QStringLiteral("/usr/bin/a"), QStringLiteral("*/usr/bin/b")}));

    prompts.chooseFiles({QStringLiteral("/opt/c")});
    m.addBrowser();
    QCOMPARE(prompts.fileRequests.last().title, QStringLiteral("Quillery 4.01 - Choose Browser"));
#ifndef Q_OS_WIN
    // Programs here have no extension to filter on.
    QCOMPARE(prompts.fileRequests.last().filter, QStringLiteral("All Files (*.*)|*.*"));
#endif
    m.deleteBrowser(0);
    m.setDefaultBrowser(1);
    QCOMPARE(setting("File Locations", "Browser"), QStringLiteral("/opt/c"));   // written at once
    QCOMPARE(m.browsers(), (QStringList{QStringLiteral("/usr/bin/b"), QStringLiteral("*/opt/c")}));

    m.locations[core::kBrowserLocation] = QStringLiteral("/typed/over");
    m.commit();
    QCOMPARE(core::ReadSection(QStringLiteral("Browsers")),
             (QStringList{QStringLiteral("1=/usr/bin/b"), QStringLiteral("2=/opt/c")}));
    QCOMPARE(setting("File Locations", "Browser"), QStringLiteral("/opt/c"));   // the list's mark wins
    QCOMPARE(menus, 1);

    // A search that finds nothing says so and offers the chooser.
    int found = 1;
    core::optionsHooks().findBrowsers = [&found] { return found; };
    const qsizetype before = prompts.shown.size();
    m.findBrowsers();
    QCOMPARE(prompts.shown.size(), before);
    found = 0;
    prompts.answer(Answer::Yes);
    prompts.chooseFiles({QStringLiteral("/opt/d")});
    m.findBrowsers();
    QVERIFY(prompts.texts().last().startsWith(QStringLiteral("No web browser was found")));
    QVERIFY(m.browsers().contains(QStringLiteral("/opt/d")));
}

void tst_Options::missingDirectoryIsOfferedAndMade()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    OptionsModel m;
    m.load();
    const QString dir = env.path(QStringLiteral("pub/site"));
    m.locations[2] = dir;
    prompts.answer(Answer::No);
    m.leaveLocation(2);
    QVERIFY(!QFileInfo(dir).isDir());
    prompts.answer(Answer::Yes);
    m.leaveLocation(2);
    QVERIFY(QFileInfo(dir).isDir());
    QCOMPARE(prompts.texts().last(), dir + QStringLiteral(" does not exist.  Create it now ?"));
    m.leaveLocation(2);   // exists now: nothing asked
    QCOMPARE(prompts.shown.size(), 2);
}

void tst_Options::templatesMoveAskingBeforeReplacing()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("old/a.tpl"), "A");
    env.write(QStringLiteral("old/b.tpl"), "B-old");
    env.write(QStringLiteral("new/b.tpl"), "B-new");
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Templates"), env.path(QStringLiteral("old")));
    OptionsModel m;
    m.load();

    m.locations[core::kTemplatesLocation] = env.path(QStringLiteral("new"));
    prompts.answer(Answer::Yes);   // move them
    prompts.answer(Answer::No);    // do not replace b.tpl
    m.leaveLocation(core::kTemplatesLocation);
    QCOMPARE(prompts.shown.at(0).title, QStringLiteral("Quillery 4.01 - Move Templates?"));
    QCOMPARE(prompts.shown.at(1).text, QStringLiteral("Replace existing file ") + env.path(QStringLiteral("new/b.tpl")));
    QCOMPARE(env.read(QStringLiteral("new/a.tpl")), QByteArray("A"));
    QVERIFY(!QFile::exists(env.path(QStringLiteral("old/a.tpl"))));
    QCOMPARE(env.read(QStringLiteral("new/b.tpl")), QByteArray("B-new"));
    QCOMPARE(env.read(QStringLiteral("old/b.tpl")), QByteArray("B-old"));
    QCOMPARE(setting("File Locations", "Templates"), env.path(QStringLiteral("new")));

    // Leaving the box again without a change asks nothing.
    m.leaveLocation(core::kTemplatesLocation);
    QCOMPARE(prompts.shown.size(), 2);
}

void tst_Options::commitReachesOpenDocuments()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    test::FakeDocument *a = ws.addDocument(QStringLiteral("a"), QStringLiteral("<p>"));
    test::FakeDocument *b = ws.addDocument(QStringLiteral("b"), QStringLiteral("<b>"));

    OptionsModel m;
    m.load();
    m.fontName = QStringLiteral("Monospace");
    m.fontSize = QStringLiteral("12");
    m.setCheck(OptionCheck::WordWrap, true);
    m.setCheck(OptionCheck::ShowNS, true);
    m.setCheck(OptionCheck::ColorHTML, true);
    m.setCheck(OptionCheck::TranslateWhileTyping, true);
    m.colours[0] = 0x0000FF;   // "Text:" in red
    m.commit();

    for (test::FakeDocument *d : {a, b}) {
        QCOMPARE(d->edit.FontName(), QStringLiteral("Monospace"));
        QCOMPARE(d->edit.FontSize(), 12);
        QVERIFY(d->edit.WordWrap());
        QCOMPARE(d->edit.colorPasses(), 1);
        QCOMPARE(d->edit.ColorMode(), platform::ColorEntireTags);
    }
    QVERIFY(core::gColorHTML);
    QVERIFY(core::gTranslateWhileTyping);
    QCOMPARE(setting("Editing", "Text"), QStringLiteral("255"));
    QVERIFY(prompts.shown.isEmpty());

    m.setCheck(OptionCheck::ColorHTML, false);
    m.colours[0] = -1;
    m.commit();
    QCOMPARE(a->edit.ColorMode(), platform::ColorOff);
    QCOMPARE(a->edit.colorPasses(), 1);
    QCOMPARE(setting("Editing", "Text"), QString());
}

QTEST_GUILESS_MAIN(tst_Options)
#include "tst_options.moc"
