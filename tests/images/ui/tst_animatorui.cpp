#include "generators/AppletFallback.h"
#include "images/ui/FrameStrip.h"
#include "images/ui/ImageCodec.h"
#include "images/ui/ImageCommands.h"
#include "images/ui/frmAnimFiles.h"
#include "images/ui/frmAnimator.h"
#include "support/Shots.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QtTest>

using namespace qly;
using namespace qly::images::ui;

namespace {

QByteArray readBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Three pictures of different colours and sizes in "site/img", and a page.
struct Site {
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    QStringList files;

    Site()
    {
        installImageHooks();
        QDir(env.dir()).mkpath(QStringLiteral("site/img"));
        const QColor colours[3] = {Qt::red, Qt::green, Qt::blue};
        for (int i = 0; i < 3; ++i) {
            QImage image(20 + i * 10, 16, QImage::Format_RGB32);
            image.fill(colours[i]);
            const QString file = env.path(QStringLiteral("site/img/f%1.%2").arg(i).arg(i == 2 ? QStringLiteral("jpg") : QStringLiteral("gif")));
            QVERIFY2(i == 2 ? image.save(file) : SaveGif(image, file), qPrintable(file));   // Qt writes no GIF
            files << file;
        }
        workspace.addDocument(QStringLiteral("page"), QString(), env.path(QStringLiteral("site/page.htm")));
    }
};

QStringList stripOrder(frmAnimator &dialog)
{
    QStringList names;
    auto *strip = dialog.findChild<FrameStrip *>();
    for (int i = 0; i < strip->count(); ++i)
        names << strip->item(i)->toolTip().section(QLatin1Char('/'), -1);
    return names;
}

} // namespace

class tst_AnimatorUi : public QObject
{
    Q_OBJECT

private slots:
    void framesMoveDeleteAndPlay();
    void outputs();
    void filePicker();
};

void tst_AnimatorUi::framesMoveDeleteAndPlay()
{
    Site site;
    frmAnimator dialog;
    QVERIFY(dialog.findChild<QLabel *>() != nullptr);
    for (const QString &f : site.files)
        dialog.AddFile(f);
    QCOMPARE(stripOrder(dialog), (QStringList{QStringLiteral("f0.gif"), QStringLiteral("f1.gif"), QStringLiteral("f2.jpg")}));
    QCOMPARE(dialog.model().rows[2].size, QSize(40, 16));

    // Dragging the first picture onto the third.
    auto *strip = dialog.findChild<FrameStrip *>();
    const QPoint first = strip->visualItemRect(strip->item(0)).center();
    const QPoint third = strip->visualItemRect(strip->item(2)).center();
    QTest::mousePress(strip->viewport(), Qt::LeftButton, {}, first);
    QTest::mouseMove(strip->viewport(), first + QPoint(30, 0));
    QTest::mouseMove(strip->viewport(), third);
    QTest::mouseRelease(strip->viewport(), Qt::LeftButton, {}, third);
    QCoreApplication::processEvents();
    QCOMPARE(stripOrder(dialog), (QStringList{QStringLiteral("f1.gif"), QStringLiteral("f2.jpg"), QStringLiteral("f0.gif")}));
    QCOMPARE(dialog.currentFrame(), 2);
    QCOMPARE(dialog.model().rows[2].frame.file, site.files[0]);

    // Dragging the second picture onto the waste bin.
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QLabel *trash = nullptr;
    for (QLabel *label : dialog.findChildren<QLabel *>())
        if (label->toolTip() == QStringLiteral("Drag a frame here to delete it"))
            trash = label;
    QVERIFY(trash);
    const QPoint second = strip->visualItemRect(strip->item(1)).center();
    const QPoint overTrash = strip->viewport()->mapFromGlobal(trash->mapToGlobal(trash->rect().center()));
    QTest::mousePress(strip->viewport(), Qt::LeftButton, {}, second);
    QTest::mouseMove(strip->viewport(), second + QPoint(0, 30));
    QTest::mouseRelease(strip->viewport(), Qt::LeftButton, {}, overTrash);
    QCoreApplication::processEvents();
    QCOMPARE(stripOrder(dialog), (QStringList{QStringLiteral("f1.gif"), QStringLiteral("f0.gif")}));
    test::saveShot(&dialog, QStringLiteral("animator-frames"));

    // The canvas: step moves on and wraps, play runs on each frame's delay.
    dialog.DisplayFrame(0);
    QCOMPARE(dialog.shownFrame(), 0);
    dialog.step();
    QCOMPARE(dialog.shownFrame(), 1);
    dialog.step();
    QCOMPARE(dialog.shownFrame(), 0);
    dialog.model().rows[0].frame.delay = QStringLiteral("30");
    dialog.model().rows[1].frame.delay = QStringLiteral("30");
    dialog.play();
    QVERIFY(dialog.playing());
    QTRY_COMPARE_WITH_TIMEOUT(dialog.shownFrame(), 1, 2000);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.shownFrame(), 0, 2000);
    dialog.stop();
    QVERIFY(!dialog.playing());

    dialog.cmdClear_Click();
    QCOMPARE(dialog.findChild<FrameStrip *>()->count(), 0);
    QVERIFY(dialog.findChildren<QLabel *>().size() > 0);
    bool noFrames = false;
    for (QLabel *label : dialog.findChildren<QLabel *>())
        noFrames |= label->text() == QStringLiteral("<No Frames Currently Specified>");
    QVERIFY(noFrames);
}

