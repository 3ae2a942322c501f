#include "images/GifAnimation.h"
#include "images/GifReader.h"
#include "images/GifTransparency.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QtTest>

using namespace qly;
using namespace qly::images;

namespace {

const QString kData = QStringLiteral(TEST_DATA_DIR "/gif");

QByteArray readBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString frame(const QString &name)
{
    return kData + QStringLiteral("/frames/") + name;
}

// The frames of the golden animations: one of each kind the writer meets.
QList<Frame> goldenFrames()
{
    return {{frame(QStringLiteral("a.gif")), false, QStringLiteral("1000")},
            {frame(QStringLiteral("b.gif")), false, QStringLiteral("0")},
            {frame(QStringLiteral("c.gif")), false, QStringLiteral("2565")},
            {frame(QStringLiteral("d.gif")), true, QStringLiteral("40")},
            {frame(QStringLiteral("e.gif")), false, QStringLiteral("30")}};
}

AnimationSettings goldenSettings()
{
    AnimationSettings s;
    s.width = QStringLiteral("2");
    s.height = QStringLiteral("9");
    s.repeat = QStringLiteral("256");
    return s;
}

QString runJudge(const QString &program, const QStringList &args, int *exitCode)
{
    QProcess p;
    p.start(program, args);
    p.waitForFinished(20000);
    *exitCode = p.exitCode();
    return QString::fromUtf8(p.readAllStandardOutput() + p.readAllStandardError());
}

} // namespace

class tst_GifUtils : public QObject
{
    Q_OBJECT

private slots:
    void animationGolden_data();
    void animationGolden();
    void animationFieldsAndDelays();
    void writeAskesAndReports();
    void transparencyGolden();
    void paletteLookup();
    void brokenFiles_data();
    void brokenFiles();
    void randomBytesStayInside();
    void judgesAcceptOurFiles();
};

void tst_GifUtils::animationGolden_data()
{
    QTest::addColumn<bool>("localPalettes");
    QTest::addColumn<bool>("standardTrailer");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first frame's table for all") << false << false << QStringLiteral("shared.gif");
    QTest::newRow("each frame its own table") << true << false << QStringLiteral("local.gif");
    QTest::newRow("standard trailer") << false << true << QStringLiteral("standard.gif");
}

void tst_GifUtils::animationGolden()
{
    QFETCH(bool, localPalettes);
    QFETCH(bool, standardTrailer);
    QFETCH(QString, expected);
    AnimationSettings s = goldenSettings();
    s.localPalettes = localPalettes;
    s.standardTrailer = standardTrailer;
    const AnimationBuild build = BuildAnimatedGif(goldenFrames(), s);
    QVERIFY2(build.ok(), qPrintable(build.error));
    QCOMPARE(build.frameCount, 5);
    QCOMPARE(build.bytes, readBytes(kData + QStringLiteral("/animation/") + expected));
}

void tst_GifUtils::animationFieldsAndDelays()
{
    // Delays: hundredths rounded with ties to the even neighbour, low byte first.
    QCOMPARE(LittleEndian16(DelayHundredths(QStringLiteral("0"))), QByteArray("\x00\x00", 2));
    QCOMPARE(LittleEndian16(DelayHundredths(QStringLiteral("1000"))), QByteArray("\x64\x00", 2));
    QCOMPARE(LittleEndian16(DelayHundredths(QStringLiteral("2565"))), QByteArray("\x00\x01", 2));
    QCOMPARE(DelayHundredths(QStringLiteral("2575")), 258);
    QCOMPARE(DelayHundredths(QStringLiteral(" 1 5 0ms")), 15);
    QCOMPARE(DelayHundredths(QStringLiteral("")), 0);

    // Typed sizes above the largest frame are kept; missing frames and
    // empty rows are passed over; a repeat count of 256 writes 0x00 0x01.
    AnimationSettings s;
    s.width = QStringLiteral("300");
    s.height = QStringLiteral("");
    s.repeat = QStringLiteral("256");
    const QList<Frame> frames{{QString(), false, QStringLiteral("10")},
                              {frame(QStringLiteral("missing.gif")), false, QStringLiteral("10")},
                              {frame(QStringLiteral("b.gif")), false, QStringLiteral("10")}};
    const AnimationBuild build = BuildAnimatedGif(frames, s);
    QVERIFY(build.ok());
    QCOMPARE(build.frameCount, 1);
    QCOMPARE(build.bytes.mid(6, 4), QByteArray("\x2C\x01\x03\x00", 4));
    const qsizetype loop = build.bytes.indexOf("NETSCAPE2.0");
    QCOMPARE(build.bytes.mid(loop + 11, 5), QByteArray("\x03\x01\x00\x01\x00", 5));
    QVERIFY(build.bytes.endsWith("59"));
    QCOMPARE(AnimationComment().size(), 183);
}

