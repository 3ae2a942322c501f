#include "markup/Attributes.h"

#include <QtTest>

using namespace qly::markup;

class tst_Attributes : public QObject
{
    Q_OBJECT
private slots:
    void attributeValue_data();
    void attributeValue();
    void trimsCallersText();
    void delimitedValue_data();
    void delimitedValue();
};

void tst_Attributes::attributeValue_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("quoted with blank") << "<A HREF=\"a b.htm\">" << "HREF" << "a b.htm";
    QTest::newRow("unquoted stops at blank") << "<A HREF=a b.htm>" << "HREF" << "a";
    QTest::newRow("quoted stops at >") << "<IMG ALT=\"x>y\">" << "ALT" << "x";
    QTest::newRow("unquoted last") << "<A HREF=\"x\" NAME=top>" << "NAME" << "top";
    QTest::newRow("absent") << "<IMG WIDTH=10>" << "ID" << "";
    QTest::newRow("case ignored") << "<a href=x>" << "HREF" << "x";
    QTest::newRow("letter before: found inside") << "<IMG LOWSRC=\"lo.gif\" SRC=\"hi.gif\">" << "SRC" << "lo.gif";
    QTest::newRow("digit 1-9 before: refused") << "<IMG X1SRC=a SRC=b>" << "SRC" << "";
    QTest::newRow("digit 0 before: found") << "<IMG X0SRC=a SRC=b>" << "SRC" << "a";
    QTest::newRow("blanks round =") << "<A HREF = \"x\">" << "HREF" << "";
    QTest::newRow("unquoted stops at CR") << "<A HREF=x\r\nNAME=y>" << "HREF" << "x";
    QTest::newRow("quoted runs over CR LF") << "<A HREF=\"a\r\nb\">" << "HREF" << "a\r\nb";
    QTest::newRow("nothing after =") << "<A HREF=" << "HREF" << "";
    QTest::newRow("unterminated") << "<A HREF=x.htm" << "HREF" << "x.htm";
    QTest::newRow("at the very start") << "HREF=\"y\"" << "HREF" << "y";
}

void tst_Attributes::attributeValue()
{
    QFETCH(QString, tag);
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(GetAttributeValue(tag, name), expected);
}

void tst_Attributes::trimsCallersText()
{
    QString tag = QStringLiteral("  <A HREF=x>  ");
    QCOMPARE(GetAttributeValue(tag, QStringLiteral("href")), QStringLiteral("x"));
    QCOMPARE(tag, QStringLiteral("<A HREF=x>"));
}

void tst_Attributes::delimitedValue_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("delimiter");
    QTest::addColumn<QString>("expected");
    QTest::newRow("to delimiter, quotes stripped") << "k=\"a b\";x" << "K=" << ";" << "a b";
    QTest::newRow("to the end") << "k= v " << "k=" << ";" << "v";
    QTest::newRow("two characters keep quotes") << "k=\"\";" << "k=" << ";" << "\"\"";
    QTest::newRow("missing key") << "a=b" << "k=" << ";" << "";
    QTest::newRow("blank first") << "<META NAME=x CONTENT=y>" << "NAME=" << "" << "x";
    QTest::newRow("then >") << "<META CONTENT= abc>" << "CONTENT=" << "" << "abc";
}

void tst_Attributes::delimitedValue()
{
    QFETCH(QString, text);
    QFETCH(QString, key);
    QFETCH(QString, delimiter);
    QFETCH(QString, expected);
    QCOMPARE(GetDelimitedValue(text, key, delimiter), expected);
}

QTEST_GUILESS_MAIN(tst_Attributes)
#include "tst_attributes.moc"
