#include "automation/ui/AutomationCommands.h"

#include "automation/PlugIns.h"
#include "automation/QuilleryApp.h"
#include "automation/ui/QuilleryAppAdaptor.h"
#include "core/Feedback.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "core/ui/StartupSteps.h"

#include <QAction>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QMainWindow>

namespace qly::automation::ui {

namespace {

// Enables and captions the menu entry of each plug-in whose file is in the
// program directory; the others keep their places, disabled.
void LoadPlugIns(core::ui::CommandTable &commands)
{
    for (int index = 1; index <= PlugInCount; ++index) {
        if (!PlugInPresent(index))
            continue;
        QAction *item = commands.bind(QStringLiteral("plug%1").arg(index - 1), [index] { CallPlugIn(index); });
        item->setText(QString::fromLatin1(PlugInSlots()[index - 1].caption));
        item->setVisible(true);
    }
}

} // namespace

bool OfferAutomation(QMainWindow *window, QDBusConnection bus)
{
    auto *app = new QuilleryApp(window);
    new QuilleryAppAdaptor(app);
    const bool offered = bus.isConnected() && bus.registerObject(QString::fromLatin1(ObjectPath), app)
                         && bus.registerService(QString::fromLatin1(ServiceName));
    if (!offered) {
        delete app;
        core::ShowStatus(bus.isConnected()
                             ? QStringLiteral("Automation is off: another program holds its name on the session bus.")
                             : QStringLiteral("Automation is off: there is no session bus."));
    }
    return offered;
}

void registerAutomationCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &commands = shell.commands();
    QMainWindow *window = shell.mainWindow();
    shell.startupSteps().add(core::ui::StartupStep::PlugIns, [&commands] { LoadPlugIns(commands); });
    shell.startupSteps().add(core::ui::StartupStep::Automation, [window] {
        OfferAutomation(window, QDBusConnection::sessionBus());
    });
}

} // namespace qly::automation::ui