void tst_GifUtils::writeAskesAndReports()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QVERIFY(!WriteAnimatedGif({}, goldenSettings()));
    QCOMPARE(prompts.texts().value(0), QStringLiteral("You must have at least one frame to create an animation."));

    // Cancelled: quiet, nothing written.
    prompts.chooseNothing();
    QVERIFY(!WriteAnimatedGif(goldenFrames(), goldenSettings()));
    QCOMPARE(prompts.shown.size(), 1);
    QCOMPARE(prompts.fileRequests.value(0).title, QStringLiteral("Quillery 4.01 - Write Animated GIF File"));
    QCOMPARE(prompts.fileRequests.value(0).filter, QStringLiteral("GIF89a Files|*.gif|All Files|*.*"));

    // A frame that is no GIF fails the whole file and leaves an old target whole.
    const QString target = env.write(QStringLiteral("out.gif"), "old");
    const QString bad = env.write(QStringLiteral("bad.gif"), "not a picture");
    prompts.chooseFiles({target});
    QList<Frame> frames = goldenFrames();
    frames.insert(1, Frame{bad, false, QStringLiteral("10")});
    QVERIFY(!WriteAnimatedGif(frames, goldenSettings()));
    QVERIFY(prompts.texts().value(1).startsWith(QStringLiteral("An error has occured reading the files\n\nbad.gif: ")));
    QCOMPARE(env.read(QStringLiteral("out.gif")), QByteArray("old"));

    prompts.chooseFiles({target});
    QVERIFY(WriteAnimatedGif(goldenFrames(), goldenSettings()));
    QCOMPARE(env.read(QStringLiteral("out.gif")), readBytes(kData + QStringLiteral("/animation/shared.gif")));
}

void tst_GifUtils::transparencyGolden()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    for (const QString &name : {QStringLiteral("t1"), QStringLiteral("t2")}) {
        const QString file = env.write(name + QStringLiteral(".gif"),
                                       readBytes(kData + QStringLiteral("/transparency/") + name + QStringLiteral(".gif")));
        const GifPalette before = ReadGifPalette(file);
        QVERIFY(before.error.isEmpty());
        QCOMPARE(PresentPalette().size(), 12);
        QVERIFY(MakeGifTransparent(0xFF0000, file));   // blue, index 2
        QCOMPARE(env.read(name + QStringLiteral(".gif")),
                 readBytes(kData + QStringLiteral("/transparency/") + name + QStringLiteral("-expected.gif")));
        QCOMPARE(ReadGifPalette(file, true).transparent, QByteArray("\x00\x00\xFF", 3));
    }
    // A colour that is not in the palette leaves the file as it is.
    const QString file = env.write(QStringLiteral("t3.gif"), readBytes(kData + QStringLiteral("/transparency/t1.gif")));
    ReadGifPalette(file);
    QVERIFY(!MakeGifTransparent(0x123456, file));
    QCOMPARE(env.read(QStringLiteral("t3.gif")), readBytes(kData + QStringLiteral("/transparency/t1.gif")));
    QVERIFY(prompts.shown.isEmpty());
}

