// Websites in the editor as a whole: a project opened as a document opens
// on the Website tab; Add Files joins a file; the window's close writes
// the list back. The resource manager's dividers come back from the last
// session, and files dragged from its file view become references.
#include "app/MainWindow.h"
#include "app/ResourceManager.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Divider.h"
#include "core/ui/Twips.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "platform/HTMLEdit.h"
#include "websites/WebsiteList.h"
#include "websites/Websites.h"
#include "websites/ui/WebsiteTree.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QFileSystemModel>
#include <QListView>
#include <QMimeData>
#include <QTabWidget>
#include <QtTest>

using namespace qly;

class tst_Websites : public QObject
{
    Q_OBJECT
private slots:
    void projectOpensOnTheWebsiteTabAndClosesWithTheWindow();
    void dividersComeBackFromTheLastSession();
    void filesDraggedFromTheFileViewBecomeReferences();
};

void tst_Websites::projectOpensOnTheWebsiteTabAndClosesWithTheWindow()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    std::unique_ptr<app::frmMain> main = test::showMainWindow();
    const QString a = env.write(QStringLiteral("site/a.htm"), "<a href=b.htm>");
    const QString b = env.write(QStringLiteral("site/b.htm"), "x");
    const QString prj = env.write(QStringLiteral("Site.PRJ"), "[Details]\r\nName=Site\r\n[Files]\r\n0=" + a.toUtf8() + "\r\n");

    // The way of the Open dialog, the command line and the last session.
    QVERIFY(documents::OpenDocumentFile(prj));
    QCoreApplication::processEvents();
    QTabWidget *tabs = main->resourceManager().tabs();
    QCOMPARE(tabs->tabText(tabs->currentIndex()), QStringLiteral("Website"));
    auto *tree = tabs->currentWidget()->findChild<websites::ui::WebsiteTree *>();
    QVERIFY(tree);
    QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("Site"));
    QVERIFY(prompts.shown.isEmpty());

    prompts.chooseFiles({b});
    QVERIFY(main->commands().run(QStringLiteral("FileAddFiles")));
    QCOMPARE(websites::WebsiteList::instance().WebsiteFileCount(websites::WebsiteList::instance().CurrentWebsite()), 2);

    // The close event of the window closes the websites first.
    QCloseEvent close;
    QCoreApplication::sendEvent(main.get(), &close);
    QCOMPARE(websites::WebsiteList::instance().WebsiteCount(), 0);
    QCOMPARE(core::ReadSetting(QStringLiteral("Files"), QStringLiteral("1"), prj), b);
    test::closeMainWindow(main);
}

void tst_Websites::dividersComeBackFromTheLastSession()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    std::unique_ptr<app::frmMain> main = test::showMainWindow();
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Link Checker"), QStringLiteral("Yes"));
    main->DrawMainScreen();
    app::ResourceManager &rm = main->resourceManager();
    const int web = core::ui::toTwips(120, main.get());
    const int files = core::ui::toTwips(90, main.get());
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("WebSplit"), QString::number(web));
    core::WriteSetting(QStringLiteral("Last Session"), QStringLiteral("FilesSplit"), QString::number(files));
    main->RestoreDividers();
    QCoreApplication::processEvents();
    QCOMPARE(rm.divider(QStringLiteral("Files"))->sizes().first(), 90);
    // The Website tab was not shown yet: its divider waits for it, and an
    // exit meanwhile keeps the stored value.
    QCOMPARE(rm.divider(QStringLiteral("Website"))->positionTwips(), web);
    rm.tabs()->setCurrentIndex(1);
    QCoreApplication::processEvents();
    QCOMPARE(rm.divider(QStringLiteral("Website"))->sizes().first(), 120);

    // What the user made of them goes back at exit.
    core::ui::Divider *filesDivider = rm.divider(QStringLiteral("Files"));
    const int total = filesDivider->sizes().at(0) + filesDivider->sizes().at(1);
    filesDivider->setSizes({150, total - 150});
    main->SaveMainWindowState();
    QCOMPARE(core::ReadSetting(QStringLiteral("Last Session"), QStringLiteral("FilesSplit")),
             QString::number(core::ui::toTwips(150, main.get())));
    QCOMPARE(core::ReadSetting(QStringLiteral("Last Session"), QStringLiteral("WebSplit")), QString::number(web));
    test::closeMainWindow(main);
}

