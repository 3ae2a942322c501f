#include "core/StatusText.h"
#include "markup/TextOps.h"

#include <QtTest>

using namespace qly;
using namespace qly::markup;

class tst_TextOps : public QObject
{
    Q_OBJECT
private slots:
    void lowerCaseTags_data();
    void lowerCaseTags();
    void replaceAll_data();
    void replaceAll();
    void findLast_data();
    void findLast();
    void quotes();
    void spans();
    void tagPositions();
};

void tst_TextOps::lowerCaseTags_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("quoted values and text kept") << QStringLiteral("<IMG SRC=\"A.GIF\" ALT=B>Text")
                                                 << QStringLiteral("<img src=\"A.GIF\" alt=b>Text");
    QTest::newRow("quotes outside tags do nothing") << QStringLiteral("Say \"HI\" <B CLASS=\"X\" ID=Y>")
                                                    << QStringLiteral("Say \"HI\" <b class=\"X\" id=y>");
    QTest::newRow("> in quotes ends the tag") << QStringLiteral("<A TITLE=\"X>Y\" HREF=Z>")
                                              << QStringLiteral("<a title=\"X>Y\" HREF=Z>");
    QTest::newRow("end tags and non-ASCII") << QStringLiteral("<\u00c4B>\u00dcBER</\u00c4B>")
                                            << QStringLiteral("<\u00e4b>\u00dcBER</\u00e4b>");
}

void tst_TextOps::lowerCaseTags()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const QString before = text;
    QCOMPARE(LowerCaseTags(text), expected);
    QCOMPARE(text, before);
    QCOMPARE(core::StatusText::instance().text(), QStringLiteral("Converting tags to lowercase..."));
}

void tst_TextOps::replaceAll_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("count");
    QTest::newRow("overlapping hits") << "aaaaa" << "aa" << "b" << 0 << "bba" << 2;
    QTest::newRow("adjacent hits") << "abab" << "ab" << "x" << 0 << "xx" << 2;
    QTest::newRow("replacement holds find") << "aaa" << "a" << "aa" << 0 << "aaaaaa" << 3;
    QTest::newRow("case-insensitive") << "The the THE" << "the" << "a" << 1 << "a a a" << 3;
    QTest::newRow("exact") << "The the THE" << "the" << "a" << 0 << "The a THE" << 1;
    QTest::newRow("large mode ignores case") << "Ab ab" << "ab" << "x" << 70000 << "x x" << 2;
    QTest::newRow("removal") << "<B>x<b>y" << "<B>" << "" << 1 << "xy" << 2;
    QTest::newRow("empty find") << "abc" << "" << "x" << 1 << "abc" << 0;
    QTest::newRow("no hit") << "abc" << "d" << "x" << 1 << "abc" << 0;
}

void tst_TextOps::replaceAll()
{
    QFETCH(QString, text);
    QFETCH(QString, find);
    QFETCH(QString, replacement);
    QFETCH(int, mode);
    QFETCH(QString, expected);
    QFETCH(int, count);
    QString t = text;
    QCOMPARE(ReplaceAll(t, find, replacement, mode), long(count));
    QCOMPARE(t, expected);
    if (mode != BinaryCompare)
        QCOMPARE(ReplaceText(text, find, replacement), expected);
}

void tst_TextOps::findLast_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("expected");
    QTest::newRow("last tag") << 0 << "<a><b>" << "<" << 4;
    QTest::newRow("at the very end: not found") << 0 << "ab<" << "<" << 0;
    QTest::newRow("case, end skipped") << 0 << "xABxab" << "ab" << 2;
    QTest::newRow("from a position") << 3 << "<a><b>" << "<" << 1;
    QTest::newRow("pattern longer than text") << 0 << "a" << "abc" << 0;
}

void tst_TextOps::findLast()
{
    QFETCH(int, start);
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    QFETCH(int, expected);
    QCOMPARE(FindLast(start, text, pattern), expected);
}

void tst_TextOps::quotes()
{
    QCOMPARE(StripQuotes(QStringLiteral("  \"a b\"  ")), QStringLiteral("a b"));
    QCOMPARE(StripQuotes(QStringLiteral("\"\"x\"")), QStringLiteral("\"x"));
    QCOMPARE(StripQuotes(QStringLiteral("\"")), QString());
    QCOMPARE(StripQuotes(QStringLiteral("\tx\t")), QStringLiteral("\tx\t"));
    QCOMPARE(AddQuotes(QString()), QStringLiteral("\"\""));
    QCOMPARE(AddQuotes(QStringLiteral("a")), QStringLiteral("\"a\""));
    QCOMPARE(AddQuotes(QStringLiteral("\"a")), QStringLiteral("\"a\""));
    QCOMPARE(AddQuotes(QStringLiteral("\"")), QStringLiteral("\""));
}

void tst_TextOps::spans()
{
    QStringList list{QStringLiteral("old")};
    QCOMPARE(CollectSpans(QStringLiteral("<img a><IMG b>x<img c"), QStringLiteral("<img"), QStringLiteral(">"), list), 2);
    QCOMPARE(list, QStringList({QStringLiteral("<img a>"), QStringLiteral("<IMG b>")}));
    QCOMPARE(CollectSpans(QStringLiteral("<a<b>><c>"), QStringLiteral("<"), QStringLiteral(">"), list), 2);
    QCOMPARE(list, QStringList({QStringLiteral("<a<b>"), QStringLiteral("<c>")}));

    QString span = QStringLiteral("kept");
    QVERIFY(!ExtractSpan(QStringLiteral("<title>x"), QStringLiteral("<TITLE>"), QStringLiteral("</TITLE>"), span));
    QCOMPARE(span, QStringLiteral("kept"));
    QVERIFY(ExtractSpan(QStringLiteral("a<Title>x</TITLE>b</title>"), QStringLiteral("<TITLE>"),
                        QStringLiteral("</TITLE>"), span));
    QCOMPARE(span, QStringLiteral("<Title>x</TITLE>"));
}

void tst_TextOps::tagPositions()
{
    const QString text = QStringLiteral("<b>word <a href=x");
    QVERIFY(!IsInsideTag(text, 4));    // "w": behind a ">"
    QVERIFY(IsInsideTag(text, 12));    // "h" of href
    QVERIFY(IsInsideTag(text, 100));   // past the end: still walks back
    QVERIFY(!IsInsideTag(QStringLiteral("word"), 3));
    QVERIFY(!IsInsideTag(text, 1));
    QVERIFY(IsWholeTag(QStringLiteral("<b>")));
    QVERIFY(!IsWholeTag(QStringLiteral("<b>\r\n")));
    QVERIFY(!IsWholeTag(QString()));
}

QTEST_GUILESS_MAIN(tst_TextOps)
#include "tst_textops.moc"
