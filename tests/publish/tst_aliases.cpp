#include "publish/Aliases.h"
#include "support/PublishRules.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace qly;

class tst_Aliases : public QObject
{
    Q_OBJECT
private slots:
    void parsesLines_data();
    void parsesLines();
    void loadsFileInOrder();
    void replaces_data();
    void replaces();
    void matchesTheRuleOnRandomText();
    void confirmAsksEachHit();
};

void tst_Aliases::parsesLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("kept");
    QTest::addColumn<QStringList>("fields");
    const QString s(QChar(publish::kAliasSeparator));
    auto L = [](const char *text) { return QString::fromLatin1(text); };
    QTest::newRow("flags empty") << L("term") + s + L("text") + s << true << QStringList{L("term"), L("text"), L(""), L("")};
    QTest::newRow("all four") << L("a") + s + L("b") + s + L("yes") + s + L("No") + s + L("x") << true
                              << QStringList{L("a"), L("b"), L("yes"), L("No") + s + L("x")};
    QTest::newRow("empty replacement") << L("abc") + s + s + L("yes") + s + L("yes") << true << QStringList{L("abc"), L(""), L("yes"), L("yes")};
    QTest::newRow("third field without fourth separator") << L("a") + s + L("b") + s + L("yes") << true
                                                          << QStringList{L("a"), L("b"), L(""), L("")};
    QTest::newRow("line breaks") << L("aNL_b") + s + L("cNL_") + s + L("NL_") + s << true
                                 << QStringList{L("a\r\nb"), L("c\r\n"), L("NL_"), L("")};
    QTest::newRow("empty term") << s + L("text") + s + L("yes") << false << QStringList();
    QTest::newRow("one separator") << L("term") + s + L("text") << false << QStringList();
    QTest::newRow("short") << L("a") + s << false << QStringList();
}

void tst_Aliases::parsesLines()
{
    QFETCH(QString, line);
    QFETCH(bool, kept);
    QFETCH(QStringList, fields);
    publish::Alias a;
    QCOMPARE(publish::parseAliasLine(line, a), kept);
    if (kept) {
        QCOMPARE((QStringList{a.term, a.replacement, a.matchCase, a.wholeWord}), fields);
        // What is written reads back the same.
        publish::Alias again;
        QVERIFY(publish::parseAliasLine(publish::formatAliasLine(a), again));
        QCOMPARE(again.term, a.term);
        QCOMPARE(again.replacement, a.replacement);
    }
}

void tst_Aliases::loadsFileInOrder()
{
    test::TestEnv env;
    env.write(QStringLiteral("aliases.inf"), "\x02skipped\x02\r\none\x02" "1\x02yes\x02no\r\nbad line\r\ntwo\x02" "2\x02\r\n");
    QVERIFY(publish::LoadAliases());
    QCOMPARE(publish::Aliases().size(), size_t(2));
    QCOMPARE(publish::Aliases()[0].term, QStringLiteral("one"));
    QVERIFY(publish::Aliases()[0].matchesCase());
    QCOMPARE(publish::Aliases()[1].replacement, QStringLiteral("2"));
    QVERIFY(!publish::Aliases()[1].wholeWordOnly());
    publish::aliasesToUnixLineEnds();
    env.write(QStringLiteral("aliases.inf"), "");
    QVERIFY(publish::LoadAliases());
    QVERIFY(publish::Aliases().empty());
}

void tst_Aliases::replaces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("term");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<bool>("matchCase");
    QTest::addColumn<bool>("wholeWord");
    QTest::addColumn<QString>("expected");
    QTest::newRow("any case anywhere") << "Cat concat CAT" << "cat" << "dog" << false << false << "dog condog dog";
    QTest::newRow("match case") << "Cat concat CAT" << "cat" << "dog" << true << false << "Cat condog CAT";
    QTest::newRow("whole word, ends") << "cat. cats cat" << "cat" << "dog" << false << true << "dog. cats dog";
    QTest::newRow("between tags") << "<B>cat</B> (cat)" << "cat" << "dog" << false << true << "<B>cat</B> (dog)";
    QTest::newRow("own replacement") << "aa" << "a" << "[a]" << false << false << "[a][a]";
    QTest::newRow("after a replacement") << "x x" << "x" << "y." << false << true << "y. y.";
    QTest::newRow("delimiter from replacement") << ",x,x" << ",x" << "y!" << false << true << "y!y!";
    QTest::newRow("no delimiter from replacement") << ",x,x" << ",x" << "yz" << false << true << "yz,x";
    QTest::newRow("skip passes by replacement length") << "xab ab" << "ab" << "Z" << false << true << "xab Z";
    QTest::newRow("long replacement jumps") << "xab ab" << "ab" << "ZZZZ" << false << true << "xab ab";
    QTest::newRow("empty replacement") << "a,b,a" << "a" << "" << false << true << ",b,";
}

void tst_Aliases::replaces()
{
    QFETCH(QString, text);
    QFETCH(QString, term);
    QFETCH(QString, replacement);
    QFETCH(bool, matchCase);
    QFETCH(bool, wholeWord);
    publish::ReplaceInText(text, term, replacement, matchCase, wholeWord, false);
    QTEST(text, "expected");
}

void tst_Aliases::matchesTheRuleOnRandomText()
{
    auto *rng = QRandomGenerator::global();
    const QString alphabet = QStringLiteral("aAb ,<");
    auto randomText = [&](int max) {
        QString s;
        for (int i = int(rng->bounded(max)); i > 0; --i)
            s += alphabet.at(int(rng->bounded(alphabet.size())));
        return s;
    };
    for (int round = 0; round < 3000; ++round) {
        const QString text = randomText(20);
        const QString term = randomText(3) + u'a';
        const QString replacement = randomText(4);
        const bool matchCase = rng->bounded(2);
        const bool wholeWord = rng->bounded(2);
        QString actual = text;
        publish::ReplaceInText(actual, term, replacement, matchCase, wholeWord, false);
        const QString what = QStringList{text, term, replacement, QString::number(matchCase),
                                         QString::number(wholeWord), actual}.join(u'|');
        QVERIFY2(actual == test::replaceByRule(text, term, replacement, matchCase, wholeWord), qPrintable(what));
    }
}

void tst_Aliases::confirmAsksEachHit()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QString text = QStringLiteral("a a a a");
    prompts.answer(platform::Answer::Yes);
    prompts.answer(platform::Answer::No);
    prompts.answer(platform::Answer::Cancel);
    QCOMPARE(publish::ReplaceInText(text, QStringLiteral("a"), QStringLiteral("b"), false, false, true), 1);
    QCOMPARE(text, QStringLiteral("b a a a"));
    QCOMPARE(prompts.shown.size(), 3);
    QCOMPARE(prompts.shown.first().title, QStringLiteral("Quillery 4.01"));
    QCOMPARE(prompts.shown.first().text, QStringLiteral("Replace this text?"));
    QVERIFY(!prompts.busyNow);
}

QTEST_GUILESS_MAIN(tst_Aliases)
#include "tst_aliases.moc"
