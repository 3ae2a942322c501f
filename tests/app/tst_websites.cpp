// Websites in the editor as a whole: a project opened as a document opens
// on the Website tab; Add Files joins a file; the window's close writes
// the list back.
#include "app/MainWindow.h"
#include "app/ResourceManager.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "documents/DocumentList.h"
#include "websites/WebsiteList.h"
#include "websites/ui/WebsiteTree.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QCloseEvent>
#include <QTabWidget>
#include <QtTest>

using namespace qly;

class tst_Websites : public QObject
{
    Q_OBJECT
private slots:
    void projectOpensOnTheWebsiteTabAndClosesWithTheWindow();
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
    auto *tree = qobject_cast<websites::ui::WebsiteTree *>(tabs->currentWidget());
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

QTEST_MAIN(tst_Websites)
#include "tst_websites.moc"