void tst_AnimatorUi::outputs()
{
    Site site;
    frmAnimator dialog;
    for (const QString &f : site.files)
        dialog.AddFile(f);
    // The GIF file: the JPEG frame is converted for it and stays a JPEG in the tag.
    const QString out = site.env.path(QStringLiteral("site/anim.gif"));
    site.prompts.chooseFiles({out});
    QCOMPARE(dialog.cmbExport_Click(), out);
    QCOMPARE(site.prompts.texts().value(0), QStringLiteral("The animated file was created successfully."));
    const QByteArray gif = readBytes(out);
    QCOMPARE(gif.left(6), QByteArray("GIF89a"));
    QCOMPARE(gif.count(QByteArray("\x21\xF9\x04", 3)), 3);

    dialog.cmdOK_Click();
    const QString text = site.workspace.document(0)->edit.Text();
    QVERIFY2(text.startsWith(QStringLiteral("<APPLET Code=\"quillanim.class\" WIDTH=40 HEIGHT=16>\r\n"
                                            "<param name=\"imagelist\" value=\"img/f0.gif, img/f1.gif, img/f2.jpg\">")),
             qPrintable(text));
    QVERIFY(!text.contains(QStringLiteral("<img")));

    // With the fallback on, OK writes the GIF first and puts it inside the tag.
    generators::SetAppletFallback(true);
    frmAnimator second;
    second.AddFile(site.files[0]);
    site.prompts.chooseFiles({site.env.path(QStringLiteral("site/img/fallback.gif"))});
    const QString tag = second.GenerateTag();
    generators::SetAppletFallback(false);
    QVERIFY2(tag.contains(QStringLiteral("<img src=\"img/fallback.gif\" width=20 height=16 alt=\"\">\r\n</APPLET>")), qPrintable(tag));
    QVERIFY(QFile::exists(site.env.path(QStringLiteral("site/img/fallback.gif"))));
}

void tst_AnimatorUi::filePicker()
{
    Site site;
    frmAnimFiles picker(nullptr, site.env.path(QStringLiteral("site/img")));
    QCOMPARE(QDir(picker.directory()), QDir(site.env.path(QStringLiteral("site/img"))));
    auto *list = picker.findChild<QListView *>();
    QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 3);
    list->selectAll();
    QCOMPARE(picker.files().size(), 3);
    for (const QString &f : picker.files())
        QVERIFY2(site.files.contains(f), qPrintable(f));
    // A folder typed into the name box is opened, not added.
    picker.nameBox()->setText(site.env.dir());
    picker.cmdAdd_Click();
    QCOMPARE(QDir(picker.directory()), QDir(site.env.dir()));
    QVERIFY(picker.isVisible() == false && picker.result() == 0);
    picker.preview(site.files[1]);
    QVERIFY(!picker.previewLabel()->pixmap().isNull());
}

QTEST_MAIN(tst_AnimatorUi)
#include "tst_animatorui.moc"
