#include "core/Settings.h"
#include "markup/FormatMenu.h"
#include "markup/Selection.h"
#include "markup/TagPrimitives.h"
#include "support/FakeWorkspace.h"
#include "support/TestEnv.h"

#include <QtTest>

#include <functional>

using namespace qly;
using namespace qly::markup;

using Command = std::function<void()>;
Q_DECLARE_METATYPE(Command)

namespace {

class Box final : public TextHolder
{
public:
    explicit Box(Kind kind) : m_kind(kind) {}
    Kind kind() const override { return m_kind; }
    QString text() const override { return m_text; }
    void setText(const QString &text) override { m_text = text; }
    QString selectedText() const override { return QString(); }

private:
    Kind m_kind;
    QString m_text = QStringLiteral("old");
};

// "Section/Key=Value"
void applySetting(const QString &setting)
{
    const QString key = setting.section(u'=', 0, 0);
    core::WriteSetting(key.section(u'/', 0, 0), key.section(u'/', 1), setting.section(u'=', 1));
}

Command insert(const char *startText, const char *endText)
{
    return [=] { InsertMarkup(QString::fromUtf8(startText), QString::fromUtf8(endText)); };
}

} // namespace

class tst_InsertMarkup : public QObject
{
    Q_OBJECT
private slots:
    void edit_data();
    void edit();
    void targetsUndoAndSettings();
    void between();
    void lineEndsStayWhole();
    void noDocument();
};

void tst_InsertMarkup::edit_data()
{
    QTest::addColumn<Command>("run");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("selStart");
    QTest::addColumn<int>("selLength");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("length");
    const Command bold = FormatBold_Click, head1 = [] { tlbHead_Click(1); }, drop = FormatDropCaps_Click;
    const Command br = tlbBreak_Click, para = tlbParagraph_Click;
    const QString container = QStringLiteral("General/P is a Container=YES");
    QTest::newRow("repeat: text kept, selection shrinks") << insert("<H1><H1>word</H1>", "</H1>") << ""
                                                          << "<H1>word</H1>" << 0 << 13 << "<H1>word</H1>" << 0 << 4;
    QTest::newRow("block repeating a tag is dropped") << insert("<LI>a<LI>b</LI>", "") << "" << "xy" << 1 << 0 << "xy"
                                                      << 2 << 0;
    QTest::newRow("line break spoils the repeat test") << insert("<LI>a<LI>b</LI>\r\n", "") << "" << "x" << 1 << 0
                                                       << "x<LI>a<LI>b</LI>\r\n" << 18 << 0;
    QTest::newRow("tags lower-cased, values kept") << insert("<A HREF=\"X\">", "</A>") << "Editing/Lower Case Tags=Yes"
                                                   << "" << 0 << 0 << "<a href=\"X\"></a>" << 12 << 0;
    QTest::newRow("bold, nothing selected") << bold << "" << "ab" << 1 << 0 << "a<STRONG></STRONG>b" << 9 << 0;
    QTest::newRow("bold, word selected") << bold << "" << "a word" << 2 << 4 << "a <STRONG>word</STRONG>" << 2 << 21;
    QTest::newRow("bold, B and I setting") << bold << "General/Strong and Emphasis=NO" << "w" << 0 << 1 << "<B>w</B>"
                                           << 0 << 8;
    QTest::newRow("heading on a whole line") << head1 << "" << "line\r\nnext" << 0 << 6 << "<H1>line</H1>next" << 0
                                             << 13;
    QTest::newRow("break, lines") << br << "" << "a\r\nb\r\nc" << 0 << 6 << "a<BR>\r\nbc" << 0 << 8;
    QTest::newRow("paragraph container") << para << container << "a\r\nb\r\nc" << 0 << 6
                                         << "<P>a</P>\r\n<P>b</P>\r\nc" << 0 << 20;
    QTest::newRow("paragraph single") << para << "" << "a\r\nb" << 0 << 4 << "a<P>\r\nb<P>\r\n" << 0 << 12;
    QTest::newRow("drop caps in the first word") << drop << "" << "Hello" << 3 << 0 << "<FONT SIZE=+2>H</FONT>ello"
                                                 << 3 << 0;
    QTest::newRow("drop caps after a line end") << drop << "General/Big First Letter Size=+4" << "a\r\nbc" << 5 << 0
                                                << "a\r\n<FONT SIZE=+4>b</FONT>c" << 5 << 0;
    QTest::newRow("drop caps on an empty line") << drop << "" << "a\r\n\r\nb" << 3 << 0
                                                << "a\r\n<FONT SIZE=+2></FONT>\r\nb" << 3 << 0;
}

void tst_InsertMarkup::edit()
{
    QFETCH(Command, run);
    QFETCH(QString, setting);
    QFETCH(QString, text);
    QFETCH(int, selStart);
    QFETCH(int, selLength);
    test::TestEnv env;
    test::FakeWorkspace ws;
    if (!setting.isEmpty())
        applySetting(setting);
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), text);
    doc->edit.SetSel(selStart, selStart + selLength);
    run();
    QTEST(doc->edit.Text(), "expected");
    QTEST(doc->edit.SelStart(), "caret");
    QTEST(doc->edit.SelLength(), "length");
}

