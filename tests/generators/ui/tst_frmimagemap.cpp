// The image map editor as a user drives it: a picture loaded, a rectangle,
// a circle and a polygon drawn with the mouse, a hotspot moved, resized and
// deleted, and the map written into the document. Pictures that cannot be
// shown are refused with the old one kept. With QLY_SHOT_DIR set, the
// dialog is also saved as a picture there.

#include "generators/ImageMapModel.h"
#include "generators/ui/ImageMapCanvas.h"
#include "generators/ui/frmImageMap.h"
#include "support/Shots.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace qly;
using namespace qly::generators;
using generators::ui::ImageMapCanvas;
using generators::ui::frmImageMap;

namespace {

// Answers the next modal dialog: `fill` sets its fields, then it is accepted
// (or rejected when `accept` is false).
void answerNextDialog(std::function<void(QDialog *)> fill, bool accept = true)
{
    auto poll = std::make_shared<std::function<void()>>();
    *poll = [fill, accept, poll] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            QTimer::singleShot(10, *poll);
            return;
        }
        fill(dialog);
        accept ? dialog->accept() : dialog->reject();
    };
    QTimer::singleShot(10, *poll);
}

void setText(QDialog *d, const char *name, const QString &text)
{
    if (auto *combo = d->findChild<QComboBox *>(QString::fromLatin1(name)))
        combo->setEditText(text);
    else if (auto *edit = d->findChild<QLineEdit *>(QString::fromLatin1(name)))
        edit->setText(text);
    else
        QFAIL(name);
}

QString makePicture(const test::TestEnv &env, const QString &name, const char *format)
{
    QImage image(400, 300, QImage::Format_RGB32);
    QPainter p(&image);
    QLinearGradient sky(0, 0, 0, 300);
    sky.setColorAt(0, QColor(0xcf, 0xe3, 0xf5));
    sky.setColorAt(1, QColor(0xf4, 0xf1, 0xe4));
    p.fillRect(image.rect(), sky);
    p.setPen(QPen(QColor(0x5a, 0x66, 0x74), 2));
    p.setBrush(QColor(0x9c, 0xc3, 0xe6));
    p.drawRect(55, 55, 90, 50);
    p.setBrush(QColor(0xf2, 0xc9, 0x4c));
    p.drawEllipse(QPoint(280, 90), 35, 35);
    p.setBrush(QColor(0x8c, 0xc8, 0x7c));
    p.drawPolygon(QPolygon({QPoint(85, 240), QPoint(140, 190), QPoint(195, 240)}));
    p.end();
    const QString path = env.path(name);
    image.save(path, format);
    return path;
}

void drag(QWidget *w, QPoint from, QPoint to)
{
    QTest::mousePress(w, Qt::LeftButton, {}, from);
    QTest::mouseMove(w, (from + to) / 2);
    QTest::mouseMove(w, to);
    QTest::mouseRelease(w, Qt::LeftButton, {}, to);
}

} // namespace

class TestFrmImageMap : public QObject
{
    Q_OBJECT
private slots:
    void init() { QStandardPaths::setTestModeEnabled(true); }
    void drawMoveDeleteAndWrite();
    void picturesThatCannotBeShown();
    void mapInTheSelectionIsReadBack();
};

