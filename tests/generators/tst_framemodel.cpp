#include "generators/FrameMarkup.h"
#include "generators/FrameModel.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using generators::FrameModel;

namespace {

const QString kCases = QStringLiteral(TEST_DATA_DIR "/frames");

QByteArray readBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

int edgeFlag(const QString &name)
{
    if (name == QStringLiteral("left"))
        return FrameModel::LeftEdge;
    if (name == QStringLiteral("right"))
        return FrameModel::RightEdge;
    if (name == QStringLiteral("top"))
        return FrameModel::TopEdge;
    return FrameModel::BottomEdge;
}

// Runs the steps of a layout file as a user does them in the dialog:
// "setup Cols|Rows N", "select I", "props key=value|...", "add", "delete",
// "across", "drag EDGE DX DY", "rect I LEFT TOP WIDTH HEIGHT".
void play(FrameModel &m, const QString &script)
{
    for (const QString &line : script.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList words = line.split(u' ');
        const QString &op = words.first();
        if (op == QStringLiteral("setup")) {
            m.NewFrameSetup(words.at(1) == QStringLiteral("Cols") ? FrameModel::Orientation::Cols
                                                                  : FrameModel::Orientation::Rows,
                            words.at(2).toInt());
        } else if (op == QStringLiteral("select")) {
            m.select(words.at(1).toInt());
        } else if (op == QStringLiteral("props")) {
            FrameModel::Properties &p = m.properties();
            for (const QString &pair : line.mid(6).split(u'|')) {
                const QString key = pair.section(u'=', 0, 0);
                const QString value = pair.section(u'=', 1);
                if (key == QStringLiteral("name"))
                    p.name = value;
                else if (key == QStringLiteral("source"))
                    p.source = value;
                else if (key == QStringLiteral("marginwidth"))
                    p.marginWidth = value;
                else if (key == QStringLiteral("marginheight"))
                    p.marginHeight = value;
                else if (key == QStringLiteral("scrolling"))
                    p.scrolling = QStringList{QStringLiteral("Auto"), QStringLiteral("Yes"), QStringLiteral("No")}.indexOf(value);
                else if (key == QStringLiteral("resize"))
                    p.resize = value == QStringLiteral("1");
                else if (key == QStringLiteral("border"))
                    p.border = value == QStringLiteral("1");
            }
        } else if (op == QStringLiteral("add")) {
            m.Add();
        } else if (op == QStringLiteral("delete")) {
            m.DeleteFrame();
        } else if (op == QStringLiteral("across")) {
            m.SplitAcross();
        } else if (op == QStringLiteral("drag")) {
            m.moveEdges(edgeFlag(words.at(1)), words.at(2).toFloat(), words.at(3).toFloat());
        } else if (op == QStringLiteral("rect")) {
            m.setRect(words.at(1).toInt(), {words.at(2).toFloat(), words.at(3).toFloat(), words.at(4).toFloat(),
                                            words.at(5).toFloat()});
        } else {
            qFatal("unknown step in a layout file");
        }
    }
}

// True when the frames cover the screen once: no overlap, no gap.
bool tiled(const FrameModel &m)
{
    double area = 0;
    for (int i = 0; i < m.frameCount(); ++i) {
        const FrameModel::Rect a = m.frame(i).rect;
        if (a.left < -0.5f || a.top < -0.5f || a.right() > FrameModel::ScreenWidth + 0.5f
            || a.bottom() > FrameModel::ScreenHeight + 0.5f || a.width <= 0 || a.height <= 0)
            return false;
        area += double(a.width) * a.height;
        for (int j = i + 1; j < m.frameCount(); ++j) {
            const FrameModel::Rect b = m.frame(j).rect;
            const float w = std::min(a.right(), b.right()) - std::max(a.left, b.left);
            const float h = std::min(a.bottom(), b.bottom()) - std::max(a.top, b.top);
            if (w > 0.5f && h > 0.5f)
                return false;
        }
    }
    return std::fabs(area - double(FrameModel::ScreenWidth) * FrameModel::ScreenHeight) < 100;
}

} // namespace

class tst_FrameModel : public QObject
{
    Q_OBJECT
private slots:
    void goldenCases_data();
    void goldenCases();
    void selectionKeepsEachFramesProperties();
    void buttonsAndCaptions();
    void nameMustStartAlphanumeric();
    void randomEditsStayTiledAndTwoLevel();
    void previewShowsEveryFrame();
};

// Each case folder holds the steps ("layout.txt"), the markup OK gives
// ("expected.html"), and where it matters the messages shown
// ("expected-messages.txt", one a line).
void tst_FrameModel::goldenCases_data()
{
    QTest::addColumn<QString>("dir");
    const QStringList cases = QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QVERIFY(cases.size() >= 12);
    for (const QString &c : cases)
        QTest::newRow(qPrintable(c)) << kCases + u'/' + c;
}

void tst_FrameModel::goldenCases()
{
    QFETCH(QString, dir);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    FrameModel m;
    play(m, QString::fromUtf8(readBytes(dir + QStringLiteral("/layout.txt"))));
    // OK stores the shown properties first.
    m.Change_FrameData();
    QCOMPARE(generators::CompileFrames(m), QString::fromUtf8(readBytes(dir + QStringLiteral("/expected.html"))));
    if (QFile::exists(dir + QStringLiteral("/expected-messages.txt"))) {
        const QString messages = QString::fromUtf8(readBytes(dir + QStringLiteral("/expected-messages.txt")));
        QCOMPARE(prompts.texts(), messages.split(u'\n', Qt::SkipEmptyParts));
    }
}

