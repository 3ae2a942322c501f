#include "images/GifTransparency.h"
#include "images/ui/ImageCodec.h"
#include "images/ui/ImageProcSession.h"
#include "images/ui/SquishImage.h"
#include "images/ui/frmImageProc.h"
#include "support/Shots.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QPainter>
#include <QtTest>

using namespace qly;
using namespace qly::images::ui;

namespace {

// Three flat bands and a gradient strip: few colours for the GIF, detail
// for the JPEG's quality to matter.
QImage testPicture()
{
    QImage image(64, 48, QImage::Format_RGB32);
    QPainter p(&image);
    p.fillRect(0, 0, 64, 16, QColor(255, 0, 0));
    p.fillRect(0, 16, 64, 16, QColor(0, 128, 255));
    for (int x = 0; x < 64; ++x)
        p.fillRect(x, 32, 1, 16, QColor(x * 4, 255 - x * 4, (x * 37) % 256));
    return image;
}

} // namespace

class tst_ImageProc : public QObject
{
    Q_OBJECT

private slots:
    void codecRoundTrips();
    void sessionKeepsBothEncodings();
    void dialogPicksAndSaves();
    void squishOneImage();
};

void tst_ImageProc::codecRoundTrips()
{
    test::TestEnv env;
    QImage few(20, 10, QImage::Format_RGB32);
    few.fill(QColor(10, 20, 30));
    few.setPixel(3, 4, qRgb(200, 100, 50));
    const QString gif = env.path(QStringLiteral("few.gif"));
    QVERIFY(SaveGif(few, gif));
    const QImage back = LoadImage(gif);
    QCOMPARE(back.size(), few.size());
    QCOMPARE(back.pixel(3, 4), qRgb(200, 100, 50));
    QCOMPARE(back.pixel(0, 0), qRgb(10, 20, 30));
    const ImageInfo info = FileInformation(gif);
    QCOMPARE(info.type, QStringLiteral("GIF"));
    QCOMPARE(info.bitsPerPixel, 1);
    QCOMPARE(info.bytes, QFile(gif).size());

    const QByteArray low = EncodeJpeg(testPicture(), 10);
    const QByteArray high = EncodeJpeg(testPicture(), 95);
    QVERIFY(!low.isEmpty() && low.size() < high.size());
    QVERIFY(EncodeGif(QImage()).isEmpty());
    QVERIFY(LoadImage(env.write(QStringLiteral("junk.gif"), "GIF89a junk")).isNull());
}

void tst_ImageProc::sessionKeepsBothEncodings()
{
    test::TestEnv env;
    const QString png = env.path(QStringLiteral("pic.png"));
    QVERIFY(testPicture().save(png));
    QString gifTemp;
    {
        ImageProcSession session(env.dir());
        QVERIFY(session.LoadProcImage(png));
        gifTemp = session.gifPath();
        QCOMPARE(QFileInfo(gifTemp).fileName(), QStringLiteral("qntmppic.gif"));
        QCOMPARE(session.gifInfo().type, QStringLiteral("GIF"));
        QCOMPARE(session.jpegInfo().type, QStringLiteral("JPEG"));
        QCOMPARE(session.jpegInfo().bitsPerPixel, 24);
        QVERIFY(session.gifInfo().bitsPerPixel <= 8);
        QCOMPARE(session.gifImage().size(), QSize(64, 48));

        QVERIFY(session.setJpegQuality(10));
        const qint64 small = session.jpegInfo().bytes;
        QVERIFY(session.setJpegQuality(95));
        QVERIFY(session.jpegInfo().bytes > small);

        QVERIFY(!session.transparent());
        const QColor red = QColor(session.gifImage().pixel(1, 1));
        QVERIFY(session.MakegifTransparent(red));
        QCOMPARE(session.transparent(), std::optional<QColor>(red));
        QCOMPARE(qAlpha(session.gifImage().pixel(1, 1)), 0);
        QVERIFY(!session.MakegifTransparent(QColor(1, 2, 3)));
        QVERIFY(session.clearTransparency());
        QVERIFY(!session.transparent());

        // A GIF is taken as it is, its transparency with it.
        const QString gif = env.path(QStringLiteral("t.gif"));
        QFile::copy(gifTemp, gif);
        QVERIFY(session.MakegifTransparent(red));
        QFile::remove(gif);
        QFile::copy(gifTemp, gif);
        QVERIFY(session.LoadProcImage(gif));
        QCOMPARE(session.transparent(), std::optional<QColor>(red));
        QVERIFY(!session.LoadProcImage(env.write(QStringLiteral("bad.jpg"), "no picture")));
        QVERIFY(!QFile::exists(gifTemp));
    }
    QVERIFY(!QFile::exists(gifTemp));
}