void TestFrmImageMap::drawMoveDeleteAndWrite()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("page"), QStringLiteral("<BODY>\r\n</BODY>"),
                                                    env.path(QStringLiteral("page.htm")));
    doc->edit.SetSel(8, 8);
    const QString picture = makePicture(env, QStringLiteral("plan.png"), "PNG");

    QPointer<frmImageMap> dialog = new frmImageMap;
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QVERIFY(dialog->LoadImageFile(picture));
    ImageMapCanvas *canvas = dialog->canvas();
    QCOMPARE(canvas->size(), QSize(400, 300));
    ImageMapModel &m = dialog->model();

    dialog->setTool(ImageMapCanvas::Rectangle);
    answerNextDialog([](QDialog *d) { setText(d, "cmbURL", QStringLiteral("hall.htm")); });
    drag(canvas, {40, 40}, {160, 120});
    QTRY_COMPARE(m.RegionCount(), 1);
    QCOMPARE(m.region(1).bounds(), QRect(600, 600, 1800, 1200));
    QCOMPARE(m.region(1).url, QStringLiteral("hall.htm"));

    // A cancelled URL leaves no region behind.
    dialog->setTool(ImageMapCanvas::Circle);
    answerNextDialog([](QDialog *) {}, false);
    drag(canvas, {230, 40}, {330, 140});
    QTest::qWait(50);
    QCOMPARE(m.RegionCount(), 1);
    answerNextDialog([](QDialog *d) {
        setText(d, "cmbURL", QStringLiteral("sun.htm"));
        setText(d, "txtTarget", QStringLiteral("main"));
    });
    drag(canvas, {230, 40}, {330, 140});
    QTRY_COMPARE(m.RegionCount(), 2);
    QCOMPARE(m.region(2).shape, RegionShape::Circle);

    dialog->setTool(ImageMapCanvas::Polygon);
    for (QPoint p : {QPoint(60, 250), QPoint(140, 170), QPoint(220, 250)})
        QTest::mouseClick(canvas, Qt::LeftButton, {}, p);
    QVERIFY(canvas->drawingPolygon());
    answerNextDialog([](QDialog *d) { setText(d, "cmbURL", QStringLiteral("hill.htm")); });
    QTest::mouseClick(canvas, Qt::RightButton, {}, {200, 260});
    QTRY_COMPARE(m.RegionCount(), 3);
    QCOMPARE(m.region(3).points.size(), 3);
    QVERIFY(!canvas->drawingPolygon());
    QVERIFY(prompts.shown.isEmpty());

    dialog->setTool(ImageMapCanvas::Select);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {280, 90});
    QCOMPARE(canvas->currentRegion(), 2);
    QCOMPARE(dialog->findChild<QLineEdit *>(QStringLiteral("txtRegionURL"))->text(), QStringLiteral("sun.htm"));
    test::saveShot(dialog, QStringLiteral("imagemap-editor"));

    // Move the rectangle by 10 pixels; a drag past the edge stops at it.
    drag(canvas, {100, 80}, {110, 90});
    QCOMPARE(m.region(1).bounds(), QRect(750, 750, 1800, 1200));
    drag(canvas, {100, 80}, {0, 80});
    QCOMPARE(m.region(1).left, 0);
    // Resize by its bottom-right corner handle.
    drag(canvas, {120, 130}, {150, 140});
    QCOMPARE(m.region(1).bounds(), QRect(0, 750, 2250, 1350));

    prompts.answer(platform::Answer::Yes);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {280, 90});
    dialog->DeleteCurrentRegion();
    QCOMPARE(m.RegionCount(), 2);
    QCOMPARE(m.region(2).url, QStringLiteral("hill.htm"));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Confirm Hotspot Delete"));

    dialog->setZoom(2.0);
    QCOMPARE(canvas->size(), QSize(800, 600));
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {20, 200});
    QCOMPARE(canvas->currentRegion(), 1);

    answerNextDialog([](QDialog *d) {
        setText(d, "txtMapName", QStringLiteral("plan"));
        setText(d, "txtAltText", QStringLiteral("Plan"));
    });
    QVERIFY(dialog->CompileMap());
    QCOMPARE(doc->edit.Text(),
             QStringLiteral("<BODY>\r\n<IMG SRC=\"plan.png\" USEMAP=\"#plan\" ALT=\"Plan\" HEIGHT=300 WIDTH=400 "
                            "BORDER=0>\r\n\r\n<MAP NAME=\"plan\">\r\n"
                            "<AREA SHAPE=RECT COORDS=\"0,  50, 150,  140\" HREF=\"hall.htm\">\r\n"
                            "<AREA SHAPE=POLYGON COORDS=\"60, 250, 140, 170, 220, 250, 60, 250\" "
                            "HREF=\"hill.htm\">\r\n</MAP>\r\n</BODY>"));
    QVERIFY(!m.mapChanged);
    dialog->close();
    QTRY_VERIFY(!dialog);
}