void tst_FrameModel::selectionKeepsEachFramesProperties()
{
    test::TestEnv env;
    FrameModel m;
    m.NewFrameSetup(FrameModel::Orientation::Cols, 2);
    QCOMPARE(m.CurrentFrame(), 1);
    m.properties().name = QStringLiteral("main");
    m.properties().scrolling = 1;
    m.properties().border = true;
    m.select(0);
    QCOMPARE(m.properties().name, QString());
    QCOMPARE(m.properties().scrolling, 0);
    m.properties().resize = true;
    m.select(1);
    QCOMPARE(m.frame(1).flags, QStringLiteral("201"));
    QCOMPARE(m.frame(0).flags, QStringLiteral("110"));
    QCOMPARE(m.frame(0).attributes, QStringLiteral(" SCROLLING=AUTO NORESIZE"));
    QCOMPARE(m.properties().name, QStringLiteral("main"));
    QCOMPARE(m.properties().scrolling, 1);
    QVERIFY(m.properties().border);
    QVERIFY(!m.properties().resize);
}

void tst_FrameModel::buttonsAndCaptions()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    FrameModel m;
    m.NewFrameSetup(FrameModel::Orientation::Rows, 3);
    QCOMPARE(m.caption(), QStringLiteral("Frame 3 Properties"));
    // In rows, Add belongs to the frame at the right edge; Delete also needs
    // a frame before it in the row.
    m.select(0);
    QVERIFY(m.addEnabled());
    QVERIFY(!m.deleteEnabled());
    QVERIFY(m.Add());
    QVERIFY(m.deleteEnabled());
    QCOMPARE(m.caption(), QStringLiteral("Frame 4 Properties"));
    QVERIFY(m.DeleteFrame());
    QCOMPARE(m.caption(), QStringLiteral("Frame3 Properties"));
    QCOMPARE(m.frame(0).rect.width, FrameModel::ScreenWidth);
    m.select(2);
    QCOMPARE(m.caption(), QStringLiteral("Frame 3 Properties"));
    // The grab width of an edge is 100 twips.
    QCOMPARE(m.Which_Edge(50, 700), int(FrameModel::LeftEdge));
    QCOMPARE(m.Which_Edge(5950, 1450), FrameModel::RightEdge | FrameModel::BottomEdge);
    QCOMPARE(m.Which_Edge(3000, 700), int(FrameModel::NoEdge));
    // The one frame left is never deleted.
    m.NewFrameSetup(FrameModel::Orientation::Cols, 1);
    QVERIFY(!m.DeleteFrame());
    QVERIFY(prompts.texts().isEmpty());
}

void tst_FrameModel::nameMustStartAlphanumeric()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QString name = QStringLiteral("_");
    QVERIFY(!FrameModel::CheckName(name));
    QCOMPARE(name, QString());
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("The first character of the Name should be alphanumeric")});
    for (const char *ok : {"a", "Z", "7", "_pasted"}) {
        name = QString::fromLatin1(ok);
        QVERIFY(FrameModel::CheckName(name));
        QCOMPARE(name, QString::fromLatin1(ok));
    }
}

// Any sequence of the dialog's operations leaves the screen tiled, and the
// markup has no more than two framesets deep and names every frame.
void tst_FrameModel::randomEditsStayTiledAndTwoLevel()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QRandomGenerator rng(1502);
    for (int round = 0; round < 400; ++round) {
        FrameModel m;
        m.NewFrameSetup(rng.bounded(2) ? FrameModel::Orientation::Cols : FrameModel::Orientation::Rows,
                        1 + int(rng.bounded(4)));
        for (int step = 0; step < 12; ++step) {
            m.select(int(rng.bounded(m.frameCount())));
            switch (rng.bounded(4)) {
            case 0:
                if (m.addEnabled())
                    m.Add();
                break;
            case 1:
                if (m.deleteEnabled())
                    m.DeleteFrame();
                break;
            case 2:
                m.SplitAcross();
                break;
            default:
                m.moveEdges(int(rng.bounded(16)), float(rng.bounded(2000)) - 1000, float(rng.bounded(2000)) - 1000);
                break;
            }
            QVERIFY2(tiled(m), qPrintable(QStringLiteral("round %1 step %2").arg(round).arg(step)));
        }
        m.Change_FrameData();
        const QString html = generators::CompileFrames(m);
        QCOMPARE(int(html.count(QStringLiteral("<FRAME "))), m.frameCount());
        int depth = 0;
        int deepest = 0;
        for (const QString &line : html.split(QStringLiteral("\r\n"))) {
            if (line.contains(QStringLiteral("<FRAMESET")))
                deepest = std::max(deepest, ++depth);
            if (line.contains(QStringLiteral("</FRAMESET>")))
                --depth;
        }
        QVERIFY(deepest <= 2);
        QCOMPARE(depth, 0);
    }
}

void tst_FrameModel::previewShowsEveryFrame()
{
    test::TestEnv env;
    FrameModel m;
    m.NewFrameSetup(FrameModel::Orientation::Cols, 2);
    m.properties().source = QStringLiteral("right.htm");
    m.properties().name = QStringLiteral("r");
    m.Change_FrameData();
    const QString page = generators::FramePreviewPage(m);
    QVERIFY(page.startsWith(QStringLiteral("<HTML>")));
    QVERIFY(page.contains(QStringLiteral("SRC=\"data:text/html;charset=utf-8,")));
    QVERIFY(page.contains(QStringLiteral("<b>Frame 1</b>")));
    QVERIFY(page.contains(QStringLiteral("SRC=\"right.htm\" NAME=\"r\"")));
    // The frames the user gave no source keep none in the real markup.
    QVERIFY(!generators::CompileFrames(m).contains(QStringLiteral("data:")));
}

QTEST_GUILESS_MAIN(tst_FrameModel)
#include "tst_framemodel.moc"
