#include "core/StatusText.h"
#include "markup/Attributes.h"
#include "markup/TextOps.h"

#include <QtTest>

using namespace qly;
using namespace qly::markup;

class tst_TextOps : public QObject
{
    Q_OBJECT
private slots:
    void lowerCaseTags();
    void replaceAll();
    void findLastAndTags();
    void quotesAndSpans();
    void attributeValue_data();
    void attributeValue();
    void delimitedValue();
};

void tst_TextOps::lowerCaseTags()
{
    auto lower = [](const char *text) { return LowerCaseTags(QString::fromUtf8(text)); };
    QCOMPARE(lower("<IMG SRC=\"A.GIF\" ALT=B>Text"), QStringLiteral("<img src=\"A.GIF\" alt=b>Text"));
    QCOMPARE(lower("Say \"HI\" <B ID=\"X\" CLASS=Y>"), QStringLiteral("Say \"HI\" <b id=\"X\" class=y>"));
    // A ">" inside quotes ends the tag.
    QCOMPARE(lower("<A T=\"X>Y\" HREF=Z>"), QStringLiteral("<a t=\"X>Y\" HREF=Z>"));
    QCOMPARE(lower("<\u00c4B>\u00dcBER</\u00c4B>"), QStringLiteral("<\u00e4b>\u00dcBER</\u00e4b>"));
    QCOMPARE(core::StatusText::instance().text(), QStringLiteral("Converting tags to lowercase..."));
}

void tst_TextOps::replaceAll()
{
    auto replaced = [](QString text, const char *find, const char *by, int mode, long hits) {
        const long n = ReplaceAll(text, QString::fromLatin1(find), QString::fromLatin1(by), mode);
        return n == hits ? text : QStringLiteral("%1 hits").arg(n);
    };
    QCOMPARE(replaced(QStringLiteral("aaaaa"), "aa", "b", BinaryCompare, 2), QStringLiteral("bba"));
    QCOMPARE(replaced(QStringLiteral("abab"), "ab", "x", BinaryCompare, 2), QStringLiteral("xx"));
    QCOMPARE(replaced(QStringLiteral("aaa"), "a", "aa", BinaryCompare, 3), QStringLiteral("aaaaaa"));
    QCOMPARE(replaced(QStringLiteral("The the THE"), "the", "a", BinaryCompare, 1), QStringLiteral("The a THE"));
    QCOMPARE(replaced(QStringLiteral("The the THE"), "the", "a", TextCompare, 3), QStringLiteral("a a a"));
    QCOMPARE(replaced(QStringLiteral("Ab ab"), "ab", "x", 70000, 2), QStringLiteral("x x"));
    QCOMPARE(replaced(QStringLiteral("abc"), "", "x", TextCompare, 0), QStringLiteral("abc"));
    QCOMPARE(ReplaceText(QStringLiteral("<B>x<b>"), QStringLiteral("<b>"), QString()), QStringLiteral("x"));
}

void tst_TextOps::findLastAndTags()
{
    QCOMPARE(FindLast(0, QStringLiteral("<a><b>"), QStringLiteral("<")), 4);
    QCOMPARE(FindLast(0, QStringLiteral("ab<"), QStringLiteral("<")), 0);  // the very end is not searched
    QCOMPARE(FindLast(0, QStringLiteral("xABxab"), QStringLiteral("ab")), 2);
    QCOMPARE(FindLast(3, QStringLiteral("<a><b>"), QStringLiteral("<")), 1);

    const QString text = QStringLiteral("<b>word <a href=x");
    QVERIFY(!IsInsideTag(text, 4));
    QVERIFY(IsInsideTag(text, 12));
    QVERIFY(!IsInsideTag(text, 1));
    QVERIFY(!IsWholeTag(QStringLiteral("<b>\r\n")));
    QVERIFY(!IsWholeTag(QString()));
}

void tst_TextOps::quotesAndSpans()
{
    QCOMPARE(StripQuotes(QStringLiteral("  \"a b\"  ")), QStringLiteral("a b"));
    QCOMPARE(StripQuotes(QStringLiteral("\"\"x\"")), QStringLiteral("\"x"));
    QCOMPARE(AddQuotes(QString()), QStringLiteral("\"\""));
    QCOMPARE(AddQuotes(QStringLiteral("\"a")), QStringLiteral("\"a\""));
    QCOMPARE(AddQuotes(QStringLiteral("\"")), QStringLiteral("\""));

    QStringList list{QStringLiteral("old")};
    const QString images = QStringLiteral("<img a><IMG b>x<img c");
    QCOMPARE(CollectSpans(images, QStringLiteral("<img"), QStringLiteral(">"), list), 2);
    QCOMPARE(list, QStringList({QStringLiteral("<img a>"), QStringLiteral("<IMG b>")}));
    QString span = QStringLiteral("kept");
    QVERIFY(!ExtractSpan(QStringLiteral("<title>x"), QStringLiteral("<TITLE>"), QStringLiteral("</TITLE>"), span));
    QCOMPARE(span, QStringLiteral("kept"));
}

void tst_TextOps::attributeValue_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("quoted with blank") << "<A HREF=\"a b.htm\">" << "HREF" << "a b.htm";
    QTest::newRow("unquoted stops at blank") << "<A HREF=a b.htm>" << "HREF" << "a";
    QTest::newRow("quoted stops at >") << "<IMG ALT=\"x>y\">" << "ALT" << "x";
    QTest::newRow("unquoted last") << "<A HREF=\"x\" NAME=top>" << "name" << "top";
    QTest::newRow("absent") << "<IMG WIDTH=10>" << "ID" << "";
    QTest::newRow("letter before: found inside") << "<IMG LOWSRC=\"lo.gif\" SRC=\"hi.gif\">" << "SRC" << "lo.gif";
    QTest::newRow("digit 1-9 before: refused") << "<IMG X1SRC=a SRC=b>" << "SRC" << "";
    QTest::newRow("digit 0 before: found") << "<IMG X0SRC=a SRC=b>" << "SRC" << "a";
    QTest::newRow("blanks round =") << "<A HREF = \"x\">" << "HREF" << "";
    QTest::newRow("unquoted stops at CR") << "<A HREF=x\r\nNAME=y>" << "HREF" << "x";
    QTest::newRow("nothing after =") << "<A HREF=" << "HREF" << "";
    QTest::newRow("trimmed, unterminated") << "  HREF=x.htm  " << "HREF" << "x.htm";
}

void tst_TextOps::attributeValue()
{
    QFETCH(QString, tag);
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(GetAttributeValue(tag, name), expected);
    QVERIFY(!tag.startsWith(u' ') && !tag.endsWith(u' '));  // the caller's text is trimmed
}

void tst_TextOps::delimitedValue()
{
    auto value = [](const char *text, const char *key, const char *delimiter) {
        return GetDelimitedValue(QString::fromUtf8(text), QString::fromUtf8(key), QString::fromUtf8(delimiter));
    };
    QCOMPARE(value("k=\"a b\";x", "K=", ";"), QStringLiteral("a b"));
    QCOMPARE(value("k=\"\";", "k=", ";"), QStringLiteral("\"\""));
    QCOMPARE(value("a=b", "k=", ";"), QString());
    QCOMPARE(value("<M N=x C=y>", "N=", ""), QStringLiteral("x"));
    QCOMPARE(value("<M C= abc>", "C=", ""), QStringLiteral("abc"));
}

QTEST_GUILESS_MAIN(tst_TextOps)
#include "tst_textops.moc"