void tst_InsertMarkup::targetsUndoAndSettings()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), QStringLiteral("xyz"));
    doc->edit.setDirty(false);
    doc->edit.SetSel(1, 2);
    InsertMarkup(QStringLiteral("<B>y"), QStringLiteral("</B>"), true);
    QVERIFY(doc->edit.Dirty());
    QCOMPARE(doc->edit.colorPasses(), 0);
    doc->edit.Undo();
    QCOMPARE(doc->edit.Text(), QStringLiteral("xyz"));

    // Boxes: a text box takes the start text only, a combo box both; the document stays untouched.
    applySetting(QStringLiteral("Editing/Color HTML=yes"));
    Box box(TextHolder::Kind::TextBox), combo(TextHolder::Kind::ComboBox);
    doc->edit.setDirty(false);
    InsertMarkup(QStringLiteral("<B>"), QStringLiteral("</B>"), false, box);
    InsertMarkup(QStringLiteral("<B>"), QStringLiteral("</B>"), false, combo);
    QCOMPARE(box.text() + combo.text(), QStringLiteral("<B><B></B>"));
    QVERIFY(!doc->edit.Dirty());

    doc->edit.SetSel(0, 0);
    InsertTagItem(QStringLiteral("TABLE\tA table\tyes"));
    QCOMPARE(doc->edit.Text(), QStringLiteral("<TABLE></TABLE>xyz"));
    QCOMPARE(doc->edit.colorPasses(), 1);

    InsertDate(4);
    QVERIFY(doc->edit.Text().contains(QString::number(QDate::currentDate().year())));

    // Exactly one trailing CR LF leaves the selection.
    doc->edit.setText(QStringLiteral("a\r\n\r\nb"));
    doc->edit.SetSel(0, 5);
    QCOMPARE(GetSelection(doc->edit), QStringLiteral("a\r\n"));
    QCOMPARE(GetSelection(Target()), QString());
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
    QString meta = QStringLiteral("<META NAME=\"A\">");
    applySetting(QStringLiteral("Editing/Lower Case Tags=Yes"));
    QVERIFY(ReplaceBetween(edit, QStringLiteral("<META"), QStringLiteral(">"), meta));
    QCOMPARE(meta, QStringLiteral("<meta name=\"A\">"));
    QString title = QStringLiteral("<TITLE>New</TITLE>");
    QVERIFY(ReplaceBetween(edit, QStringLiteral("<title>"), QStringLiteral("</title>"), title, true));
    QCOMPARE(edit.Text(), QStringLiteral("<meta name=\"A\"><TITLE>New</TITLE></HEAD>"));
    edit.SetSel(0, 0);
    QVERIFY(!ReplaceBetween(edit, QStringLiteral("<BODY"), QStringLiteral(">"), title));
}

// Every Format command at the end of a CR LF line, with the caret before the
// CR or a selection with one end between CR and LF, keeps each pair whole.
void tst_InsertMarkup::lineEndsStayWhole()
{
    const QList<Command> commands = {
        FormatBold_Click, FormatItalic_Click, FormatUnderline_Click, FormatLeft_Click, FormatCenter_Click,
        FormatRight_Click, FormatBigger_Click, FormatSmaller_Click, FormatDropCaps_Click, [] { tlbHead_Click(1); },
        [] { tlbHead_Click(6); }, tlbIndent_Click, tlbOutdent_Click, tlbBreak_Click, tlbParagraph_Click,
        tlbNBSP_Click};
    const QString text = QStringLiteral("one.\r\n\r\ntwo\r\n");
    // Caret before a CR behind a full stop and on an empty line; the CR of the
    // empty line alone; "two" with the CR, and with the LF before it.
    const QList<std::pair<int, int>> places = {{4, 0}, {6, 0}, {6, 1}, {8, 4}, {7, 4}};
    const QRegularExpression lone(QStringLiteral("\r(?!\n)|(?<!\r)\n"));
    for (const QString &container : {QStringLiteral("No"), QStringLiteral("Yes")}) {
        for (qsizetype c = 0; c < commands.size(); ++c) {
            for (const auto &[start, length] : places) {
                test::TestEnv env;
                test::FakeWorkspace ws;
                core::WriteSetting(QStringLiteral("General"), QStringLiteral("P is a Container"), container);
                test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), text);
                doc->edit.SetSel(start, start + length);
                commands[c]();
                const QString after = doc->edit.Text();
                const QString where = QStringLiteral("command %1 at %2+%3: ").arg(c).arg(start).arg(length)
                                      + QString(after).replace(u'\r', u'R').replace(u'\n', u'N');
                QVERIFY2(!after.contains(lone), qPrintable(where));
            }
        }
    }
}

void tst_InsertMarkup::noDocument()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    Box box(TextHolder::Kind::TextBox);
    InsertMarkup(QStringLiteral("<B>"), QString(), false, box);
    QCOMPARE(box.text(), QStringLiteral("old"));
    for (const Command &run : {Command(FormatBold_Click), Command(FormatDropCaps_Click), Command(tlbBreak_Click),
                               Command(tlbParagraph_Click), Command([] { InsertTagItem(QStringLiteral("B")); })})
        run();
    QCOMPARE(ws.count(), 0);
}

QTEST_GUILESS_MAIN(tst_InsertMarkup)
#include "tst_insertmarkup.moc"
