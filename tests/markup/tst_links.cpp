#include "core/Settings.h"
#include "markup/DuplicateLinks.h"
#include "markup/LinkCommands.h"
#include "markup/Links.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QtTest>

using namespace qly;

class tst_Links : public QObject
{
    Q_OBJECT
private slots:
    void relativePath_data();
    void relativePath();
    void roundTrips_data();
    void roundTrips();
    void fileUrls_data();
    void fileUrls();
    void relativeLink();
    void absoluteToRelativeWholeDocument();
    void relativeToAbsolute();
    void removeMarkup_data();
    void removeMarkup();
    void removeMarkupIsOneUndoAndCancels();
    void duplicateLinks();
};

void tst_Links::relativePath_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("expected");
    QTest::newRow("below") << "C:\\a\\b\\c.htm" << "C:\\a\\d.htm" << "b\\c.htm";
    QTest::newRow("up two") << "C:\\a\\b\\c.htm" << "C:\\a\\x\\y\\d.htm" << "..\\..\\b\\c.htm";
    QTest::newRow("drive case") << "c:\\A\\b\\c.htm" << "C:\\a\\d.htm" << "b\\c.htm";
    QTest::newRow("same file") << "C:\\a\\d.htm" << "C:\\a\\d.htm" << "";
    QTest::newRow("native below") << "/home/u/site/img/a.gif" << "/home/u/site/index.html" << "img/a.gif";
    QTest::newRow("native sibling") << "/home/u/site/b.html" << "/home/u/site/a.html" << "b.html";
    QTest::newRow("native up") << "/home/u/site/a.html" << "/home/u/site/sub/deep/x.html" << "../../a.html";
    QTest::newRow("native case counts") << "/home/u/Site/a.html" << "/home/u/site/x.html" << "../Site/a.html";
}

void tst_Links::relativePath()
{
    QFETCH(QString, target);
    QFETCH(QString, base);
    QTEST(markup::RelativePath(target, base), "expected");
}

void tst_Links::roundTrips_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("base");
    QTest::newRow("native deep") << "/srv/www/a/b/c.html" << "/srv/www/x/y/z/d.html";
    QTest::newRow("native root") << "/a.html" << "/srv/www/d.html";
    QTest::newRow("drive") << "C:\\w\\a.htm" << "C:\\w\\x\\d.htm";
    QTest::newRow("drive below") << "C:\\w\\x\\y\\a.htm" << "C:\\w\\d.htm";
}

void tst_Links::roundTrips()
{
    QFETCH(QString, target);
    QFETCH(QString, base);
    const QString relative = markup::RelativePath(target, base);
    const QString dir = base.left(std::max(base.lastIndexOf(u'/'), base.lastIndexOf(u'\\')));
    QCOMPARE(markup::ResolveRelativePath(relative, dir), target);
    // Through the URL forms and back.
    QCOMPARE(markup::FileUrlToPath(markup::PathToFileUrl(target)), target);
}

void tst_Links::fileUrls_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("path");
    QTest::newRow("native") << "file:///home/u/a.html" << "/home/u/a.html";
    QTest::newRow("quoted") << "\"file:///home/u/a.html\"" << "/home/u/a.html";
    QTest::newRow("old bar form") << "file:///C|/dir/name.htm" << "C:\\dir\\name.htm";
    QTest::newRow("old colon form") << "file:///C:/dir/name.htm" << "C:\\dir\\name.htm";
    QTest::newRow("relative") << "a/b.htm" << "a/b.htm";
}

void tst_Links::fileUrls()
{
    QFETCH(QString, url);
    QTEST(markup::FileUrlToPath(url), "path");
    QCOMPARE(markup::PathToFileUrl(QStringLiteral("C:\\w\\a.htm")), QStringLiteral("file:///C:/w/a.htm"));
    QCOMPARE(markup::PathToFileUrl(QStringLiteral("..\\a.htm")), QStringLiteral("../a.htm"));
    QCOMPARE(markup::ResolveRelativePath(QStringLiteral("../a.htm"), QStringLiteral("C:\\w\\x")),
             QStringLiteral("C:\\w\\a.htm"));
}