void TestFrmImageMap::picturesThatCannotBeShown()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString good = makePicture(env, QStringLiteral("good.jpg"), "JPEG");
    const QString svg = env.write(QStringLiteral("shape.svg"),
                                  "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"120\" height=\"80\">"
                                  "<rect x=\"10\" y=\"10\" width=\"100\" height=\"60\" fill=\"#3b82c4\"/></svg>");
    const QString bmp = makePicture(env, QStringLiteral("old.bmp"), "BMP");
    const QString junk = env.write(QStringLiteral("junk.gif"), QByteArray("GIF89a\x01\x00 not really", 20));
    const QString text = env.write(QStringLiteral("notes.jpg"), QByteArray("just some words\n"));

    frmImageMap dialog;
    QVERIFY(dialog.LoadImageFile(svg));
    QCOMPARE(dialog.canvas()->image().size(), QSize(120, 80));
    QVERIFY(dialog.LoadImageFile(good));
    QVERIFY(!dialog.LoadImageFile(env.path(QStringLiteral("gone.gif"))));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("This image file could not be found."));
    QVERIFY(!dialog.LoadImageFile(bmp));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Incorrect Image Format"));
    QVERIFY(!dialog.LoadImageFile(junk));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Error loading image file 'junk.gif'."));
    QVERIFY(!dialog.LoadImageFile(text));
    QVERIFY(prompts.shown.last().text.startsWith(QStringLiteral("Error opening image file.\n")));
    QCOMPARE(prompts.shown.size(), 4);
    QCOMPARE(dialog.model().imagePath, good);
    QCOMPARE(dialog.canvas()->image().size(), QSize(400, 300));
}

void TestFrmImageMap::mapInTheSelectionIsReadBack()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    makePicture(env, QStringLiteral("small.png"), "PNG");
    const QString map = QStringLiteral("<IMG SRC=\"small.png\" USEMAP=\"#s\" BORDER=0>\r\n\r\n<MAP NAME=\"s\">\r\n"
                                       "<AREA SHAPE=RECT COORDS=\"350,  10, 500,  20\" HREF=\"far.htm\">\r\n"
                                       "<AREA SHAPE=CIRCLE COORDS=\"30, 30, 10\" HREF=\"near.htm\">\r\n</MAP>\r\n");
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("p"), map, env.path(QStringLiteral("p.htm")));
    doc->edit.SetSel(0, int(map.size()));
    frmImageMap::showFor(nullptr);
    frmImageMap *dialog = nullptr;
    for (QWidget *w : QApplication::topLevelWidgets())
        if (!dialog)
            dialog = qobject_cast<frmImageMap *>(w);
    QVERIFY(dialog);
    QCOMPARE(dialog->model().RegionCount(), 2);
    QCOMPARE(dialog->model().region(2).url, QStringLiteral("near.htm"));
    QCOMPARE(dialog->canvas()->image().size(), QSize(400, 300));
    // The first area reaches past the picture's right edge: told, kept.
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY(prompts.shown.first().text.startsWith(QStringLiteral("Hotspot 1 reaches outside")));
    QVERIFY(!dialog->model().mapChanged);
    dialog->close();   // nothing changed: no question
    QCOMPARE(prompts.shown.size(), 1);

    // A selected picture without a map becomes the map's picture.
    const QString image = QStringLiteral("<P><IMG SRC=\"small.png\" ALT=\"x\"></P>");
    doc->edit.setText(image);
    doc->edit.SetSel(0, int(image.size()));
    frmImageMap::showFor(nullptr);
    frmImageMap *second = nullptr;
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *m = qobject_cast<frmImageMap *>(w); m && m->isVisible())
            second = m;
    }
    QVERIFY(second);
    QCOMPARE(second->model().RegionCount(), 0);
    QCOMPARE(second->model().imagePath, env.path(QStringLiteral("small.png")));
    second->close();
}

QTEST_MAIN(TestFrmImageMap)
#include "tst_frmimagemap.moc"
