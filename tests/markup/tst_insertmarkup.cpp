#include "core/Settings.h"
#include "markup/Selection.h"
#include "markup/TagPrimitives.h"
#include "support/FakeWorkspace.h"
#include "support/TestEnv.h"

#include <QtTest>

using namespace qly;
using namespace qly::markup;

namespace {

class Box final : public TextHolder
{
public:
    explicit Box(Kind kind) : m_kind(kind) {}
    Kind kind() const override { return m_kind; }
    QString text() const override { return m_text; }
    void setText(const QString &text) override { m_text = text; }
    QString selectedText() const override { return selected; }
    QString selected;

private:
    Kind m_kind;
    QString m_text = QStringLiteral("old");
};

void setEditing(const char *key, bool on)
{
    core::WriteSetting(QStringLiteral("Editing"), QString::fromLatin1(key), core::YesNo(on));
}

} // namespace

class tst_InsertMarkup : public QObject
{
    Q_OBJECT
private slots:
    void insert_data();
    void insert();
    void oneUndoStepAndDirty();
    void lowerCaseAndColour();
    void textHolders();
    void noDocument();
    void selection();
    void between();
    void tagItemAndDate();
};

void tst_InsertMarkup::insert_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("selStart");
    QTest::addColumn<int>("selLength");
    QTest::addColumn<QString>("startText");
    QTest::addColumn<QString>("endText");
    QTest::addColumn<bool>("skip");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("length");
    QTest::newRow("empty pair: caret between") << "ab" << 1 << 0 << "<B>" << "</B>" << false << "a<B></B>b" << 4 << 0;
    QTest::newRow("selection stays selected") << "a word b" << 2 << 4 << "<B>word" << "</B>" << true
                                              << "a <B>word</B> b" << 2 << 11;
    QTest::newRow("single text: caret behind") << "ab" << 1 << 0 << "<BR>" << "" << false << "a<BR>b" << 5 << 0;
    QTest::newRow("repeat: text kept, selection shrinks") << "<H1>word</H1>" << 0 << 13 << "<H1><H1>word</H1>"
                                                          << "</H1>" << false << "<H1>word</H1>" << 0 << 4;
    QTest::newRow("repeat test skipped") << "<H1>word</H1>" << 0 << 13 << "<H1><H1>word</H1>" << "</H1>" << true
                                         << "<H1><H1>word</H1></H1>" << 0 << 22;
    QTest::newRow("repeated tag in a block drops it") << "x" << 1 << 0 << "<OPTION>a<OPTION>b</OPTION>" << ""
                                                      << false << "x" << 1 << 0;
    QTest::newRow("line break spoils the repeat test") << "x" << 1 << 0 << "<LI>a<LI>b</LI>\r\n" << "" << false
                                                       << "x<LI>a<LI>b</LI>\r\n" << 18 << 0;
    QTest::newRow("different tags are no repeat") << "" << 0 << 0 << "<B><I>x</I>" << "</B>" << false
                                                  << "<B><I>x</I></B>" << 11 << 0;
}

void tst_InsertMarkup::insert()
{
    QFETCH(QString, text);
    QFETCH(int, selStart);
    QFETCH(int, selLength);
    QFETCH(QString, startText);
    QFETCH(QString, endText);
    QFETCH(bool, skip);
    test::TestEnv env;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), text);
    doc->edit.SetSel(selStart, selStart + selLength);
    InsertMarkup(startText, endText, skip);
    QTEST(doc->edit.Text(), "expected");
    QTEST(doc->edit.SelStart(), "caret");
    QTEST(doc->edit.SelLength(), "length");
}

void tst_InsertMarkup::oneUndoStepAndDirty()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), QStringLiteral("abc"));
    test::FakeDocument *other = ws.addDocument(QStringLiteral("b"), QStringLiteral("xyz"));
    other->edit.setDirty(false);
    other->edit.SetSel(1, 2);
    InsertMarkup(QStringLiteral("<B>y"), QStringLiteral("</B>"), true);
    QVERIFY(other->edit.Dirty());
    other->edit.Undo();
    QCOMPARE(other->edit.Text(), QStringLiteral("xyz"));

    // A given buffer does not mark the current document changed.
    other->edit.setDirty(false);
    InsertMarkup(QStringLiteral("<P>"), QString(), false, doc->edit);
    QVERIFY(!other->edit.Dirty());
    QCOMPARE(doc->edit.Text(), QStringLiteral("<P>abc"));
}

void tst_InsertMarkup::lowerCaseAndColour()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), QString());
    InsertMarkup(QStringLiteral("<IMG SRC=\"A.GIF\">"), QString());
    QCOMPARE(doc->edit.colorPasses(), 0);
    setEditing("Lower Case Tags", true);
    setEditing("Color HTML", true);
    InsertMarkup(QStringLiteral("<A HREF=\"X.HTM\">Go"), QStringLiteral("</A>"));
    QCOMPARE(doc->edit.Text(), QStringLiteral("<IMG SRC=\"A.GIF\"><a href=\"X.HTM\">Go</a>"));
    QCOMPARE(doc->edit.colorPasses(), 1);
    // Text without "<" is left alone; the caret stood between the pair.
    InsertMarkup(QStringLiteral("BIG"), QString());
    QVERIFY(doc->edit.Text().endsWith(QStringLiteral("GoBIG</a>")));
}

