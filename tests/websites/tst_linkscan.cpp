#include "core/Paths.h"
#include "core/Settings.h"
#include "markup/Attributes.h"
#include "markup/TextOps.h"
#include "websites/LinkScanner.h"
#include "websites/LinkedFiles.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using namespace qly::websites;

namespace {

QStringList SL(std::initializer_list<const char *> items)
{
    QStringList out;
    for (const char *i : items)
        out << QString::fromUtf8(i);
    return out;
}

// The rule read attribute by attribute, line by line, with the attribute
// reader on the line's text: what the one-pass scanner must equal.
LinkRecords referenceScan(const QString &text, const QString &file, const QStringList &attributes)
{
    LinkClassifier c;
    LinkRecords all;
    QString normal = text;
    normal.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    const QStringList lines = normal.split(u'\n');
    for (const QString &attr : attributes) {
        for (qsizetype n = 0; n < lines.size(); ++n) {
            QString line = lines.at(n);
            while (true) {
                const qsizetype pos = line.indexOf(attr, 0, Qt::CaseInsensitive);
                if (pos < 0)
                    break;
                QString value = markup::GetAttributeValue(line, attr, false);
                if ((attr.compare(QLatin1String("code"), Qt::CaseInsensitive) == 0
                     || attr.compare(QLatin1String("codebase"), Qt::CaseInsensitive) == 0)
                    && core::GetFileExt(value).isEmpty())
                    value += QStringLiteral(".class");
                if (value.isEmpty())
                    break;
                LinkRecord r = c.classify(value, file);
                r.attribute = attr;
                r.line = int(n + 1);
                all << r;
                line = line.mid(pos + attr.size() + value.size() + 1);
            }
        }
    }
    return all;
}

LinkRecords scanText(const QByteArray &page, const QString &file,
                     const QStringList &attrs = {QStringLiteral("href"), QStringLiteral("src"),
                                                 QStringLiteral("background"), QStringLiteral("lowsrc")})
{
    LinkClassifier c;
    return ScanLinks(page, file, attrs, c);
}

QStringList kinds(const LinkRecords &records)
{
    QStringList out;
    for (const LinkRecord &r : records)
        out << LinkKindName(r.kind) + u' ' + r.link;
    return out;
}

} // namespace

class tst_LinkScan : public QObject
{
    Q_OBJECT
private slots:
    void sixKinds();
    void imageExtensionRule();
    void textRules();
    void sameAsReadingAttributeByAttribute();
    void hostilePagesEndQuickly();
    void collectedFiles();
    void tagTargets();
};

void tst_LinkScan::sixKinds()
{
    test::TestEnv env;
    env.write(QStringLiteral("site/there.htm"), "x");
    env.write(QStringLiteral("site/img/logo.gif"), "x");
    const QString page = env.write(QStringLiteral("site/index.htm"), "");
    const QByteArray html = "<a href=\"there.htm\">a</a><img src=img/logo.gif>\r\n"
                            "<a href=\"http://example.com/\">x</a> <a href=\"HTTP://EXAMPLE.COM\">\n"
                            "<a href=mailto:me@example.com> <a href=\"https://example.com/\"> <a href=\"ftp://h/f\">\n"
                            "<a href=\"gone.htm\"><img src=\"gone.gif\"><img src=\"gone.jpeg\"><img src=nothing>\n"
                            "<a href=\"gone.htm#top\"><a href=\"#\"><a href=\"there.htm#x\">\n"
                            "<img src=\"A:\\old\\floppy.gif\">";
    const LinkRecords r = scanText(html, page);
    QCOMPARE(kinds(r), SL({
        "loclink there.htm", "extlink http://example.com/", "extlink HTTP://EXAMPLE.COM",
        "netitem mailto:me@example.com", "netitem https://example.com/", "netitem ftp://h/f",
        "brokenlocal gone.htm", "loclink gone.htm#top", "loclink #", "loclink there.htm#x",
        "image img/logo.gif", "brokenimage gone.gif", "brokenlocal gone.jpeg", "brokenimage nothing",
        "image A:\\old\\floppy.gif"}));
    // Records of an attribute come in line order, with lines counted from 1.
    QCOMPARE(r.at(0).line, 1);
    QCOMPARE(r.at(6).line, 4);
    QCOMPARE(r.at(10).localPath, env.path(QStringLiteral("site/img/logo.gif")));
    QVERIFY(r.at(1).localPath.isEmpty());
    QCOMPARE(r.at(13).localPath, env.path(QStringLiteral("site/nothing")));
}

