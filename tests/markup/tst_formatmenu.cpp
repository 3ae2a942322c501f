#include "core/Settings.h"
#include "markup/FormatMenu.h"
#include "support/FakeWorkspace.h"
#include "support/TestEnv.h"

#include <QtTest>

#include <functional>

using namespace qly;
using namespace qly::markup;

Q_DECLARE_METATYPE(std::function<void()>)

namespace {

void setGeneral(const char *key, const QString &value)
{
    core::WriteSetting(QStringLiteral("General"), QString::fromLatin1(key), value);
}

} // namespace

class tst_FormatMenu : public QObject
{
    Q_OBJECT
private slots:
    void command_data();
    void command();
    void boldFollowsSettingOnEveryCall();
    void noDocument();
};

void tst_FormatMenu::command_data()
{
    QTest::addColumn<std::function<void()>>("run");
    QTest::addColumn<QString>("setting");  // "key=value" in [General], or ""
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("selStart");
    QTest::addColumn<int>("selLength");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("length");
    using F = std::function<void()>;
    const F bold = FormatBold_Click;
    const F head1 = [] { tlbHead_Click(1); };
    const F br = tlbBreak_Click;
    const F para = tlbParagraph_Click;
    const F drop = FormatDropCaps_Click;
    QTest::newRow("bold, nothing selected") << bold << "" << "ab" << 1 << 0 << "a<STRONG></STRONG>b" << 9 << 0;
    QTest::newRow("bold, word selected") << bold << "" << "a word" << 2 << 4 << "a <STRONG>word</STRONG>" << 2 << 21;
    QTest::newRow("bold repeats its tags") << bold << "" << "<STRONG>w</STRONG>" << 0 << 18
                                           << "<STRONG><STRONG>w</STRONG></STRONG>" << 0 << 35;
    QTest::newRow("heading on a whole line") << head1 << "" << "line\r\nnext" << 0 << 6 << "<H1>line</H1>next" << 0
                                             << 13;
    QTest::newRow("heading on a heading") << head1 << "" << "<H1>word</H1>" << 0 << 13 << "<H1>word</H1>" << 0 << 4;
    QTest::newRow("bigger") << F(FormatBigger_Click) << "" << "x" << 0 << 1 << "<FONT SIZE=+1>x</FONT SIZE>" << 0
                            << 27;
    QTest::newRow("outdent wraps") << F(tlbOutdent_Click) << "" << "x" << 0 << 1 << "<BLOCKQUOTE>x</BLOCKQUOTE>" << 0
                                   << 26;
    QTest::newRow("right") << F(FormatRight_Click) << "" << "" << 0 << 0 << "<RIGHT></RIGHT>" << 7 << 0;
    QTest::newRow("nbsp replaces") << F(tlbNBSP_Click) << "" << "a b" << 1 << 1 << "a&nbsp;b" << 1 << 6;
    QTest::newRow("break, lines") << br << "" << "a\r\nb\r\nc" << 0 << 6 << "a<BR>\r\nbc" << 0 << 8;
    QTest::newRow("break, caret") << br << "" << "ab" << 1 << 0 << "a<BR>b" << 5 << 0;
    QTest::newRow("paragraph container") << para << "P is a Container=YES" << "a\r\nb\r\nc" << 0 << 6
                                         << "<P>a</P>\r\n<P>b</P>\r\nc" << 0 << 20;
    QTest::newRow("paragraph single") << para << "P is a Container=No" << "a\r\nb" << 0 << 4 << "a<P>\r\nb<P>\r\n"
                                      << 0 << 12;
    QTest::newRow("paragraph container, caret") << para << "P is a Container=yes" << "" << 0 << 0 << "<P></P>" << 3
                                                << 0;
    QTest::newRow("paragraph single, caret") << para << "" << "ab" << 1 << 0 << "a<P>b" << 4 << 0;
    QTest::newRow("drop caps at start") << drop << "" << "Hello" << 0 << 0 << "<FONT SIZE=+2>H</FONT>ello" << 0 << 0;
    QTest::newRow("drop caps inside a word") << drop << "" << "Hi, world" << 7 << 0
                                             << "Hi, <FONT SIZE=+2>w</FONT>orld" << 7 << 0;
    QTest::newRow("drop caps after a line end") << drop << "Big First Letter Size=+4" << "a\r\nbc" << 5 << 0
                                                << "a\r\n<FONT SIZE=+4>b</FONT>c" << 5 << 0;
    QTest::newRow("drop caps, selected word") << drop << "" << "Hello" << 0 << 5 << "<FONT SIZE=+2>H</FONT>ello" << 0
                                              << 0;
}

void tst_FormatMenu::command()
{
    QFETCH(std::function<void()>, run);
    QFETCH(QString, setting);
    QFETCH(QString, text);
    QFETCH(int, selStart);
    QFETCH(int, selLength);
    test::TestEnv env;
    test::FakeWorkspace ws;
    if (!setting.isEmpty())
        setGeneral(setting.section(u'=', 0, 0).toLatin1().constData(), setting.section(u'=', 1));
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), text);
    doc->edit.SetSel(selStart, selStart + selLength);
    run();
    QTEST(doc->edit.Text(), "expected");
    QTEST(doc->edit.SelStart(), "caret");
    QTEST(doc->edit.SelLength(), "length");
}

void tst_FormatMenu::boldFollowsSettingOnEveryCall()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a"), QString());
    setGeneral("Strong and Emphasis", QStringLiteral("NO"));
    FormatBold_Click();
    FormatItalic_Click();
    setGeneral("Strong and Emphasis", QStringLiteral("maybe"));
    FormatItalic_Click();
    QCOMPARE(doc->edit.Text(), QStringLiteral("<B><I><EM></EM></I></B>"));
}

void tst_FormatMenu::noDocument()
{
    test::TestEnv env;
    test::FakeWorkspace ws;
    ws.addDocument(QStringLiteral("a"), QStringLiteral("x"));
    ws.unloadDocument(ws.document(0));
    const std::vector<std::function<void()>> all = {
        FormatBold_Click, FormatItalic_Click, FormatUnderline_Click, FormatBigger_Click, FormatSmaller_Click,
        FormatLeft_Click, FormatCenter_Click, FormatRight_Click, FormatDropCaps_Click, tlbIndent_Click,
        tlbOutdent_Click, tlbNBSP_Click, tlbBreak_Click, tlbParagraph_Click, [] { tlbHead_Click(3); }};
    for (const auto &run : all)
        run();
    QCOMPARE(ws.count(), 0);
}

QTEST_GUILESS_MAIN(tst_FormatMenu)
#include "tst_formatmenu.moc"