void tst_ImageProc::dialogPicksAndSaves()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString jpg = env.path(QStringLiteral("photo.jpg"));
    QVERIFY(testPicture().save(jpg, "JPEG", 90));
    frmImageProc dialog(nullptr, env.dir());
    dialog.LoadProcImage(jpg);
    QVERIFY(dialog.session().loaded());

    dialog.sscEyeDropper_Click();
    dialog.ldjpeg_MouseUp();
    QCOMPARE(prompts.shown.value(0).title, QStringLiteral("No Transparency In JPEGs"));
    QCOMPARE(prompts.shown.value(0).text,
             QStringLiteral("You cannot set a transparent color for JPEG images.  They do not support transparency."));
    const QRgb picked = dialog.session().gifImage().pixel(2, 20);
    dialog.ldGif_MouseUp(QPoint(2, 20));
    QVERIFY(dialog.session().transparent().has_value());
    QCOMPARE(dialog.session().transparent()->rgb(), picked);
    QCOMPARE(qAlpha(dialog.session().gifImage().pixel(2, 20)), 0);
    test::saveShot(&dialog, QStringLiteral("imageproc"));

    dialog.rbJpeg_Click(4);   // "Other" with nothing typed waits for the level
    const QString target = env.path(QStringLiteral("saved.gif"));
    prompts.chooseFiles({target});
    dialog.btnSave_Click(0);
    QCOMPARE(prompts.fileRequests.value(0).title, QStringLiteral("Quillery 4.01 - Save Graphic As"));
    QCOMPARE(prompts.fileRequests.value(0).filter,
             QStringLiteral("gif (*.gif)|*.gif|JPEG (*.JPG)|*.jpg|All Files (*.*)|*.*"));
    QCOMPARE(dialog.savedFile(), target);
    QCOMPARE(env.read(QStringLiteral("saved.gif")), env.read(QStringLiteral("qntmppic.gif")));
    QCOMPARE(images::ReadGifPalette(target, true).transparent.size(), 3);
}

void tst_ImageProc::squishOneImage()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString photo = env.path(QStringLiteral("photo.jpg"));
    QVERIFY(testPicture().save(photo, "JPEG", 98));
    QVERIFY(SquishImage(photo, env.path(QStringLiteral("BBphoto.jpg")), 30, false));
    QVERIFY(QFileInfo(env.path(QStringLiteral("BBphoto.jpg"))).size() < QFileInfo(photo).size());

    // A GIF made larger by the conversion stays as it was.
    QImage few(16, 16, QImage::Format_RGB32);
    few.fill(Qt::red);
    const QString gif = env.path(QStringLiteral("few.gif"));
    QVERIFY(SaveGif(few, gif));
    QVERIFY(SquishImage(gif, env.path(QStringLiteral("LSfew.jpg")), 100, true));
    QCOMPARE(env.read(QStringLiteral("LSfew.jpg")), env.read(QStringLiteral("few.gif")));

    // A transparent GIF keeps its transparency, converted or copied.
    const QImage big = testPicture();
    const QString tgif = env.path(QStringLiteral("t.gif"));
    QVERIFY(SaveGif(big, tgif));
    images::ReadGifPalette(tgif);
    QVERIFY(images::MakeGifTransparent(0x0000FF, tgif));   // the red band
    QVERIFY(SquishImage(tgif, env.path(QStringLiteral("BBt.gif")), 80, false));
    QCOMPARE(images::ReadGifPalette(env.path(QStringLiteral("BBt.gif")), true).transparent, QByteArray("\xFF\x00\x00", 3));

    QVERIFY(!SquishImage(env.write(QStringLiteral("bad.gif"), "junk"), env.path(QStringLiteral("x.gif")), 80, false));
    QVERIFY(prompts.texts().value(0).startsWith(QStringLiteral("An error occurred while loading ")));
    QVERIFY(!QFile::exists(env.path(QStringLiteral("x.gif"))));
}

QTEST_MAIN(tst_ImageProc)
#include "tst_imageproc.moc"
