#include "images/OptimizerRun.h"
#include "images/PictureSize.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QDirIterator>
#include <QtTest>

using namespace qly;
using namespace qly::images;

namespace {

// A GIF header is all PictureSize needs here: width and height, little-endian.
QByteArray gif(int width, int height, int padding)
{
    QByteArray b("GIF89a");
    b += char(width & 0xff), b += char(width >> 8), b += char(height & 0xff), b += char(height >> 8);
    return b + QByteArray(padding, 'x');
}

QMap<QString, QByteArray> snapshot(const QString &dir)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(dir, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile f(it.next());
        f.open(QIODevice::ReadOnly);
        files.insert(QDir(dir).relativeFilePath(f.fileName()), f.readAll());
    }
    return files;
}

const QByteArray kIndex = "<html><head><link rel=\"stylesheet\" href=\"style.css\"></head>\r\n"
                          "<body background=\"img/bg.gif\">\r\n"
                          "<img src=\"img/logo.gif\"> <a href=\"about.htm#top\">About</a>\r\n"
                          "<a href=\"http://example.com/x.htm\">far</a> <a href=\"gone.htm\">gone</a>\r\n"
                          "<a href=\"data.bin\">data</a> <img src=\"img/missing.gif\">\r\n"
                          "</body></html>\r\n";
const QByteArray kAbout = "<img src=\"img/photo.jpg\" alt=\"Photo\">\n<a href=\"index.htm\">home</a> <a href=\"sub/deep.htm\">deep</a>\n";
const QByteArray kDeep = "<img src=\"../img/logo.gif\" height=5 width=5>\n";

// index -> about -> sub/deep, with images, a style sheet, a binary file,
// a link to a page that is not there and one to an image that is not.
struct Site {
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QString index;

    Site()
    {
        pictureSizeHook() = [](const QString &file) {
            QFile f(file);
            const QByteArray b = f.open(QIODevice::ReadOnly) ? f.read(10) : QByteArray();
            return b.startsWith("GIF") && b.size() == 10 ? QSize(quint8(b[6]) | quint8(b[7]) << 8, quint8(b[8]) | quint8(b[9]) << 8) : QSize();
        };
        index = env.write(QStringLiteral("site/index.htm"), kIndex);
        env.write(QStringLiteral("site/about.htm"), kAbout);
        env.write(QStringLiteral("site/sub/deep.htm"), kDeep);
        env.write(QStringLiteral("site/style.css"), "body { color: red }\n");
        env.write(QStringLiteral("site/data.bin"), QByteArray("\0\xff\x01<img src=\"q.gif\">\xfe", 22));
        env.write(QStringLiteral("site/img/logo.gif"), gif(32, 16, 3000));
        env.write(QStringLiteral("site/img/bg.gif"), gif(8, 8, 100));
        env.write(QStringLiteral("site/img/photo.jpg"), QByteArray(5000, 'j'));
    }
    QString site(const QString &name) const { return env.path(QStringLiteral("site/") + name); }
};

// A squeeze that leaves a recognisable small file.
bool fakeSquish(const QString &file, const QString &target, int quality, bool)
{
    QFile f(target);
    return f.open(QIODevice::WriteOnly) && f.write(QByteArray::number(quality) + ' ' + QFileInfo(file).fileName().toUtf8()) > 0;
}

} // namespace

class tst_OptimizerRun : public QObject
{
    Q_OBJECT

private slots:
    void walkAndFigures();
    void checksBeforeARun();
    void autoRunIntoSaveFolder();
    void overwriteKeepsBackupsAndCancel();
    void manualRun();
};