void tst_LinkScan::imageExtensionRule()
{
    for (const char *yes : {"a.gif", "a.JPG", "a.jp", "a.if", "a.g", "a", "dir.v2/a", "a."})
        QVERIFY2(IsImageExtension(QString::fromLatin1(yes)), yes);
    for (const char *no : {"a.jpeg", "a.png", "a.htm", "a.gifs"})
        QVERIFY2(!IsImageExtension(QString::fromLatin1(no)), no);
}

void tst_LinkScan::textRules()
{
    test::TestEnv env;
    const QString page = env.write(QStringLiteral("p.htm"), "");
    // A comment does not hide a link, and body text counts.
    QCOMPARE(kinds(scanText("<!-- <a href=\"c.htm\"> -->", page)), SL({"brokenlocal c.htm"}));
    QCOMPARE(kinds(scanText("Write href=x in a sentence", page)), SL({"brokenimage x"}));
    // ">" ends an unquoted value; a blank ends it too, but not a quoted one.
    QCOMPARE(kinds(scanText("<IMG SRC=a.gif><a href=\"a b.htm\">", page)),
             SL({"brokenlocal a b.htm", "brokenimage a.gif"}));
    // A first "name=" that the reader refuses (a digit before it) gives up on the line...
    QVERIFY(scanText("<a x1href=y> <a href=x.htm>", page, {QStringLiteral("href")}).isEmpty());
    // ... though a word that holds the name before it does not, as the reader
    // searches the line from its start.
    QCOMPARE(kinds(scanText("the srcset src=x.gif", page, {QStringLiteral("src")})), SL({"brokenimage x.gif"}));
    // "code" and "codebase" values without extension are classes.
    QCOMPARE(kinds(scanText("<applet code=Anim>", page, {QStringLiteral("code")})),
             SL({"brokenlocal Anim.class"}));
    // An unreadable file is named in a message and gives nothing.
    test::ScriptedPrompts prompts;
    LinkClassifier c;
    LinkRecords out;
    QVERIFY(!ScanFileLinks(env.path(QStringLiteral("missing.htm")), {QStringLiteral("href")}, out, c));
    QVERIFY(out.isEmpty());
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY(prompts.shown.first().text.startsWith(QLatin1String("Error: ")));
    QCOMPARE(prompts.shown.first().title, env.path(QStringLiteral("missing.htm")));
}

void tst_LinkScan::sameAsReadingAttributeByAttribute()
{
    test::TestEnv env;
    env.write(QStringLiteral("a.htm"), "x");
    env.write(QStringLiteral("b.gif"), "x");
    const QString page = env.write(QStringLiteral("page.htm"), "");
    const QStringList pieces = SL({"href", "HREF", "src", "lowsrc", "code", "=", "\"", ">", "<", " ", "  ", "1",
                                "a.htm", "b.gif", "c.jpg", "#t", "http://h/", "mailto:x", "\r\n", "\n", "\r",
                                "é", "€", "x", "file:///tmp/z", "../a.htm", "'", "href=", "src=\""});
    const QStringList attributes = {QStringLiteral("href"), QStringLiteral("src"), QStringLiteral("code"),
                                    QStringLiteral(" src")};
    QRandomGenerator rng(4711);
    for (int round = 0; round < 3000; ++round) {
        QString text;
        const int n = rng.bounded(1, 40);
        for (int i = 0; i < n; ++i)
            text += pieces.at(rng.bounded(int(pieces.size())));
        const LinkRecords expected = referenceScan(text, page, attributes);
        LinkClassifier c;
        QCOMPARE(ScanLinks(text.toUtf8(), page, attributes, c), expected);
        // The same text in Windows-1252 when it can be.
        if (!text.contains(u'€')) {
            LinkClassifier c2;
            QCOMPARE(ScanLinks(text.toLatin1(), page, attributes, c2), expected);
        }
    }
}

