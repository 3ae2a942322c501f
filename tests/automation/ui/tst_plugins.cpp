#include "app/MainWindow.h"
#include "automation/ui/AutomationCommands.h"
#include "core/StatusText.h"
#include "core/ui/CommandTable.h"
#include "core/ui/StartupSteps.h"
#include "documents/Document.h"
#include "documents/NewDocument.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QtTest>

using namespace qly;
using core::ui::StartupStep;

// The Plug-ins menu over the example plug-in, copied into the program
// directory under two of the menu's names, with the automation service on
// a session bus of the test's own, which the plug-in calls back.
class tst_PlugIns : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void menuFollowsTheProgramDirectory();
    void withoutABusAutomationIsOff();

private:
    QProcess m_bus;
};

void tst_PlugIns::initTestCase()
{
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY2(m_bus.waitForStarted(), "dbus-daemon is not installed");
    QTRY_VERIFY(m_bus.canReadLine());
    // Before the process's first use of the session bus.
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
    QVERIFY(QDBusConnection::sessionBus().isConnected());
}

void tst_PlugIns::cleanupTestCase()
{
    m_bus.kill();
    m_bus.waitForFinished();
}

void tst_PlugIns::menuFollowsTheProgramDirectory()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString built = QStringLiteral(PLUGIN_DIR "/PlugIn8.so");
    QVERIFY(QFile::copy(built, env.path(QStringLiteral("PlugIn8.so"))));
    QVERIFY(QFile::copy(built, env.path(QStringLiteral("PlugIn9.so"))));
    auto main = test::showMainWindow();
    main->startupSteps().run(StartupStep::PlugIns);
    main->startupSteps().run(StartupStep::Automation);
    core::ui::CommandTable &commands = main->commands();
    QVERIFY(!commands.action(QStringLiteral("plug0"))->isEnabled());
    QCOMPARE(commands.action(QStringLiteral("plug0"))->text(), QStringLiteral("Not Installed"));
    QVERIFY(commands.action(QStringLiteral("plug7"))->isEnabled());
    QCOMPARE(commands.action(QStringLiteral("plug7"))->text(), QStringLiteral("Plug-In 8..."));
    QCOMPARE(commands.action(QStringLiteral("plug9"))->text(), QStringLiteral("Plug-in 10"));

    QVERIFY(documents::NewDocument(QString()));
    platform::HTMLEdit &edit = documents::Workspace::CurrentDocument()->txtDoc();
    edit.setText(QStringLiteral("<BODY></BODY>"));
    edit.SetSel(6, 6);
    // The click runs the plug-in, which inserts its text through the service.
    commands.action(QStringLiteral("plug7"))->trigger();
    QCOMPARE(edit.Text(), QStringLiteral("<BODY><!-- Inserted by the example plug-in --></BODY>"));
    // A plug-in taken away during the session keeps its entry; a click on it
    // does nothing.
    QVERIFY(QFile::remove(env.path(QStringLiteral("PlugIn9.so"))));
    commands.action(QStringLiteral("plug8"))->trigger();
    QVERIFY(commands.action(QStringLiteral("plug8"))->isEnabled());
    QCOMPARE(edit.Text(), QStringLiteral("<BODY><!-- Inserted by the example plug-in --></BODY>"));
    test::closeMainWindow(main);
}

void tst_PlugIns::withoutABusAutomationIsOff()
{
    test::TestEnv env;
    auto main = test::showMainWindow();
    const QDBusConnection none = QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"),
                                                               QStringLiteral("none"));
    QVERIFY(!automation::ui::OfferAutomation(main.get(), none));
    QCOMPARE(core::StatusText::instance().text(), QStringLiteral("Automation is off: there is no session bus."));
    test::closeMainWindow(main);
}

QTEST_MAIN(tst_PlugIns)
#include "tst_plugins.moc"