void tst_OptimizerRun::walkAndFigures()
{
    Site s;
    const SiteWalk walk = WalkSite(s.index);
    QCOMPARE(walk.pages, (QStringList{s.index, s.site(QStringLiteral("about.htm")), s.site(QStringLiteral("sub/deep.htm"))}));
    QStringList missing = walk.missing;
    missing.sort();
    QCOMPARE(missing, (QStringList{s.site(QStringLiteral("gone.htm")), s.site(QStringLiteral("img/missing.gif"))}));
    QStringList rows;
    qint64 expectedTotal = 0;
    for (const Resource &r : walk.resources) {
        rows << QDir(s.env.path(QStringLiteral("site"))).relativeFilePath(r.path) + u' ' + r.kind;
        QCOMPARE(r.bytes, QFileInfo(r.path).size());
        expectedTotal += r.bytes;
    }
    rows.sort();
    QCOMPARE(rows, (QStringList{QStringLiteral("about.htm html"), QStringLiteral("data.bin bin"), QStringLiteral("img/bg.gif gif/jpg"),
                                QStringLiteral("img/logo.gif gif/jpg"), QStringLiteral("img/photo.jpg gif/jpg"),
                                QStringLiteral("index.htm html"), QStringLiteral("style.css css"), QStringLiteral("sub/deep.htm html")}));
    QVERIFY(walk.absolute.isEmpty());
    // About 8 KB: at 14.4 (1.44 KB a second) 8,604 bytes, 5.8 seconds, at 1 Mbit/s (100 KB a second) 0.1.
    QCOMPARE(walk.totalBytes(), expectedTotal);
    QCOMPARE(walk.totalBytes(), qint64(kIndex.size() + kAbout.size() + kDeep.size() + 20 + 22 + 3010 + 110 + 5000));
    const SiteFigures slow = DisplayResources(walk, QStringLiteral("14.4"));
    QCOMPARE(slow.size, QStringLiteral("0,008 Kb."));
    QCOMPARE(slow.time, QStringLiteral("5.8 sec."));
    QCOMPARE(DisplayResources(walk, SpeedRows().at(6)).time, QStringLiteral("0.1 sec."));
    QVERIFY(s.prompts.shown.isEmpty());

    // An applet: its class below the codebase, its frames and sound from a list.
    s.env.write(QStringLiteral("applet/java/Anim.class"), "\xca\xfe\xba\xbe");
    s.env.write(QStringLiteral("applet/f1.gif"), gif(4, 4, 0));
    s.env.write(QStringLiteral("applet/f2.gif"), gif(4, 4, 0));
    s.env.write(QStringLiteral("applet/ding.au"), "snd");
    const QString applet = s.env.write(QStringLiteral("applet/index.htm"),
                                       "<applet code=\"Anim\" codebase=\"java\" width=9 height=9>\n"
                                       "<param name=frames value=\"f1.gif,f2.gif\"><param name=sound value=\"ding.au\">\n"
                                       "<param name=title value=\"Hello\"></applet>\n");
    QStringList appletFiles;
    for (const Resource &r : WalkSite(applet).resources)
        appletFiles << QFileInfo(r.path).fileName() + u' ' + r.kind;
    QCOMPARE(appletFiles, (QStringList{QStringLiteral("index.htm html"), QStringLiteral("Anim.class class"),
                                       QStringLiteral("f1.gif gif/jpg"), QStringLiteral("f2.gif gif/jpg"),
                                       QStringLiteral("ding.au au")}));

    // A page that is not there, and a page with an absolute reference.
    const SiteWalk none = WalkSite(s.site(QStringLiteral("nothing.htm")));
    QVERIFY(none.pages.isEmpty());
    QCOMPARE(s.prompts.shown.value(0).title, QStringLiteral("Open File Error"));
    QVERIFY(s.prompts.shown.value(0).text.startsWith(QStringLiteral("Cannot Open")));
    const QString abs = s.env.write(QStringLiteral("site/abs.htm"), "<img src=\"/home/x.gif\"><img src=\"img/bg.gif\">");
    const SiteWalk absWalk = WalkSite(QStringLiteral("file://") + abs);
    QCOMPARE(absWalk.absolute, QStringList{abs});
    RunOptions options{BustMode::Replace, QStringLiteral("80"), true, {}};
    QVERIFY(!CheckRunOptions(options, absWalk));
    QVERIFY(s.prompts.shown.last().text.endsWith(QStringLiteral("referenced absolutely are: ") + abs));
}