void tst_GifUtils::paletteLookup()
{
    const QByteArray palette("\x00\x00\x00" "abc" "ABD", 9);
    QCOMPARE(FindPaletteIndex(QByteArray("ABC"), palette), quint16(1));   // letters match either case
    QCOMPARE(FindPaletteIndex(QByteArray("abd"), palette), quint16(2));
    QCOMPARE(FindPaletteIndex(QByteArray("xyz"), palette), quint16(65535));
    QCOMPARE(FindPaletteIndex(QByteArray("AB"), palette.left(8)), quint16(65535));
    QCOMPARE(FindPaletteIndex(QByteArray("\x00\x00\x00", 3), QByteArray()), quint16(65535));
}

void tst_GifUtils::brokenFiles_data()
{
    const QByteArray good = readBytes(frame(QStringLiteral("a.gif")));
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("not a GIF");
    QTest::newRow("random text") << QByteArray("hello, world") << QStringLiteral("not a GIF");
    QTest::newRow("cut in the screen") << good.left(9) << QStringLiteral("the file ends after 9 bytes");
    QTest::newRow("cut in the table") << good.left(16) << QStringLiteral("colour table of 4 colours");
    QTest::newRow("table flag, no table") << QByteArray("GIF89a\x04\x00\x04\x00\x87\x00\x00\x3B", 14)
                                          << QStringLiteral("colour table of 256 colours");
    QTest::newRow("zero-size screen") << QByteArray("GIF89a\x00\x00\x04\x00\x00\x00\x00\x3B", 14)
                                      << QStringLiteral("logical screen is 0 x 4");
    QByteArray longBlock = good;
    longBlock[44] = char(200);   // the first data sub-block's length, past the end
    QTest::newRow("sub-block past the end") << longBlock << QStringLiteral("runs past the end");
    QTest::newRow("missing trailer") << good.left(good.size() - 1) << QStringLiteral("without its trailer");
    QTest::newRow("cut in the image") << good.left(good.size() - 4) << QStringLiteral("past the end");
    QTest::newRow("no image") << QByteArray("GIF89a\x01\x00\x01\x00\x00\x00\x00\x99\x3B", 15)
                              << QStringLiteral("no image starts at byte 13 (0x99");
}

void tst_GifUtils::brokenFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    GifReader reader(bytes);
    reader.FirstFrame = true;
    QVERIFY(reader.ReadFrameFile(Frame{}).isEmpty());
    QVERIFY2(reader.error().contains(message), qPrintable(reader.error()));
    QString error;
    QVERIFY(TransparentGifBytes(bytes, 0, &error).isEmpty());
    QVERIFY(!error.isEmpty());
}

