#include "core/Globals.h"
#include "core/HistoryList.h"
#include "core/ProfileFile.h"
#include "core/Settings.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using core::ReadSetting;
using core::WriteSetting;

namespace {
const QString G = QStringLiteral("General");
}

class tst_Profile : public QObject
{
    Q_OBJECT
private slots:
    void readsWithoutRegardToCase();
    void flagIsTrueOnlyForYes_data();
    void flagIsTrueOnlyForYes();
    void longValuesAreCut();
    void emptyValueRemovesKey();
    void fileIsMadeOnFirstWriteOnly();
    void keysKeepOrderOfFirstWrite();
    void otherLinesSurviveWrites();
    void sectionsAreReadAndReplacedWhole();
    void failedSectionWriteIsTold();
    void historiesKeepNewestFirstOnceAndCapped();
    void writeLeavesNoHalfFile();
    void randomOperationsMatchAModel();
    void garbageFilesNeverBreakTheReader();
};

void tst_Profile::readsWithoutRegardToCase()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"), "[General]\r\nCreate BAK Files = Yes \r\n[general]\r\nOther=1\r\n");
    QCOMPARE(ReadSetting(QStringLiteral("GENERAL"), QStringLiteral("create bak files")), QStringLiteral("Yes"));
    // The first of two sections of the same name is the one that counts.
    QCOMPARE(ReadSetting(G, QStringLiteral("Other")), QString());
    WriteSetting(QStringLiteral("general"), QStringLiteral("CREATE BAK FILES"), QStringLiteral("No"));
    QCOMPARE(ReadSetting(G, QStringLiteral("Create BAK Files")), QStringLiteral("No"));
    QVERIFY(env.read(QStringLiteral("quillery.ini")).startsWith("[General]\r\nCreate BAK Files=No\r\n"));
}

void tst_Profile::flagIsTrueOnlyForYes_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("on");
    QTest::newRow("Yes") << QStringLiteral("Yes") << true;
    QTest::newRow("YES") << QStringLiteral("YES") << true;
    QTest::newRow("yes") << QStringLiteral("yes") << true;
    QTest::newRow("1") << QStringLiteral("1") << false;
    QTest::newRow("True") << QStringLiteral("True") << false;
    QTest::newRow("absent") << QString() << false;
}

void tst_Profile::flagIsTrueOnlyForYes()
{
    QFETCH(QString, value);
    QFETCH(bool, on);
    test::TestEnv env;
    WriteSetting(G, QStringLiteral("Flag"), value);
    QCOMPARE(core::ReadSettingFlag(G, QStringLiteral("flag")), on);
}

void tst_Profile::longValuesAreCut()
{
    test::TestEnv env;
    const QString value = QString(300, u'x') + QStringLiteral("é");
    WriteSetting(G, QStringLiteral("Long"), value);
    QCOMPARE(ReadSetting(G, QStringLiteral("Long")), QString(249, u'x'));
    // The file keeps what was written.
    QVERIFY(QString::fromUtf8(env.read(QStringLiteral("quillery.ini"))).contains(value));
}

void tst_Profile::emptyValueRemovesKey()
{
    test::TestEnv env;
    WriteSetting(G, QStringLiteral("A"), QStringLiteral("1"));
    WriteSetting(G, QStringLiteral("B"), QStringLiteral("2"));
    WriteSetting(G, QStringLiteral("a"), QString());
    QCOMPARE(ReadSetting(G, QStringLiteral("A")), QString());
    QCOMPARE(core::ReadSection(G), QStringList{QStringLiteral("B=2")});
    core::DeleteSetting(G, QStringLiteral("B"));
    QCOMPARE(core::ReadSection(G), QStringList());
}

void tst_Profile::fileIsMadeOnFirstWriteOnly()
{
    test::TestEnv env;
    core::gIniFile = env.path(QStringLiteral("sub/dir/q.ini"));
    QCOMPARE(ReadSetting(G, QStringLiteral("A")), QString());
    core::DeleteSetting(G, QStringLiteral("A"));
    WriteSetting(G, QStringLiteral("A"), QString());
    QVERIFY(!QFile::exists(core::gIniFile));
    WriteSetting(G, QStringLiteral("A"), QStringLiteral("1"));
    QCOMPARE(env.read(core::gIniFile), QByteArray("[General]\r\nA=1\r\n"));
}

