#include "publish/ui/PreviewCommands.h"

#include "core/OptionsHooks.h"
#include "documents/Workspace.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "core/ui/StartupSteps.h"
#include "documents/ui/DocumentWindow.h"
#include "platform/Prompts.h"
#include "publish/FindBrowsers.h"
#include "publish/Preview.h"
#include "publish/WebAddresses.h"
#include "publish/ui/frmBrowser.h"
#include "publish/ui/frmHostPanel.h"

#include <QAction>
#include <QMainWindow>
#include <QDesktopServices>
#include <QPointer>
#include <QUrl>

namespace qly::publish::ui {

using documents::ui::DocumentWindow;

namespace {

void onPreviewTab(DocumentWindow::BrowserCommand command)
{
    if (auto *window = dynamic_cast<DocumentWindow *>(documents::Workspace::CurrentDocument()))
        window->runBrowserCommand(command);
}

} // namespace

void LoadBrowserMenu(core::ui::CommandTable &table)
{
    const std::vector<BrowserEntry> entries = BrowserMenuEntries();
    for (int i = 0; i < 4; ++i) {
        QAction *action = table.action(QStringLiteral("Preview%1").arg(i));
        if (!action)
            continue;
        const bool used = size_t(i) < entries.size();
        action->setText(used ? entries[size_t(i)].caption : QStringLiteral("Browser %1").arg(i + 1));
        action->setToolTip(used ? entries[size_t(i)].path : QString());
        action->setData(used ? entries[size_t(i)].path : QString());
        action->setVisible(used);
    }
}

void registerPublishCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    QWidget *w = shell.mainWindow();
    systemUrlOpener() = [](const QString &url) { return QDesktopServices::openUrl(QUrl(url)); };

    for (int i = 0; i < 4; ++i) {
        const QString name = QStringLiteral("Preview%1").arg(i);
        t.bind(name, [&t, name] { PreviewDocument(t.action(name)->data().toString()); });
    }
    t.bind(QStringLiteral("PreviewAll"), [] { PreviewDocument(QString(), QStringLiteral("ALL")); });
    auto preview = [w] { tlbPreview_Click([w] { frmBrowser::choose(w); }); };
    t.bind(QStringLiteral("tlbPreview"), preview);
    t.bind(QStringLiteral("mnuPrintPreview"), preview);

    using C = DocumentWindow::BrowserCommand;
    t.bind(QStringLiteral("tlbBack"), [] { onPreviewTab(C::Back); });
    t.bind(QStringLiteral("tlbForward"), [] { onPreviewTab(C::Forward); });
    t.bind(QStringLiteral("tlbStop"), [] { onPreviewTab(C::Stop); });
    t.bind(QStringLiteral("tlbRefresh"), [] { onPreviewTab(C::Refresh); });
    t.bind(QStringLiteral("tlbHome"), [] { onPreviewTab(C::Home); });

    t.bind(QStringLiteral("HostPanelOpen"), [] {
        const QString address = HostPanelAddress();
        if (address.isEmpty())
            platform::MsgBox(QStringLiteral("The hosting control panel has no address: [Lumenserve] \"URL\" is empty."),
                             platform::Buttons::Ok, platform::Icon::Information);
        else
            OpenInDefaultBrowser(address);
    });

    t.bind(QStringLiteral("HostPanelSetup"), [w] {
        frmHostPanel dialog(w);
        dialog.exec();
    });
    // The product site's pages and the domain look-up open in the browser.
    for (const QString &name : webAddressCommands())
        t.bind(name, [name] { OpenInDefaultBrowser(webAddress(name)); });
    t.bind(QStringLiteral("HelpCornucopia"), [] { OpenInDefaultBrowser(BrowserUrl(cornucopiaPage())); });

    // The hooks outlive a main window; they rebuild the menu of one that is still there.
    const QPointer<core::ui::CommandTable> table(&t);
    auto rebuild = [table] {
        if (table)
            LoadBrowserMenu(*table);
    };
    using core::ui::StartupStep;
    shell.startupSteps().add(StartupStep::BrowserMenu, rebuild);
    shell.startupSteps().add(StartupStep::FindBrowsers, [rebuild] {
        FindBrowsers();
        rebuild();
    });
    core::optionsHooks().loadBrowserMenu = rebuild;
    core::optionsHooks().findBrowsers = [] { return FindBrowsers(); };
    LoadBrowserMenu(t);
}

} // namespace qly::publish::ui
