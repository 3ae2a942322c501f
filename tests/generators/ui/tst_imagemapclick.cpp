// A map made by the image map editor, shown in the document's preview tab,
// sends a click inside each hotspot to that hotspot's page; where two
// overlap, the one drawn first wins, as in the editor. Needs a real display
// for the browser engine: runs under Xvfb (see tests/CMakeLists.txt).

#include "app/MainWindow.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "generators/ImageMapModel.h"
#include "generators/ui/frmImageMap.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

using namespace qly;
using namespace qly::generators;
using documents::ui::DocumentWindow;

namespace {

MapRegion region(RegionShape shape, QRect pixels, const QString &url)
{
    MapRegion r;
    r.shape = shape;
    r.left = pixels.left() * 15;
    r.top = pixels.top() * 15;
    r.width = pixels.width() * 15;
    r.height = pixels.height() * 15;
    r.url = url;
    return r;
}

} // namespace

class tst_ImageMapClick : public QObject
{
    Q_OBJECT
private slots:
    void clickInsideEachHotspot();
};

void tst_ImageMapClick::clickInsideEachHotspot()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    std::unique_ptr<app::frmMain> main = test::showMainWindow({1000, 800});

    QDir().mkpath(env.path(QStringLiteral("site")));
    QImage picture(400, 300, QImage::Format_RGB32);
    picture.fill(QColor(0xe8, 0xf0, 0xf8));
    QVERIFY(picture.save(env.path(QStringLiteral("site/plan.png"))));
    for (const char *name : {"rect", "circle", "poly", "late"})
        env.write(QStringLiteral("site/%1.htm").arg(QLatin1String(name)),
                  QByteArray("<P>") + name + QByteArray(" page</P>"));
    const QString pageFile = env.write(QStringLiteral("site/page.html"),
                                       "<HTML><BODY STYLE=\"margin:0\">\r\nMAP\r\n<P>Floor plan</P></BODY></HTML>");
    QVERIFY(documents::OpenDocumentFile(pageFile));
    auto *doc = dynamic_cast<DocumentWindow *>(main->activeDocument());
    QVERIFY(doc);
    const int at = int(doc->txtDoc().Text().indexOf(QStringLiteral("MAP")));
    doc->txtDoc().SetSel(at, at + 3);

    // The editor's model, written as OK writes it.
    auto *editor = new generators::ui::frmImageMap(main.get());
    QVERIFY(editor->LoadImageFile(env.path(QStringLiteral("site/plan.png"))));
    ImageMapModel &m = editor->model();
    m.addRegion(region(RegionShape::Rectangle, QRect(20, 20, 100, 80), QStringLiteral("rect.htm")));
    m.addRegion(region(RegionShape::Circle, QRect(200, 30, 100, 100), QStringLiteral("circle.htm")));
    MapRegion triangle;
    triangle.shape = RegionShape::Polygon;
    triangle.points = {QPoint(60, 280) * 15, QPoint(160, 180) * 15, QPoint(260, 280) * 15};
    triangle.url = QStringLiteral("poly.htm");
    m.addRegion(triangle);
    m.addRegion(region(RegionShape::Rectangle, QRect(100, 60, 100, 80), QStringLiteral("late.htm")));
    m.values.mapName = QStringLiteral("plan");
    QVERIFY(editor->mapText().startsWith(QStringLiteral("<IMG SRC=\"plan.png\" USEMAP=\"#plan\"")));
    markup::InsertMarkup(editor->mapText(), QString(), true);
    editor->deleteLater();
    QVERIFY(doc->txtDoc().Text().contains(QStringLiteral("<AREA SHAPE=POLYGON")));

    doc->selectTab(1);
    auto *view = doc->findChild<QWebEngineView *>(QStringLiteral("wbScout"));
    QVERIFY(view);
    QTRY_VERIFY(view->isVisible());

    // Where the picture stands in the view, once it is shown.
    auto whereIsThePicture = [view] {
        auto box = std::make_shared<QRect>();
        const bool shown = QTest::qWaitFor([&] {
            view->page()->runJavaScript(
                QStringLiteral("(function(){var i=document.images[0];if(!i||!i.complete||!i.naturalWidth)return '';"
                               "var r=i.getBoundingClientRect();return JSON.stringify({x:r.left,y:r.top,"
                               "w:r.width,h:r.height});})()"),
                [box](const QVariant &v) {
                    const QJsonObject o = QJsonDocument::fromJson(v.toString().toUtf8()).object();
                    if (!o.isEmpty())
                        *box = QRect(o.value(QStringLiteral("x")).toInt(), o.value(QStringLiteral("y")).toInt(),
                                     o.value(QStringLiteral("w")).toInt(), o.value(QStringLiteral("h")).toInt());
                });
            QTest::qWait(100);
            return box->width() == 400;
        }, 30000);
        return shown ? *box : QRect();
    };

    const struct {
        QPoint at;
        const char *page;
    } clicks[] = {
        {{40, 40}, "rect.htm"},      // the rectangle's corner
        {{110, 80}, "rect.htm"},     // rectangle and the late one overlap: the first wins
        {{180, 120}, "late.htm"},    // the late rectangle alone
        {{250, 80}, "circle.htm"},   // the circle's centre
        {{290, 80}, "circle.htm"},   // near its edge
        {{160, 260}, "poly.htm"},    // inside the triangle
    };
    for (const auto &click : clicks) {
        const QRect shown = whereIsThePicture();
        QVERIFY2(!shown.isNull(), "the picture was not shown");
        QWidget *surface = view->focusProxy() ? view->focusProxy() : view;
        const QPoint target = shown.topLeft() + click.at;
        QTest::mouseMove(surface, target);
        QTest::mouseClick(surface, Qt::LeftButton, {}, target);
        QTRY_VERIFY2_WITH_TIMEOUT(view->url().fileName() == QLatin1String(click.page),
                                  qPrintable(view->url().toString() + QLatin1String(" for ") +
                                             QLatin1String(click.page)),
                                  15000);
        // The preview's copy of the page went once it was read: the
        // preview writes it anew, as its Home tool does.
        doc->ShowMyScout(true);
    }
    // Outside every hotspot nothing happens.
    const QRect shown = whereIsThePicture();
    QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, shown.topLeft() + QPoint(380, 20));
    QTest::qWait(500);
    QCOMPARE(view->url().fileName().left(3), QStringLiteral("~qn"));

    test::closeMainWindow(main);
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    tst_ImageMapClick test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_imagemapclick.moc"