void tst_Profile::keysKeepOrderOfFirstWrite()
{
    test::TestEnv env;
    WriteSetting(QStringLiteral("S"), QStringLiteral("b"), QStringLiteral("1"));
    WriteSetting(QStringLiteral("T"), QStringLiteral("x"), QStringLiteral("1"));
    WriteSetting(QStringLiteral("S"), QStringLiteral("a"), QStringLiteral("2"));
    WriteSetting(QStringLiteral("S"), QStringLiteral("b"), QStringLiteral("3"));
    QCOMPARE(core::ReadSection(QStringLiteral("s")), (QStringList{QStringLiteral("b=3"), QStringLiteral("a=2")}));
    QCOMPARE(env.read(QStringLiteral("quillery.ini")), QByteArray("[S]\r\nb=3\r\na=2\r\n\r\n[T]\r\nx=1\r\n"));
}

void tst_Profile::otherLinesSurviveWrites()
{
    test::TestEnv env;
    // LF line ends, a comment, a line without "=", blank lines and no final line end.
    env.write(QStringLiteral("quillery.ini"), "; mine\n[A]\nk=v\njunk line\n\n[B]\nz=1");
    WriteSetting(QStringLiteral("A"), QStringLiteral("new"), QStringLiteral("n"));
    WriteSetting(QStringLiteral("B"), QStringLiteral("y"), QStringLiteral("2"));
    WriteSetting(QStringLiteral("C"), QStringLiteral("c"), QStringLiteral("3"));
    QCOMPARE(env.read(QStringLiteral("quillery.ini")),
             QByteArray("; mine\n[A]\nk=v\njunk line\nnew=n\n\n[B]\nz=1\ny=2\n\n[C]\nc=3\n"));
}

void tst_Profile::sectionsAreReadAndReplacedWhole()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"), "[Browsers]\r\n1=/usr/bin/a\r\n2=/usr/bin/b\r\n\r\n[X]\r\nk=v\r\n");
    QVERIFY(core::WriteSection(QStringLiteral("browsers"), QStringLiteral("1=/opt/c") + QChar(0) + QChar(0)));
    QCOMPARE(core::ReadSection(QStringLiteral("Browsers")), QStringList{QStringLiteral("1=/opt/c")});
    QCOMPARE(ReadSetting(QStringLiteral("X"), QStringLiteral("k")), QStringLiteral("v"));
    // Two NULs alone erase the section.
    QVERIFY(core::WriteSection(QStringLiteral("Browsers"), QString(2, QChar(0))));
    QVERIFY(!env.read(QStringLiteral("quillery.ini")).contains("Browsers"));
    QCOMPARE(ReadSetting(QStringLiteral("X"), QStringLiteral("k")), QStringLiteral("v"));
}

void tst_Profile::historiesKeepNewestFirstOnceAndCapped()
{
    test::TestEnv env;
    const QString links = QStringLiteral("Links");
    core::RememberHistory(links, QStringLiteral("a.html"));
    core::RememberHistory(links, QStringLiteral("b.html"));
    core::RememberHistory(links, QStringLiteral("   "));
    core::RememberHistory(links, QStringLiteral("a.html"));
    QCOMPARE(core::ReadHistory(links), (QStringList{QStringLiteral("a.html"), QStringLiteral("b.html")}));
    for (int i = 0; i < core::HistoryLength + 5; ++i)
        core::RememberHistory(links, QStringLiteral("p%1=x.html").arg(i));   // '=' in a value survives
    const QStringList kept = core::ReadHistory(links);
    QCOMPARE(kept.size(), core::HistoryLength);
    QCOMPARE(kept.first(), QStringLiteral("p%1=x.html").arg(core::HistoryLength + 4));
    // Hand-edited files: keys out of order, a repeat and a stray key.
    env.write(QStringLiteral("quillery.ini"), "[Images]\r\n2=b.gif\r\nx=junk\r\n1=a.gif\r\n3=a.gif\r\n");
    QCOMPARE(core::ReadHistory(QStringLiteral("images")), (QStringList{QStringLiteral("a.gif"), QStringLiteral("b.gif")}));
}