void tst_LinkScan::hostilePagesEndQuickly()
{
    QElapsedTimer timer;
    timer.start();
    // One 20 MB line with a link at its end behind many names without one.
    QByteArray line;
    line.reserve(21 << 20);
    while (line.size() < (20 << 20))
        line += "<b class=x>srcsrc lowsrc ";
    line += "<img src=end.gif>";
    LinkRecords r = scanText(line, QStringLiteral("/nowhere/p.htm"));
    QVERIFY(!r.isEmpty());
    QCOMPARE(r.last().link, QStringLiteral("end.gif"));
    // Binary bytes.
    QByteArray binary(8 << 20, '\0');
    QRandomGenerator rng(1);
    for (char &b : binary)
        b = char(rng.bounded(256));
    binary.replace(1000, 8, "href=a b");
    r = scanText(binary, QStringLiteral("/nowhere/p.htm"));
    QVERIFY(!r.isEmpty());
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

void tst_LinkScan::collectedFiles()
{
    test::TestEnv env;
    const QString page = env.write(QStringLiteral("site/p.htm"),
                                   "<img src=\"img/a.gif\"> <a href=other.htm> <a href=\"#x\">\n"
                                   "<embed src=snd/b.wav><img src=img/a.gif><a href=mailto:x>\n"
                                   "<img src=\"file:///tmp/c.gif\"> <a href=\"a b.htm\"> <img src=\"d e.gif\">\n"
                                   "<img src=dangling");
    QCOMPARE(CollectLinkedFiles(page, QStringLiteral("src=")),
             QStringList({env.path(QStringLiteral("site/img/a.gif")), env.path(QStringLiteral("site/snd/b.wav")),
                          QStringLiteral("/tmp/c.gif"), env.path(QStringLiteral("site/d"))}));
    // Pages, anchors and addresses are not followed; a quoted name with a
    // blank is cut at the blank.
    QCOMPARE(CollectLinkedFiles(page, QStringLiteral("href=")), QStringList{env.path(QStringLiteral("site/a"))});
    QVERIFY(CollectLinkedFiles(env.path(QStringLiteral("none.htm")), QStringLiteral("src=")).isEmpty());
}

void tst_LinkScan::tagTargets()
{
    test::TestEnv env;
    const QString base = env.write(QStringLiteral("site/p.htm"), "x");
    QCOMPARE(LinkTargetOfTag(QStringLiteral("<a href=\"../b.htm\">"), base), env.path(QStringLiteral("b.htm")));
    QCOMPARE(LinkTargetOfTag(QStringLiteral("<img src=i.gif href=no>"), base), env.path(QStringLiteral("site/i.gif")));
    QCOMPARE(LinkTargetOfTag(QStringLiteral("<a href=\"file:///tmp/x.htm\">"), base), QStringLiteral("/tmp/x.htm"));
    QCOMPARE(LinkTargetOfTag(QString(), base), QString());
    QCOMPARE(GetLocalName(QStringLiteral("p.htm"), base), base);
    QCOMPARE(GetLocalName(QStringLiteral("gone.htm"), base), QString());
    QCOMPARE(GetLocalName(QStringLiteral("http://h/p.htm"), base), QString());
}

QTEST_GUILESS_MAIN(tst_LinkScan)
#include "tst_linkscan.moc"