void tst_OptimizerRun::checksBeforeARun()
{
    Site s;
    const SiteWalk walk = WalkSite(s.index);
    const QString program = platform::programTitle();
    struct Case { RunOptions options; bool manual; QString text; QString title; };
    const QList<Case> cases{
        {{BustMode::Replace, {}, false, s.env.path(QStringLiteral("out"))}, false, QStringLiteral("Please choose a level of compression"),
         program + QStringLiteral("Compression Level")},
        {{{}, QStringLiteral("80"), false, s.env.path(QStringLiteral("out"))}, false,
         QStringLiteral("Please Select an Image Replacement Option"), program + QStringLiteral("Image Replacement")},
        {{{}, QStringLiteral("80"), false, s.env.path(QStringLiteral("out"))}, true,
         QStringLiteral("Please Select an Image replacement option"), QStringLiteral("Missing Image Option")},
        {{BustMode::Replace, QStringLiteral("80"), false, QStringLiteral(" ")}, false,
         QStringLiteral("Please enter a directory to save the altered HTML in"), program + QStringLiteral("Save Directory")},
        {{BustMode::Replace, QStringLiteral("80"), false, s.env.path(QStringLiteral("site/"))}, false,
         QStringLiteral("The save directory is the folder of the site itself.  Please choose another directory, or Overwrite Original HTML."),
         program + QStringLiteral("Save Directory")},
    };
    for (const Case &c : cases) {
        QVERIFY(!CheckRunOptions(c.options, walk, c.manual));
        QCOMPARE(s.prompts.shown.last().text, c.text);
        QCOMPARE(s.prompts.shown.last().title, c.title);
    }
    const int told = int(s.prompts.shown.size());
    QVERIFY(CheckRunOptions({BustMode::LowSrc, QStringLiteral("70"), false, s.env.path(QStringLiteral("new/out"))}, walk));
    QCOMPARE(s.prompts.shown.size(), told);
}

