// The image map model: exact markup from a model, a model from markup, the
// hit test's geometry and the editor's limits, against golden folders under
// tests/data/imagemap and a random round trip.

#include "core/StatusText.h"
#include "generators/ImageMapModel.h"
#include "generators/ImageMapReader.h"
#include "generators/ImageMapRules.h"
#include "support/ScriptedPrompts.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using namespace qly::generators;

namespace {

QString dataDir()
{
    return QStringLiteral(TEST_DATA_DIR "/imagemap");
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

const QStringList valueKeys = {QStringLiteral("name"),   QStringLiteral("alt"),    QStringLiteral("height"),
                               QStringLiteral("width"),  QStringLiteral("hspace"), QStringLiteral("vspace"),
                               QStringLiteral("border"), QStringLiteral("align")};

QString *valueField(MapValues &v, const QString &key)
{
    QString *fields[] = {&v.mapName,  &v.altText,   &v.imgHeight,   &v.imgWidth,
                         &v.horzSpace, &v.vertSpace, &v.borderWidth, &v.align};
    const qsizetype i = valueKeys.indexOf(key);
    return i < 0 ? nullptr : fields[i];
}

// The golden model text: one line a value or region, fields split by tabs;
// regions in twips: "rect|circle LEFT TOP WIDTH HEIGHT URL TARGET" or
// "poly X,Y X,Y ... URL TARGET".
ImageMapModel parseModel(const QString &text)
{
    ImageMapModel m;
    for (const QString &line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList f = line.split(QLatin1Char('\t'));
        const QString key = f.value(0);
        if (key == QLatin1String("image")) {
            m.imagePath = f.value(1);
        } else if (QString *field = valueField(m.values, key)) {
            *field = f.value(1);
        } else if (key == QLatin1String("poly")) {
            MapRegion r;
            r.shape = RegionShape::Polygon;
            for (const QString &xy : f.value(1).split(QLatin1Char(' ')))
                r.points << QPoint(xy.section(QLatin1Char(','), 0, 0).toInt(), xy.section(QLatin1Char(','), 1).toInt());
            r.url = f.value(2);
            r.target = f.value(3);
            m.addRegion(r);
        } else {
            MapRegion r;
            r.shape = key == QLatin1String("circle") ? RegionShape::Circle : RegionShape::Rectangle;
            r.left = f.value(1).toInt();
            r.top = f.value(2).toInt();
            r.width = f.value(3).toInt();
            r.height = f.value(4).toInt();
            r.url = f.value(5);
            r.target = f.value(6);
            m.addRegion(r);
        }
    }
    return m;
}

QString dumpModel(const ImageMapModel &m)
{
    QString s;
    if (!m.imagePath.isEmpty())
        s += QStringLiteral("image\t") + m.imagePath + QLatin1Char('\n');
    MapValues v = m.values;
    for (const QString &key : valueKeys) {
        if (!valueField(v, key)->isEmpty())
            s += key + QLatin1Char('\t') + *valueField(v, key) + QLatin1Char('\n');
    }
    for (const MapRegion &r : m.regions()) {
        if (r.shape == RegionShape::Polygon) {
            QStringList pts;
            for (const QPoint &p : r.points)
                pts << QStringLiteral("%1,%2").arg(p.x()).arg(p.y());
            s += QStringLiteral("poly\t") + pts.join(QLatin1Char(' '));
        } else {
            s += (r.shape == RegionShape::Circle ? QStringLiteral("circle") : QStringLiteral("rect"))
                 + QStringLiteral("\t%1\t%2\t%3\t%4").arg(r.left).arg(r.top).arg(r.width).arg(r.height);
        }
        s += QLatin1Char('\t') + r.url + QLatin1Char('\t') + r.target + QLatin1Char('\n');
    }
    return s;
}

MapRegion rect(int left, int top, int width, int height, const QString &url = {})
{
    MapRegion r;
    r.left = left;
    r.top = top;
    r.width = width;
    r.height = height;
    r.url = url;
    return r;
}

} // namespace

class TestImageMap : public QObject
{
    Q_OBJECT

private slots:
    void golden_data();
    void golden();
    void hitTestFollowsTheRegionRules();
    void limitsOfRegionsAndPolygons();
    void questionsBeforeDeleteAndCompile();
    void roundTripOfRandomMaps();
    void damagedMarkupNeverHangs();
};

void TestImageMap::golden_data()
{
    QTest::addColumn<QString>("dir");
    const QStringList cases = QDir(dataDir()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(cases.size() >= 9);
    for (const QString &c : cases)
        QTest::newRow(qPrintable(c)) << dataDir() + QLatin1Char('/') + c;
}

void TestImageMap::golden()
{
    QFETCH(QString, dir);
    if (QFile::exists(dir + QStringLiteral("/model.txt"))) {
        const ImageMapModel m = parseModel(QString::fromUtf8(readFile(dir + QStringLiteral("/model.txt"))));
        QCOMPARE(m.WriteMapMarkup(m.imagePath).toUtf8(), readFile(dir + QStringLiteral("/expected.html")));
        return;
    }
    ImageMapModel m;
    m.values.mapName = QStringLiteral("untouched");
    QStringList problems;
    const bool read = ReadMapMarkup(QString::fromUtf8(readFile(dir + QStringLiteral("/selection.html"))), m, problems);
    const QByteArray expectedProblems = readFile(dir + QStringLiteral("/problems.txt"));
    QCOMPARE(problems.isEmpty() ? QByteArray() : (problems.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8(),
             expectedProblems);
    if (QFile::exists(dir + QStringLiteral("/expected-model.txt"))) {
        QVERIFY(read);
        QCOMPARE(dumpModel(m).toUtf8(), readFile(dir + QStringLiteral("/expected-model.txt")));
        QVERIFY(!m.mapChanged);
    } else {
        QVERIFY(!read);
        QCOMPARE(m.values.mapName, QStringLiteral("untouched"));
    }
}

void TestImageMap::hitTestFollowsTheRegionRules()
{
    ImageMapModel m;
    m.addRegion(rect(100, 100, 200, 100));            // 1: x 100..299, y 100..199
    m.addRegion(rect(250, 150, 200, 200));            // 2: overlaps 1
    MapRegion circle = rect(1000, 0, 400, 200);       // 3: ellipse, centre (1200, 100)
    circle.shape = RegionShape::Circle;
    m.addRegion(circle);
    MapRegion star;                                   // 4: a five-pointed star in one stroke
    star.shape = RegionShape::Polygon;
    star.points = {{2000, 0}, {2300, 900}, {1550, 350}, {2450, 350}, {1700, 900}};
    m.addRegion(star);
    MapRegion backwards = rect(3000, 500, -100, -100); // 5: drawn up and left
    m.addRegion(backwards);

    QCOMPARE(m.HitTestRegion({100, 100}), 1);   // top-left edge belongs
    QCOMPARE(m.HitTestRegion({299, 199}), 1);
    QCOMPARE(m.HitTestRegion({300, 120}), -1);  // the right edge does not
    QCOMPARE(m.HitTestRegion({260, 160}), 1);   // both: the lower number wins
    QCOMPARE(m.HitTestRegion({320, 220}), 2);
    QCOMPARE(m.HitTestRegion({1200, 100}), 3);
    QCOMPARE(m.HitTestRegion({1390, 100}), 3);  // wide ellipse, not a circle of the height
    QCOMPARE(m.HitTestRegion({1020, 20}), -1);  // inside the box, outside the ellipse
    QCOMPARE(m.HitTestRegion({2000, 450}), 4);  // the star's middle: inside by the winding rule
    QCOMPARE(m.HitTestRegion({2000, 100}), 4);  // a point of the star
    QCOMPARE(m.HitTestRegion({1600, 800}), -1);
    QCOMPARE(m.region(5).bounds(), QRect(2900, 400, 100, 100));
    QCOMPARE(m.HitTestRegion({2950, 450}), 5);

    // Deleting moves the later regions down.
    QVERIFY(m.deleteRegion(1));
    QCOMPARE(m.HitTestRegion({260, 160}), 2 - 1);
    QCOMPARE(m.RegionCount(), 4);
    m.moveRegion(3, 100, 0);
    QCOMPARE(m.HitTestRegion({2100, 450}), 3);
    QCOMPARE(m.region(3).points.first(), QPoint(2100, 0));
}

void TestImageMap::limitsOfRegionsAndPolygons()
{
    test::ScriptedPrompts prompts;
    ImageMapModel m;
    for (int i = 0; i < 15; ++i) {
        QVERIFY(MayStartRegion(m));
        QCOMPARE(m.addRegion(rect(i * 10, 0, 10, 10)), i + 1);
    }
    QVERIFY(prompts.shown.isEmpty());
    QVERIFY(!MayStartRegion(m));   // the sixteenth press is refused
    QCOMPARE(prompts.shown.last().title, QStringLiteral("ImageMap"));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Sorry. Quillery only allows you to create 15 hotspot regions."));
    QCOMPARE(m.addRegion(rect(0, 0, 5, 5)), 0);
    QCOMPARE(m.RegionCount(), 15);

    PolygonDraft draft;
    draft.start({0, 0});
    for (int i = 1; i < 15; ++i)
        QVERIFY(draft.addPoint({i * 10, (i % 2) * 30}));
    QVERIFY(!draft.addPoint({500, 500}));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Drawing Polygon"));
    QVERIFY(draft.active());           // still open until the right click
    const auto closed = draft.finish();
    QVERIFY(closed);
    QCOMPARE(closed->points.size(), 15);
    QCOMPARE(closed->bounds(), QRect(0, 0, 140, 30));

    draft.start({40, 40});
    QVERIFY(!draft.finish());          // one point has no area
    QVERIFY(core::StatusText::instance().text().contains(QStringLiteral("dropped")));
    QVERIFY(!draft.active());
}

void TestImageMap::questionsBeforeDeleteAndCompile()
{
    test::ScriptedPrompts prompts;
    ImageMapModel m;
    QVERIFY(!CheckCanCompile(m));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("No Map Defined"));
    QCOMPARE(ConfirmCompile(m), CompileChoice::Discard);   // nothing drawn: no question
    const int asked = int(prompts.shown.size());
    m.addRegion(rect(0, 0, 10, 10));
    prompts.answer(platform::Answer::Cancel);
    QCOMPARE(ConfirmCompile(m), CompileChoice::Stay);
    prompts.answer(platform::Answer::Yes);
    QCOMPARE(ConfirmCompile(m), CompileChoice::Compile);
    QCOMPARE(prompts.shown.size(), asked + 2);
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Do you want to compile this image map?"));

    prompts.answer(platform::Answer::No);
    QVERIFY(!ConfirmDeleteRegion());
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Confirm Hotspot Delete"));
    QVERIFY(m.deleteRegion(1));
    QVERIFY(!m.mapChanged);             // the last region gone: nothing left to write

    QVERIFY(!CheckHotspotURL(QStringLiteral("  ")));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Please enter a URL"));
    QVERIFY(!CheckMapName(QString()));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Map Name"));

    m.addRegion(rect(-150, 0, 300, 300));
    m.addRegion(rect(0, 0, 300, 300));
    m.addRegion(rect(0, 0, 3000, 300));
    QCOMPARE(RegionsOutside(m, QSize(100, 100)), (QList<int>{1, 3}));
    QCOMPARE(ImageLocationText(QStringLiteral("/home/a/map.gif")), QStringLiteral("File:///home/a/map.gif"));
    QCOMPARE(ImageLocationText(QStringLiteral("C:\\web\\map.gif")), QStringLiteral("File:///C|/web/map.gif"));
}

// Maps on whole pixels survive the trip to markup and back unchanged.
void TestImageMap::roundTripOfRandomMaps()
{
    QRandomGenerator rng(1603);
    for (int round = 0; round < 300; ++round) {
        ImageMapModel m;
        m.values.mapName = QStringLiteral("m%1").arg(round);
        m.values.altText = round % 3 ? QStringLiteral("alt %1").arg(round) : QString();
        m.values.imgWidth = QString::number(rng.bounded(1, 900));
        const int count = rng.bounded(1, 16);
        for (int i = 0; i < count; ++i) {
            MapRegion r;
            r.url = QStringLiteral("page%1.htm").arg(i);
            r.target = rng.bounded(2) ? QStringLiteral("_top") : QString();
            const int kind = rng.bounded(3);
            if (kind == 2) {
                r.shape = RegionShape::Polygon;
                const int n = rng.bounded(3, 16);
                for (int k = 0; k < n; ++k)
                    r.points << QPoint(rng.bounded(0, 800) * 15, rng.bounded(0, 600) * 15);
                if (r.points.first() == r.points.last())
                    r.points.last() += QPoint(15, 0);
            } else {
                r.shape = kind ? RegionShape::Circle : RegionShape::Rectangle;
                r.left = rng.bounded(0, 700) * 15;
                r.top = rng.bounded(0, 500) * 15;
                r.width = rng.bounded(0, 100) * 15 * (kind ? 2 : 1);
                r.height = kind ? r.width : rng.bounded(0, 100) * 15;
            }
            m.addRegion(r);
        }
        ImageMapModel back;
        QStringList problems;
        QVERIFY(ReadMapMarkup(m.WriteMapMarkup(QStringLiteral("p.gif")), back, problems));
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char(' '))));
        QCOMPARE(back.values, m.values.borderWidth.isEmpty() ? [&] {
            MapValues v = m.values;
            v.borderWidth = QStringLiteral("0");
            return v;
        }() : m.values);
        QCOMPARE(back.regions(), m.regions());
    }
}

