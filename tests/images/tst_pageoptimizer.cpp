#include "images/PageOptimizer.h"
#include "images/PictureSize.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QtTest>

using namespace qly;
using namespace qly::images;

class tst_PageOptimizer : public QObject
{
    Q_OBJECT

private slots:
    void figures();
    void markSize();
    void alterHtml();
    void removals();
};

void tst_PageOptimizer::figures()
{
    QCOMPARE(SpeedRows().mid(0, 6), (QStringList{QStringLiteral("14.4"), QStringLiteral("28.8"), QStringLiteral("33.6"),
                                                 QStringLiteral("57.6"), QStringLiteral("128"), QStringLiteral("256")}));
    QCOMPARE(DownloadTime(14746, QStringLiteral("14.4")), QStringLiteral("10.0 sec."));
    QCOMPARE(DownloadTime(1024 * 1000, SpeedRows().at(6)), QStringLiteral("10.0 sec."));   // 1 Mbit/s: 100 KB a second
    QCOMPARE(DownloadTime(0, QStringLiteral("")), QStringLiteral("0.0 sec."));
    QCOMPARE(FormatSize(12), QStringLiteral("0,012"));
    QCOMPARE(FormatSize(1234567), QStringLiteral("1,234,567"));
    QCOMPARE(GetNewFileName(QStringLiteral("/s/img/a.gif"), BustMode::Replace, false), QStringLiteral("BBa.gif"));
    QCOMPARE(GetNewFileName(QStringLiteral("/s/img/a.GIF"), BustMode::LowSrc, true), QStringLiteral("LSa.jpg"));
    QCOMPARE(GetNewFileName(QStringLiteral("b.jpg"), BustMode::GifToJpeg, true), QStringLiteral("BBb.jpg"));
    QCOMPARE(GetImageAlt(QStringLiteral("/s/a.gif"), 3000), QStringLiteral("a.gif 3k"));
    QVERIFY(CompressReport(20480, {QStringLiteral("x.gif"), QStringLiteral("y.jpg")})
                .endsWith(QStringLiteral("current HTML directory: x.gif, y.jpg")));
    QVERIFY(CompressReport(20480, {}).startsWith(
        QStringLiteral("Your Site has been compressed.  All Images have had Height, Width and Alt attributes added.\r\n\r\n"
                       "The total size of your site in compressed form is 20 Kb.")));
}

void tst_PageOptimizer::markSize()
{
    test::ScriptedPrompts prompts;
    QList<Resource> list{{QStringLiteral("a.gif"), 30000, QStringLiteral("gif/jpg")},
                         {QStringLiteral("b.gif"), 1000, QStringLiteral("gif/jpg")},
                         {QStringLiteral("c.class"), 90000, QStringLiteral("class")}};
    QVERIFY(!OverMarkSize(list, QStringLiteral("0")));
    QCOMPARE(prompts.shown.value(0).text, QStringLiteral("The filter size must be greater than zero."));
    QCOMPARE(prompts.shown.value(0).title, QStringLiteral("Page Optimizer"));
    QVERIFY(OverMarkSize(list, QStringLiteral("20")));
    QVERIFY(list[0].marked && !list[1].marked && !list[2].marked);
    QVERIFY(!OverMarkSize(list, QStringLiteral("50")));
    QCOMPARE(prompts.shown.value(1).text,
             QStringLiteral("There are no images in the selected HTML file(s) that are over the mark size."));
}

void tst_PageOptimizer::alterHtml()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QDir(env.dir()).mkpath(QStringLiteral("site/img"));
    env.write(QStringLiteral("site/img/a.gif"), QByteArray(2048, 'x'));
    env.write(QStringLiteral("site/b.jpg"), QByteArray(512, 'y'));
    pictureSizeHook() = [](const QString &) { return QSize(40, 30); };
    const QString page = env.path(QStringLiteral("site/index.htm"));
    const QString text = QStringLiteral("<P><IMG SRC=\"img/a.gif\"> <img src=b.jpg usemap=\"#m\" alt=\"B\"/>"
                                        "<IMG SRC=\"gone.gif\" HEIGHT=5></P>");
    QCOMPARE(AlterHTML(text, page, BustMode::LowSrc, false),
             QStringLiteral("<P><IMG SRC=\"img/a.gif\" HEIGHT=30 WIDTH=40 ALT=\"a.gif 2k\" LOWSRC=\"img/LSa.gif\">"
                            " <img src=b.jpg usemap=\"#m\" alt=\"B\" LOWSRC=\"LSb.jpg\"/>"
                            "<IMG SRC=\"gone.gif\" HEIGHT=5></P>"));
    QCOMPARE(prompts.shown.size(), 1);
    QCOMPARE(prompts.shown[0].text, QStringLiteral("Cannot find the image gone.gif in the file ") + page);
    QCOMPARE(prompts.shown[0].title, QStringLiteral("QuilleryMissing Image"));
    QCOMPARE(AlterHTML(QStringLiteral("<IMG SRC=\"img/a.gif\" ALT=\"\">"), page, BustMode::GifToJpeg, true),
             QStringLiteral("<IMG SRC=\"img/BBa.jpg\" ALT=\"\" HEIGHT=30 WIDTH=40>"));

    // The page file: over the original with a backup, or into the save folder.
    const QByteArray original = "<HTML><IMG SRC=\"img/a.gif\"> caf\xE9</HTML>";   // Windows-1252
    env.write(QStringLiteral("site/index.htm"), original);
    QVERIFY(SaveNewHTML(page, BustMode::Replace, false, false, env.path(QStringLiteral("out/new"))).ok());
    QCOMPARE(env.read(QStringLiteral("site/index.htm")), original);
    QCOMPARE(env.read(QStringLiteral("out/new/index.htm")),
             QByteArray("<HTML><IMG SRC=\"img/BBa.gif\" HEIGHT=30 WIDTH=40 ALT=\"a.gif 2k\"> caf\xE9</HTML>"));
    QVERIFY(SaveNewHTML(page, BustMode::Replace, false, true, QString()).ok());
    QCOMPARE(env.read(QStringLiteral("site/index.bak")), original);
    QCOMPARE(env.read(QStringLiteral("site/index.htm")), env.read(QStringLiteral("out/new/index.htm")));
    pictureSizeHook() = nullptr;
}

void tst_PageOptimizer::removals()
{
    QCOMPARE(RemoveComments(QStringLiteral("a<!-- x -->b<!--y-->c<!-- open")), QStringLiteral("abc"));
    QCOMPARE(RemoveAllImages(QStringLiteral("a<IMG SRC=\"x.gif\">b<img alt=1 src=y>c")),
             QStringLiteral("ab<img alt=1 src=y>c"));
    QCOMPARE(RemoveApplets(QStringLiteral("a<APPLET code=x>\r\n<param>\r\n</APPLET>b")), QStringLiteral("ab"));
    QCOMPARE(RemoveImageMap(QStringLiteral("<MAP NAME=\"m\"><AREA HREF=\"a.htm\" ALT=\"Home\"><area shape=rect href=b.htm>"
                                           "<AREA NOHREF></MAP>end")),
             QStringLiteral("<A HREF=\"a.htm\">Home</A><BR>\r\n<A HREF=\"b.htm\">b.htm</A><BR>\r\nend"));
}

QTEST_GUILESS_MAIN(tst_PageOptimizer)
#include "tst_pageoptimizer.moc"