void tst_Websites::filesDraggedFromTheFileViewBecomeReferences()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    std::unique_ptr<app::frmMain> main = test::showMainWindow();
    const QString page = env.write(QStringLiteral("site/index.htm"), "");
    env.write(QStringLiteral("site/pics/logo.gif"), "GIF89a");
    env.write(QStringLiteral("site/pics/my notes.txt"), "text that a desktop drop would insert");
    env.write(QStringLiteral("site/pics/clip.wav"), "RIFF");
    QVERIFY(documents::OpenDocumentFile(page));
    auto *doc = dynamic_cast<documents::ui::DocumentWindow *>(main->activeDocument());
    QVERIFY(doc);

    app::ResourceManager &rm = main->resourceManager();
    rm.fileTypes()->setCurrentIndex(rm.fileTypes()->findText(QStringLiteral("All Files (*.*)")));
    rm.setFilesRoot(env.path(QStringLiteral("site/pics")));
    auto *model = static_cast<QFileSystemModel *>(rm.fileList()->model());
    // What a view hands to the drag, dropped where the user lets go.
    auto dropMime = [&](const QMimeData *mime) {
        QWidget *target = doc->edit()->view()->viewport();
        const QPoint at = target->rect().center();
        QDragEnterEvent enter(at, Qt::CopyAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent dropped(QPointF(at), Qt::CopyAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &dropped);
        QVERIFY(dropped.isAccepted());
        QCoreApplication::processEvents();
    };
    auto drop = [&](const QString &name) {
        QModelIndex index;
        QTRY_VERIFY((index = model->index(env.path(QStringLiteral("site/pics/")) + name)).isValid());
        std::unique_ptr<QMimeData> mime(model->mimeData({index}));
        dropMime(mime.get());
    };
    drop(QStringLiteral("logo.gif"));
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<IMG SRC=pics/logo.gif>"));
    doc->txtDoc().setText(QString());
    drop(QStringLiteral("my notes.txt"));
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<A HREF=\"pics/my notes.txt\">my notes.txt</A>"));
    doc->txtDoc().setText(QString());
    // Any other kind is a link too: nothing is asked, nothing opened.
    drop(QStringLiteral("clip.wav"));
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<A HREF=pics/clip.wav>clip.wav</A>"));

    // A website's file dragged from the Website tab is the same.
    const QString prj = env.write(QStringLiteral("site.prj"), "[Details]\r\nName=Site\r\n[Files]\r\n0="
                                                                  + env.path(QStringLiteral("site/pics/logo.gif")).toUtf8() + "\r\n");
    QVERIFY(websites::OpenWebsite(prj));
    QCoreApplication::processEvents();
    auto *tree = rm.tabs()->currentWidget()->findChild<websites::ui::WebsiteTree *>();
    QAbstractItemModel *treeModel = tree->model();
    QVERIFY(!treeModel->mimeData({treeModel->index(0, 0)}));   // a website is not dragged
    const QModelIndex logo = treeModel->index(0, 0, treeModel->index(0, 0));
    QCOMPARE(logo.data().toString(), QStringLiteral("logo.gif"));
    std::unique_ptr<QMimeData> fromTree(treeModel->mimeData({logo}));
    QVERIFY(fromTree);
    doc->txtDoc().setText(QString());
    dropMime(fromTree.get());
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<IMG SRC=pics/logo.gif>"));
    websites::CloseAllWebsites();
    QVERIFY(prompts.shown.isEmpty());
    QCOMPARE(main->documentList().size(), 1);
    test::closeMainWindow(main);
}

QTEST_MAIN(tst_Websites)
#include "tst_websites.moc"