// Random bytes, and good files with random damage, never make the block
// code read outside the file; run under the sanitizers by the fuzz target.
void tst_GifUtils::randomBytesStayInside()
{
    QRandomGenerator rng(18);
    QList<QByteArray> seeds;
    for (const QString &name : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"), QStringLiteral("e")})
        seeds << readBytes(frame(name + QStringLiteral(".gif")));
    const int rounds = qEnvironmentVariableIntValue("QLY_GIF_ROUNDS") > 0 ? qEnvironmentVariableIntValue("QLY_GIF_ROUNDS") : 20000;
    int accepted = 0;
    for (int round = 0; round < rounds; ++round) {
        QByteArray bytes = seeds[round % seeds.size()];
        if (round % 4 == 0) {
            bytes = QByteArray("GIF89a");
            bytes.resize(6 + rng.bounded(64));
            for (qsizetype i = 6; i < bytes.size(); ++i)
                bytes[i] = char(rng.bounded(256));
        } else {
            const int edits = 1 + rng.bounded(4);
            for (int e = 0; e < edits && !bytes.isEmpty(); ++e)
                bytes[rng.bounded(int(bytes.size()))] = char(rng.bounded(256));
            if (rng.bounded(3) == 0)
                bytes.truncate(rng.bounded(int(bytes.size()) + 1));
        }
        GifReader reader(bytes);
        reader.FirstFrame = true;
        reader.LocalPalettes = round % 2;
        const QByteArray block = reader.ReadFrameFile(Frame{});
        QVERIFY(reader.FilePos >= 1 && reader.FilePos <= bytes.size() + 1);
        QCOMPARE(block.isEmpty(), reader.failed());
        if (!reader.failed())
            ++accepted;
        QString error;
        const QByteArray out = TransparentGifBytes(bytes, 1, &error);
        QCOMPARE(out.isEmpty(), !error.isEmpty());
    }
    QVERIFY(accepted > 0);   // damage to pixel data alone leaves files readable
}

void tst_GifUtils::judgesAcceptOurFiles()
{
    const QString gifsicle = QStandardPaths::findExecutable(QStringLiteral("gifsicle"));
    const QString identify = QStandardPaths::findExecutable(QStringLiteral("identify"));
    if (gifsicle.isEmpty() && identify.isEmpty())
        QSKIP("neither gifsicle nor ImageMagick is installed");
    test::TestEnv env;
    AnimationSettings s = goldenSettings();
    s.repeat = QStringLiteral("3");
    for (bool standard : {false, true}) {
        s.standardTrailer = standard;
        const QString out = env.write(QStringLiteral("anim.gif"), BuildAnimatedGif(goldenFrames(), s).bytes);
        int code = 0;
        if (!gifsicle.isEmpty()) {
            const QString info = runJudge(gifsicle, {QStringLiteral("--info"), out}, &code);
            QVERIFY2(info.contains(QStringLiteral("5 images")) && info.contains(QStringLiteral("loop count 3")), qPrintable(info));
            for (const char *delay : {"delay 1.00s", "delay 2.56s", "delay 0.04s", "delay 0.03s"})
                QVERIFY2(info.contains(QLatin1String(delay)), qPrintable(info));
            QStringList warnings = info.split(u'\n').filter(QStringLiteral("gifsicle:"));
            if (!standard) {
                QCOMPARE(warnings.size(), 1);
                QVERIFY2(warnings[0].contains(QStringLiteral("unknown block type 53")), qPrintable(info));
            } else {
                QVERIFY2(warnings.isEmpty() && code == 0, qPrintable(info));
            }
        }
        if (!identify.isEmpty()) {
            const QString frames = runJudge(identify, {QStringLiteral("-format"), QStringLiteral("%T %s|"), out}, &code);
            QVERIFY2(frames.startsWith(QStringLiteral("100 0|0 1|256 2|4 3|3 4|")), qPrintable(frames));
            QCOMPARE(code, 0);
            // ImageMagick counts the first showing too: a repeat count of 3 is 4 plays.
            const QString verbose = runJudge(identify, {QStringLiteral("-verbose"), out}, &code);
            QVERIFY2(verbose.contains(QStringLiteral("Iterations: 4")), qPrintable(verbose.left(2000)));
        }
    }
    // A file made transparent in place: the first image has the colour, nothing is lost.
    test::ScriptedPrompts prompts;
    const QString made = env.write(QStringLiteral("t.gif"), readBytes(kData + QStringLiteral("/transparency/t2.gif")));
    ReadGifPalette(made);
    QVERIFY(MakeGifTransparent(0xFF0000, made));
    int code = 0;
    if (!gifsicle.isEmpty()) {
        const QString info = runJudge(gifsicle, {QStringLiteral("--info"), made}, &code);
        QVERIFY2(code == 0 && info.contains(QStringLiteral("2 images")) && info.contains(QStringLiteral("transparent 2"))
                     && !info.contains(QStringLiteral("gifsicle:")),
                 qPrintable(info));
    }
    if (!identify.isEmpty())
        QCOMPARE(runJudge(identify, {QStringLiteral("-format"), QStringLiteral("%T %w|"), made}, &code), QStringLiteral("50 4|50 4|"));
}

QTEST_GUILESS_MAIN(tst_GifUtils)
#include "tst_gifutils.moc"