void tst_OptimizerRun::autoRunIntoSaveFolder()
{
    Site s;
    SiteWalk walk = WalkSite(s.index);
    QVERIFY(OverMarkSize(walk.resources, QStringLiteral("2")));   // logo (2.9 KB) and photo (4.9 KB)
    const auto before = snapshot(s.env.path(QStringLiteral("site")));
    const QString out = s.env.path(QStringLiteral("out"));
    QStringList steps;
    const RunResult result = RunAuto(walk, {BustMode::Replace, QStringLiteral("70"), false, out}, fakeSquish,
                                     [&](int, int, const QString &f) { steps << QFileInfo(f).fileName(); return true; });
    QVERIFY(!result.cancelled);
    QCOMPARE(steps.mid(0, 2), (QStringList{QStringLiteral("logo.gif"), QStringLiteral("photo.jpg")}));

    QCOMPARE(snapshot(s.env.path(QStringLiteral("site"))), before);   // the site is as it was
    const auto saved = snapshot(out);
    QCOMPARE(saved.value(QStringLiteral("index.htm")),
             QByteArray("<html><head><link rel=\"stylesheet\" href=\"style.css\"></head>\r\n"
                        "<body background=\"img/bg.gif\">\r\n"
                        "<img src=\"img/BBlogo.gif\" HEIGHT=16 WIDTH=32 ALT=\"logo.gif 3k\"> <a href=\"about.htm#top\">About</a>\r\n"
                        "<a href=\"http://example.com/x.htm\">far</a> <a href=\"gone.htm\">gone</a>\r\n"
                        "<a href=\"data.bin\">data</a> <img src=\"img/missing.gif\">\r\n"
                        "</body></html>\r\n"));
    QCOMPARE(saved.value(QStringLiteral("about.htm")),
             QByteArray("<img src=\"img/BBphoto.jpg\" alt=\"Photo\">\n<a href=\"index.htm\">home</a> <a href=\"sub/deep.htm\">deep</a>\n"));
    QCOMPARE(saved.value(QStringLiteral("sub/deep.htm")), QByteArray("<img src=\"../img/BBlogo.gif\" height=5 width=5 ALT=\"logo.gif 3k\">\n"));
    QCOMPARE(saved.value(QStringLiteral("img/BBlogo.gif")), QByteArray("70 logo.gif"));
    QCOMPARE(saved.value(QStringLiteral("img/BBphoto.jpg")), QByteArray("70 photo.jpg"));
    // Not marked: the image keeps its bytes under the new name the page does not use here.
    QCOMPARE(saved.value(QStringLiteral("img/BBbg.gif")), before.value(QStringLiteral("img/bg.gif")));
    for (const char *copied : {"style.css", "data.bin", "img/logo.gif", "img/photo.jpg"})
        QCOMPARE(saved.value(QLatin1String(copied)), before.value(QLatin1String(copied)));
    QVERIFY(s.prompts.texts().join(u'|').contains(QStringLiteral("Cannot find the image img/missing.gif in the file ") + s.index));
    QCOMPARE(s.prompts.shown.last().title, platform::programTitle() + QStringLiteral(" Site Optimized!"));
    qint64 newTotal = 0;
    for (const char *now : {"index.htm", "about.htm", "sub/deep.htm", "style.css", "data.bin", "img/BBlogo.gif", "img/BBbg.gif",
                            "img/BBphoto.jpg"})
        newTotal += saved.value(QLatin1String(now)).size();
    QCOMPARE(result.newTotal, newTotal);
}

void tst_OptimizerRun::overwriteKeepsBackupsAndCancel()
{
    Site s;
    const SiteWalk walk = WalkSite(s.index);
    // Cancelled at once: nothing written anywhere.
    const auto before = snapshot(s.env.path(QStringLiteral("site")));
    const RunResult stopped = RunAuto(walk, {BustMode::LowSrc, QStringLiteral("60"), true, {}}, fakeSquish,
                                      [](int, int, const QString &) { return false; });
    QVERIFY(stopped.cancelled);
    QCOMPARE(snapshot(s.env.path(QStringLiteral("site"))), before);

    const RunResult result = RunAuto(walk, {BustMode::LowSrc, QStringLiteral("60"), true, {}}, fakeSquish, {});
    QVERIFY(!result.cancelled);
    const auto after = snapshot(s.env.path(QStringLiteral("site")));
    for (const char *page : {"index", "about", "sub/deep"})
        QCOMPARE(after.value(QLatin1String(page) + QStringLiteral(".bak")), before.value(QLatin1String(page) + QStringLiteral(".htm")));
    QCOMPARE(after.value(QStringLiteral("sub/deep.htm")),
             QByteArray("<img src=\"../img/logo.gif\" height=5 width=5 ALT=\"logo.gif 3k\" LOWSRC=\"../img/LSlogo.gif\">\n"));
    for (const char *kept : {"img/logo.gif", "img/bg.gif", "img/photo.jpg", "style.css", "data.bin"})
        QCOMPARE(after.value(QLatin1String(kept)), before.value(QLatin1String(kept)));
    QCOMPARE(after.value(QStringLiteral("img/LSlogo.gif")), QByteArray("60 logo.gif"));
    QCOMPARE(after.value(QStringLiteral("img/LSbg.gif")), QByteArray("60 bg.gif"));   // nothing marked: every image
    QCOMPARE(after.size(), before.size() + 3 + 3);                                     // three backups, three new images

    // A second run would replace the first one's backups: only when the user says so.
    s.prompts.answer(platform::Answer::No);
    QVERIFY(!CheckRunOptions({BustMode::LowSrc, QStringLiteral("60"), true, {}}, walk));
    QVERIFY(s.prompts.shown.last().text.contains(s.site(QStringLiteral("about.bak"))));
    QVERIFY(s.prompts.shown.last().text.contains(s.site(QStringLiteral("img/LSlogo.gif"))));
    s.prompts.answer(platform::Answer::Yes);
    QVERIFY(CheckRunOptions({BustMode::LowSrc, QStringLiteral("60"), true, {}}, walk));

    // An image outside the index page's folder is left, and its tag points at it still.
    s.env.write(QStringLiteral("shared/pic.gif"), gif(2, 3, 0));
    const QString outer = s.env.write(QStringLiteral("shared/site2/index.htm"), "<img src=\"../pic.gif\">");
    RunAuto(WalkSite(outer), {BustMode::Replace, QStringLiteral("60"), true, {}}, fakeSquish, {});
    QCOMPARE(s.env.read(outer), QByteArray("<img src=\"../pic.gif\" HEIGHT=3 WIDTH=2 ALT=\"pic.gif 0k\">"));
    QVERIFY(!QFile::exists(s.env.path(QStringLiteral("shared/BBpic.gif"))));
    QVERIFY(s.prompts.shown.last().text.endsWith(QStringLiteral("current HTML directory: ") + s.env.path(QStringLiteral("shared/pic.gif"))));

    // Remove All Images needs no level nor image option; pages lose their IMG SRC tags.
    RunOptions remove{{}, {}, false, s.env.path(QStringLiteral("bare"))};
    remove.removeImages = true;
    QVERIFY(CheckRunOptions(remove, walk));
    RunAuto(walk, remove, fakeSquish, {});
    QCOMPARE(s.env.read(QStringLiteral("bare/sub/deep.htm")), QByteArray("\n"));
    QVERIFY(!QFile::exists(s.env.path(QStringLiteral("bare/img/BBlogo.gif"))));
    QCOMPARE(s.env.read(QStringLiteral("bare/img/logo.gif")), before.value(QStringLiteral("img/logo.gif")));
}