void tst_InsertMarkup::textHolders()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    Box box(TextHolder::Kind::TextBox);
    Box combo(TextHolder::Kind::ComboBox);
    InsertMarkup(QStringLiteral("<B>"), QStringLiteral("</B>"), true, box);
    QCOMPARE(box.text(), QStringLiteral("old"));  // no document: inert even with a target

    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), QStringLiteral("t"));
    doc->edit.setDirty(false);
    InsertMarkup(QStringLiteral("<B>"), QStringLiteral("</B>"), false, box);
    InsertMarkup(QStringLiteral("<B>"), QStringLiteral("</B>"), false, combo);
    QCOMPARE(box.text(), QStringLiteral("<B>"));
    QCOMPARE(combo.text(), QStringLiteral("<B></B>"));
    QCOMPARE(doc->edit.Text(), QStringLiteral("t"));
    QVERIFY(!doc->edit.Dirty());

    box.selected = QStringLiteral("sel\r\n");
    QCOMPARE(GetSelection(box), QStringLiteral("sel\r\n"));
    QString out = QStringLiteral("x");
    QVERIFY(!HasSelection(Target(), out));
    QCOMPARE(out, QString());
    QCOMPARE(GetSelection(Target()), QString());
}

void tst_InsertMarkup::noDocument()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    InsertMarkup(QStringLiteral("<B>"), QStringLiteral("</B>"));
    WrapSelection(QStringLiteral("<B>"), QStringLiteral("</B>"));
    InsertTagItem(QStringLiteral("B\tbold\tY"));
    InsertDate(1);
    QCOMPARE(ws.count(), 0);
}

void tst_InsertMarkup::selection()
{
    documents::MemoryEdit edit;
    edit.setText(QStringLiteral("a\r\n\r\nb"));
    edit.SetSel(0, 5);
    QCOMPARE(GetSelection(edit), QStringLiteral("a\r\n"));  // exactly one CR LF goes
    QString text;
    QVERIFY(HasSelection(edit, text));
    QCOMPARE(text, QStringLiteral("a\r\n\r\n"));
    edit.SetSel(6, 6);
    QVERIFY(!HasSelection(edit, text));
}

void tst_InsertMarkup::between()
{
    test::TestEnv env;
    documents::MemoryEdit edit;
    edit.setText(QStringLiteral("<HEAD><title>Old</TITLE></HEAD>"));
    QCOMPARE(SelectBetween(edit, QStringLiteral("<TITLE>"), QStringLiteral("</title>")), 18);
    QCOMPARE(edit.SelStart(), 6);

    // No hit: the old selection stays, and ReplaceBetween then overwrites it.
    edit.SetSel(0, 6);
    QCOMPARE(SelectBetween(edit, QStringLiteral("<META"), QStringLiteral(">")), 6);
    QString meta = QStringLiteral("<META NAME=\"A\">");
    setEditing("Lower Case Tags", true);
    QVERIFY(ReplaceBetween(edit, QStringLiteral("<META"), QStringLiteral(">"), meta));
    QCOMPARE(meta, QStringLiteral("<meta name=\"A\">"));
    QCOMPARE(edit.Text(), QStringLiteral("<meta name=\"A\"><title>Old</TITLE></HEAD>"));

    QString title = QStringLiteral("<TITLE>New</TITLE>");
    QVERIFY(ReplaceBetween(edit, QStringLiteral("<title>"), QStringLiteral("</title>"), title, true));
    QCOMPARE(edit.Text(), QStringLiteral("<meta name=\"A\"><TITLE>New</TITLE></HEAD>"));

    edit.SetSel(0, 0);
    QVERIFY(!ReplaceBetween(edit, QStringLiteral("<BODY"), QStringLiteral(">"), title));
    // An end text found only before the start text is no hit.
    QCOMPARE(SelectBetween(edit, QStringLiteral("</HEAD>"), QStringLiteral("<meta")), 0);
}

void tst_InsertMarkup::tagItemAndDate()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), QString());
    InsertTagItem(QStringLiteral("TABLE\tA table\tyes"));
    QCOMPARE(doc->edit.Text(), QStringLiteral("<TABLE></TABLE>"));
    QCOMPARE(doc->edit.SelStart(), 7);
    InsertTagItem(QStringLiteral("BR\tA break\tNo"));
    QCOMPARE(doc->edit.Text(), QStringLiteral("<TABLE><BR></TABLE>"));

    doc->edit.setText(QString());
    InsertDate(5);
    QCOMPARE(doc->edit.Text(), QString());
    InsertDate(4);
    const QString year = QString::number(QDate::currentDate().year());
    QVERIFY2(doc->edit.Text().contains(year), qPrintable(doc->edit.Text()));
    const QDateTime moment(QDate(2001, 2, 3), QTime(4, 5, 6));
    QVERIFY(DateText(2, moment).startsWith(DateText(1, moment) + u' '));
    QVERIFY(DateText(4, moment).startsWith(DateText(3, moment) + u' '));
    QVERIFY(!DateText(3, moment).contains(QStringLiteral("04:05:06")));
}

QTEST_GUILESS_MAIN(tst_InsertMarkup)
#include "tst_insertmarkup.moc"