void tst_Profile::failedSectionWriteIsTold()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    core::gIniFile = env.path(QStringLiteral("q.ini"));
    QDir().mkpath(core::gIniFile);   // a directory where the file should be
    QVERIFY(!core::WriteSection(QStringLiteral("S"), QStringLiteral("a=1")));
    QCOMPARE(prompts.shown.size(), 1);
    QCOMPARE(prompts.shown[0].title, QStringLiteral("Internal Error Occurred !"));
    QCOMPARE(prompts.shown[0].text, QStringLiteral("An error occurred while writing to ") + core::gIniFile);
}

void tst_Profile::writeLeavesNoHalfFile()
{
    test::TestEnv env;
    WriteSetting(G, QStringLiteral("A"), QStringLiteral("1"));
    const QByteArray before = env.read(QStringLiteral("quillery.ini"));
    // A read-only file is refused whole, never half written.
    QFile::setPermissions(core::gIniFile, QFile::ReadOwner | QFile::ReadGroup);
    WriteSetting(G, QStringLiteral("B"), QStringLiteral("2"));
    QCOMPARE(env.read(QStringLiteral("quillery.ini")), before);
    // No temporary files are left beside it.
    QCOMPARE(QDir(env.dir()).entryList(QDir::Files), QStringList{QStringLiteral("quillery.ini")});
}

void tst_Profile::randomOperationsMatchAModel()
{
    test::TestEnv env;
    QRandomGenerator rng(20261122);
    const QStringList sections = {QStringLiteral("General"), QStringLiteral("Last Session"), QStringLiteral("Ä")};
    const QStringList keys = {QStringLiteral("a"), QStringLiteral("Key One"), QStringLiteral("x=y"), QStringLiteral("1")};
    QMap<QString, QString> model;   // lower-case "section\nkey" -> value
    auto caseVariant = [&](const QString &s) { return rng.bounded(2) ? s.toUpper() : s.toLower(); };
    for (int step = 0; step < 400; ++step) {
        const QString section = sections[rng.bounded(int(sections.size()))];
        QString key = keys[rng.bounded(int(keys.size()))];
        if (key.contains(u'='))
            key = QStringLiteral("k") + QString::number(rng.bounded(3));
        const QString id = section.toLower() + u'\n' + key.toLower();
        switch (rng.bounded(4)) {
        case 0:
        case 1: {
            const QString value = QStringLiteral("v%1 = é;").arg(step);
            WriteSetting(caseVariant(section), caseVariant(key), value);
            model[id] = value;
            break;
        }
        case 2:
            core::DeleteSetting(caseVariant(section), caseVariant(key));
            model.remove(id);
            break;
        default:
            QCOMPARE(ReadSetting(caseVariant(section), caseVariant(key)), model.value(id));
        }
    }
    for (auto it = model.cbegin(); it != model.cend(); ++it) {
        const QStringList parts = it.key().split(u'\n');
        QCOMPARE(ReadSetting(parts[0], parts[1]), it.value());
    }
}

void tst_Profile::garbageFilesNeverBreakTheReader()
{
    test::TestEnv env;
    QRandomGenerator rng(7);
    const QByteArray alphabet("[]=\r\n;ab \xc3\xa9\xff\x00", 14);
    for (int round = 0; round < 200; ++round) {
        QByteArray junk;
        const int n = int(rng.bounded(200));
        for (int i = 0; i < n; ++i)
            junk += alphabet[rng.bounded(int(alphabet.size()))];
        env.write(QStringLiteral("quillery.ini"), junk);
        ReadSetting(QStringLiteral("a"), QStringLiteral("b"));
        core::ReadSection(QStringLiteral("a"));
        WriteSetting(QStringLiteral("Sec"), QStringLiteral("Key"), QStringLiteral("value"));
        QCOMPARE(ReadSetting(QStringLiteral("sec"), QStringLiteral("key")), QStringLiteral("value"));
    }
}

QTEST_GUILESS_MAIN(tst_Profile)
#include "tst_profile.moc"