void tst_OptimizerRun::manualRun()
{
    Site s;
    SiteWalk walk = WalkSite(s.index);
    QVERIFY(OverMarkSize(walk.resources, QStringLiteral("2")));
    const QString out = s.env.path(QStringLiteral("out"));
    ManualRun run(walk, {BustMode::GifToJpeg, QStringLiteral("50"), false, out});
    QCOMPARE(run.next(), s.site(QStringLiteral("img/logo.gif")));
    const QString work = run.workingCopy(s.env.path(QStringLiteral("tmp")));
    QCOMPARE(QFileInfo(work).fileName(), QStringLiteral("BBTemp.jpg"));
    QDir().mkpath(s.env.path(QStringLiteral("tmp")));
    QVERIFY(fakeSquish(run.current(), work, 50, true));
    QVERIFY(run.saveCurrent(work));
    QCOMPARE(run.next(), s.site(QStringLiteral("img/photo.jpg")));   // skipped: kept as it is
    QVERIFY(run.next().isEmpty());
    QCOMPARE(s.prompts.shown.last().text, QStringLiteral("No images left to optimize!"));
    QCOMPARE(s.prompts.shown.last().title, QStringLiteral("No Images Left"));
    run.finish({});
    QCOMPARE(s.env.read(out + QStringLiteral("/img/BBlogo.jpg")), QByteArray("50 logo.gif"));
    QCOMPARE(s.env.read(out + QStringLiteral("/img/BBphoto.jpg")), s.env.read(s.site(QStringLiteral("img/photo.jpg"))));
    QVERIFY(s.env.read(out + QStringLiteral("/index.htm")).contains("<img src=\"img/BBlogo.jpg\" HEIGHT=16 WIDTH=32"));
}

QTEST_GUILESS_MAIN(tst_OptimizerRun)
#include "tst_optimizerrun.moc"