void tst_Links::relativeLink()
{
    test::TestEnv env;
    QCOMPARE(markup::RelativeLink(QStringLiteral("/srv/a.gif")), QString());
    test::FakeWorkspace workspace;
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("/srv/www/index.html"), QString(),
                                                    QStringLiteral("/srv/www/index.html"));
    QCOMPARE(markup::RelativeLink(QStringLiteral("/srv/www/img/a.gif")), QStringLiteral("img/a.gif"));
    QCOMPARE(markup::RelativeLink(QStringLiteral("/srv/www/index.html")), QStringLiteral("file:///srv/www/index.html"));
    doc->LocalFileName = QStringLiteral("C:\\www\\index.htm");
    QCOMPARE(markup::RelativeLink(QStringLiteral("C:\\www\\img\\a.gif")), QStringLiteral("img/a.gif"));
    QCOMPARE(markup::RelativeLink(QStringLiteral("D:\\pics\\a.gif")), QStringLiteral("file:///D|/pics/a.gif"));
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Always Use Absolute References"), QStringLiteral("Yes"));
    QCOMPARE(markup::RelativeLink(QStringLiteral("C:\\www\\img\\a.gif")), QStringLiteral("file:///C|/www/img/a.gif"));
    doc->LocalFileName = QStringLiteral("/srv/www/index.html");
    QCOMPARE(markup::RelativeLink(QStringLiteral("/srv/www/a.gif")), QStringLiteral("file:///srv/www/a.gif"));
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Always Use Absolute References"), QString());
    doc->LocalFileName.clear();
    QCOMPARE(markup::RelativeLink(QStringLiteral("/srv/www/a.gif")), QStringLiteral("file:///srv/www/a.gif"));
}

void tst_Links::absoluteToRelativeWholeDocument()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("Untitled-1"), QStringLiteral("x"));
    markup::EditAbsToRel_Click();
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Cannot Create Relative Links"));

    const QString page = env.write(QStringLiteral("site/page.html"), "");
    const QString dir = env.path(QStringLiteral("site"));
    const QString text = QStringLiteral("<A HREF=\"file://%1/img/a.gif\">a</A> <IMG SRC=\"FILE://%1/page.html\">"
                                        " <A HREF=\"file:///C|/x/y.htm\">c</A> <A HREF=\"file://%1/open")
                             .arg(dir);
    doc->LocalFileName = page;
    doc->edit.setText(text);
    prompts.answer(platform::Answer::Yes);
    markup::EditAbsToRel_Click();
    QCOMPARE(doc->edit.Text(), QStringLiteral("<A HREF=\"img/a.gif\">a</A> <IMG SRC=\"page.html\">"
                                              " <A HREF=\"file:///C|/x/y.htm\">c</A> <A HREF=\"file://%1/open")
                                   .arg(dir));
    doc->edit.Undo();
    QCOMPARE(doc->edit.Text(), text);
}

void tst_Links::relativeToAbsolute()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    const QString page = env.write(QStringLiteral("w/x/d.html"), "");
    test::FakeDocument *doc = workspace.addDocument(page, QStringLiteral("<A HREF=../a.htm> <A HREF=C|/a.htm>"), page);
    doc->ShowFileName = page;
    doc->edit.SetSel(8, 16);
    markup::EditRelToAbs_Click();
    QCOMPARE(doc->edit.Text(), QStringLiteral("<A HREF=\"file://%1/a.htm\"> <A HREF=C|/a.htm>").arg(env.path(QStringLiteral("w"))));
    const int at = int(doc->edit.Text().indexOf(QLatin1String("C|")));
    doc->edit.SetSel(at, at + 8);
    markup::EditRelToAbs_Click();
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Not A Relative Reference"));
    doc->edit.SetSel(0, 0);
    markup::EditRelToAbs_Click();
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Please highlight the reference you wish to change."));

    // A quoted value: the path alone, the path with one quote, or with both,
    // always gives one pair of quotes.
    const QString quoted = QStringLiteral("<A HREF=\"sub/page.htm\">x</A>");
    const QString expected = QStringLiteral("<A HREF=\"file://%1/sub/page.htm\">x</A>").arg(env.path(QStringLiteral("w/x")));
    for (const auto &[from, to] : {std::pair{9, 21}, std::pair{8, 21}, std::pair{9, 22}, std::pair{8, 22}}) {
        doc->edit.setText(quoted);
        doc->edit.SetSel(from, to);
        markup::EditRelToAbs_Click();
        QCOMPARE(doc->edit.Text(), expected);
    }
}

