#include "app/MainWindow.h"
#include "core/ui/CommandTable.h"
#include "images/PageOptimizer.h"
#include "images/ui/ImageCodec.h"
#include "images/ui/frmTabbuster.h"
#include "support/Shots.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

using namespace qly;
using namespace qly::images;
using namespace qly::images::ui;

namespace {

template<typename W>
W *byText(QWidget *parent, const QString &text)
{
    for (W *w : parent->findChildren<W *>())
        if (w->text() == text)
            return w;
    return nullptr;
}

} // namespace

class tst_OptimizerUi : public QObject
{
    Q_OBJECT

private slots:
    void resourceListAndRuns();
};

void tst_OptimizerUi::resourceListAndRuns()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    auto main = test::showMainWindow();
    // A noisy photo, large as a GIF, and a flat one.
    QImage photo(200, 120, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y)
        for (int x = 0; x < photo.width(); ++x)
            photo.setPixel(x, y, qRgb((x * 7 + y * 13) % 256, (x * x + y) % 256, (x * y) % 256));
    QDir(env.dir()).mkpath(QStringLiteral("site/img"));
    QVERIFY(SaveGif(photo, env.path(QStringLiteral("site/img/photo.gif"))));
    const QString index = env.write(QStringLiteral("site/index.htm"),
                                    "<html><body><img src=\"img/photo.gif\"><a href=\"more.htm\">more</a></body></html>\n");
    env.write(QStringLiteral("site/more.htm"), "<link href=\"s.css\"><a href=\"index.htm\">back</a>\n");
    env.write(QStringLiteral("site/s.css"), "p{}\n");
    const QByteArray originalGif = env.read(QStringLiteral("site/img/photo.gif"));

    QVERIFY(main->commands().run(QStringLiteral("ToolsOptimizeDL")));
    frmTabbuster *dialog = frmTabbuster::current();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Page Optimizer"));

    prompts.chooseFiles({index});
    dialog->btnOpen_Click();
    QCOMPARE(prompts.fileRequests.value(0).filter, QStringLiteral("HTML Files (*.htm)|*.htm;*.html"));
    auto *list = dialog->findChild<QTreeWidget *>();
    QCOMPARE(list->topLevelItemCount(), 4);
    QTreeWidgetItem *row = list->findItems(QStringLiteral("img/photo.gif"), Qt::MatchExactly).value(0);
    QVERIFY(row);
    QCOMPARE(row->text(1), FormatSize(originalGif.size()));
    QCOMPARE(row->text(2), QStringLiteral("gif/jpg"));
    QCOMPARE(row->text(3), DownloadTime(originalGif.size(), QStringLiteral("14.4")));
    QCOMPARE(list->headerItem()->text(9), QStringLiteral("1000"));
    QCOMPARE(list->columnCount(), 3 + int(SpeedRows().size()));
    test::saveShot(dialog, QStringLiteral("optimizer-resources"));

    // Cancelled from its own progress, then a whole run into a save folder.
    byText<QCheckBox>(dialog, QStringLiteral("Replace Image"))->setChecked(true);
    QLineEdit *saveDir = nullptr;
    for (QLineEdit *e : dialog->findChildren<QLineEdit *>())
        if (e->text().isEmpty() && e->isEnabled() && !e->isReadOnly())
            saveDir = e;
    QVERIFY(saveDir);
    saveDir->setText(env.path(QStringLiteral("out")));
    QTimer::singleShot(0, dialog, [dialog] { dialog->cancelRun(); });
    QTest::mouseClick(byText<QPushButton>(dialog, QStringLiteral("Start Auto Processing")), Qt::LeftButton);
    QVERIFY(!QFile::exists(env.path(QStringLiteral("out/index.htm"))));
    QVERIFY(!dialog->running());

    QTest::mouseClick(byText<QPushButton>(dialog, QStringLiteral("Start Auto Processing")), Qt::LeftButton);
    const QByteArray page = env.read(QStringLiteral("out/index.htm"));
    QVERIFY2(page.startsWith("<html><body><img src=\"img/BBphoto.gif\" HEIGHT=120 WIDTH=200 ALT=\"photo.gif "), page.constData());
    QVERIFY(QFileInfo(env.path(QStringLiteral("out/img/BBphoto.gif"))).size() <= originalGif.size());
    QCOMPARE(env.read(QStringLiteral("out/s.css")), QByteArray("p{}\n"));
    QCOMPARE(env.read(QStringLiteral("site/img/photo.gif")), originalGif);
    QVERIFY(!QFile::exists(env.path(QStringLiteral("site/img/BBphoto.gif"))));
    QCOMPARE(prompts.shown.last().title, platform::programTitle() + QStringLiteral(" Site Optimized!"));

    // The manual run: the image shown squeezed beside the original, saved, then the pages.
    byText<QCheckBox>(dialog, QStringLiteral("Convert GIF to JPEG"))->setChecked(true);
    saveDir->setText(env.path(QStringLiteral("manual")));
    QTest::mouseClick(byText<QPushButton>(dialog, QStringLiteral("Start Manual Processing")), Qt::LeftButton);
    bool facts = false;
    for (QLabel *l : dialog->findChildren<QLabel *>())
        facts |= l->text().startsWith(QStringLiteral("Bytes : ")) && l->text().contains(QStringLiteral("Height : 120"));
    QVERIFY(facts);
    QTest::mouseClick(byText<QPushButton>(dialog, QStringLiteral("Save Image")), Qt::LeftButton);
    QCOMPARE(prompts.shown.value(prompts.shown.size() - 2).text, QStringLiteral("No images left to optimize!"));
    QVERIFY(QImage(env.path(QStringLiteral("manual/img/BBphoto.jpg"))).size() == QSize(200, 120));
    QVERIFY(env.read(QStringLiteral("manual/index.htm")).contains("src=\"img/BBphoto.jpg\""));
    QCOMPARE(prompts.unanswered, 0);
    dialog->close();
    test::closeMainWindow(main);
}

QTEST_MAIN(tst_OptimizerUi)
#include "tst_optimizerui.moc"