// Cut, shuffled and noisy markup: the reader ends quickly, keeps to 15
// hotspots and leaves the model alone when it finds nothing.
void TestImageMap::damagedMarkupNeverHangs()
{
    ImageMapModel full;
    full.values.mapName = QStringLiteral("f");
    for (int i = 0; i < 15; ++i)
        full.addRegion(rect(i * 150, i * 150, 300, 300, QStringLiteral("u%1").arg(i)));
    const QString good = full.WriteMapMarkup(QStringLiteral("x.gif"));
    QRandomGenerator rng(77);
    QElapsedTimer clock;
    clock.start();
    for (int round = 0; round < 3000; ++round) {
        QString text = good.left(rng.bounded(good.size() + 1));
        const int edits = rng.bounded(1, 12);
        for (int e = 0; e < edits && !text.isEmpty(); ++e) {
            const int at = rng.bounded(int(text.size()));
            const char16_t junk[] = {u'<', u'>', u'"', u',', u'=', u' ', u'\0', u'9', u'-', u'A', 0xFFFF};
            text[at] = QChar(junk[rng.bounded(int(std::size(junk)))]);
        }
        if (round % 7 == 0)
            text += good;   // a second map: still up to 15
        ImageMapModel m;
        m.values.mapName = QStringLiteral("kept");
        QStringList problems;
        const bool ok = ReadMapMarkup(text, m, problems);
        QVERIFY(m.RegionCount() <= ImageMapModel::MaxRegions);
        if (!ok) {
            QCOMPARE(m.values.mapName, QStringLiteral("kept"));
            QVERIFY(!problems.isEmpty());
        }
    }
    QVERIFY(clock.elapsed() < 20000);
}

QTEST_GUILESS_MAIN(TestImageMap)
#include "tst_imagemap.moc"