void tst_Links::removeMarkup_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("all") << "ALL" << "a<B>b</B>c" << "abc";
    QTest::newRow("links catch A-tags") << "LINK" << "<A HREF=x>t</A> <ADDRESS>m</ADDRESS>" << "t m</ADDRESS>";
    QTest::newRow("lower case") << "LINK" << "<a href=x>t</a>" << "t";
    QTest::newRow("unclosed stays") << "ALL" << "a<B>b<I c" << "ab<I c";
    QTest::newRow("joined by removal") << "LINK" << "<<b>A x>" << "<<b>A x>";
}

void tst_Links::removeMarkup()
{
    QFETCH(QString, mode);
    QFETCH(QString, text);
    QTEST(markup::removeTags(text, mode), "expected");
}

void tst_Links::removeMarkupIsOneUndoAndCancels()
{
    test::TestEnv env;
    test::FakeWorkspace workspace;
    const QString text = QStringLiteral("<P>a</P><P>b</P>");
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("Untitled-1"), text);
    QVERIFY(markup::RemoveMarkup(QStringLiteral("ALL")));
    QCOMPARE(doc->edit.Text(), QStringLiteral("ab"));
    doc->edit.Undo();
    QCOMPARE(doc->edit.Text(), text);
    QString big;
    for (int i = 0; i < 500; ++i)
        big += QStringLiteral("<B>x</B>");
    doc->edit.setText(big);
    int asked = 0;
    QVERIFY(!markup::RemoveMarkup(QStringLiteral("ALL"), [&asked] { return ++asked == 3; }));
    const QString partial = doc->edit.Text();
    QVERIFY(partial.startsWith(QLatin1String("xx")));
    QVERIFY(partial.endsWith(QLatin1String("<B>x</B>")));
}

void tst_Links::duplicateLinks()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    test::FakeDocument *doc = workspace.addDocument(
        QStringLiteral("Untitled-1"),
        QStringLiteral("<a href=a>1</a> <A HREF=a>2</A> <a href=b>3</a> <a href=A>4</a> <a href=b>5</a>"));
    QStringList shown;
    QList<int> at;
    auto answer = [&](markup::DuplicateChoice c) {
        return [&, c](const QString &tag) {
            shown << tag;
            at << doc->edit.SelStart();
            return c;
        };
    };
    markup::ToolsFindDup_Click(answer(markup::DuplicateChoice::Next));
    QCOMPARE(shown, (QStringList{QStringLiteral("<A HREF=a>"), QStringLiteral("<a href=A>"), QStringLiteral("<a href=b>")}));
    QCOMPARE(at, (QList<int>{16, 48, 64}));
    shown.clear();
    markup::ToolsFindDup_Click(answer(markup::DuplicateChoice::NextLink));
    QCOMPARE(shown, (QStringList{QStringLiteral("<A HREF=a>"), QStringLiteral("<a href=b>")}));
    shown.clear();
    markup::ToolsFindDup_Click(answer(markup::DuplicateChoice::CancelAll));
    QCOMPARE(shown.size(), 1);
    QVERIFY(prompts.shown.isEmpty());

    doc->edit.setText(QStringLiteral("<a href=a>1</a> <a href=b"));
    markup::ToolsFindDup_Click(answer(markup::DuplicateChoice::Next));
    QCOMPARE(prompts.texts().last(), QStringLiteral("A link has not been closed correctly.  Please add the '>' to it."));
    doc->edit.setText(QStringLiteral("<a href=a>1</a>"));
    markup::ToolsFindDup_Click(answer(markup::DuplicateChoice::Next));
    QCOMPARE(prompts.texts().last(), QStringLiteral("No duplicate links were found in this document."));
}

QTEST_GUILESS_MAIN(tst_Links)
#include "tst_links.moc"
