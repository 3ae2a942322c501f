// The browser entries of the real main window: captions and visibility
// from [Browsers], rebuilt when the Options dialog finds browsers.
#include "core/OptionsHooks.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "core/ui/MainWindow.h"
#include "core/ui/Toolbars.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QToolBar>
#include <QtTest>

using namespace qly;

class tst_BrowserMenu : public QObject
{
    Q_OBJECT
private slots:
    void entriesFollowTheList();
};

void tst_BrowserMenu::entriesFollowTheList()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("quillery.ini"),
              "[Browsers]\r\n1=/usr/bin/firefox\r\n2=/opt/tools/webthing\r\n");
    core::ui::frmMain main;
    const core::ui::CommandTable &t = main.commands();
    QAction *first = t.action(QStringLiteral("Preview0"));
    QCOMPARE(first->text(), QStringLiteral("Firefox"));
    QCOMPARE(first->data().toString(), QStringLiteral("/usr/bin/firefox"));
    QCOMPARE(t.action(QStringLiteral("Preview1"))->text(), QStringLiteral("webthing"));
    QVERIFY(first->isVisible() && t.action(QStringLiteral("Preview1"))->isVisible());
    QVERIFY(!t.action(QStringLiteral("Preview2"))->isVisible() && !t.action(QStringLiteral("Preview3"))->isVisible());
    // The tools "B1" to "B4" are these entries.
    QVERIFY(main.toolbars().band(QStringLiteral("File"))->actions().contains(first));

    // The Options dialog's commit rebuilds the menu from the new list.
    core::WriteSetting(QStringLiteral("Browsers"), QStringLiteral("3"), QStringLiteral("/usr/bin/chromium"));
    core::DeleteSetting(QStringLiteral("Browsers"), QStringLiteral("1"));
    QVERIFY(core::optionsHooks().loadBrowserMenu);
    core::optionsHooks().loadBrowserMenu();
    QCOMPARE(first->text(), QStringLiteral("webthing"));
    QCOMPARE(t.action(QStringLiteral("Preview1"))->text(), QStringLiteral("Chromium"));
    QVERIFY(!t.action(QStringLiteral("Preview2"))->isVisible());
    QVERIFY(t.action(QStringLiteral("tlbPreview"))->isEnabled() && t.action(QStringLiteral("mnuPrintPreview"))->isEnabled());
}

QTEST_MAIN(tst_BrowserMenu)
#include "tst_browsermenu.moc"
