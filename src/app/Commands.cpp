#include "app/Commands.h"

#include "app/MainWindow.h"
#include "app/frmOptions.h"
#include "automation/ui/AutomationCommands.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Help.h"
#include "core/ui/frmMe.h"
#include "documents/ui/DocumentCommands.h"
#include "generators/ui/TableFrameCommands.h"
#include "generators/ui/MapStyleCommands.h"
#include "images/ui/ImageCommands.h"
#include "generators/ui/FormAndScriptCommands.h"
#include "markup/ui/MarkupCommands.h"
#include "markup/ui/TagCommands.h"
#include "publish/ui/PreviewCommands.h"
#include "tagdialogs/ui/TagDialogCommands.h"
#include "texttools/ui/TextToolCommands.h"
#include "texttools/ui/ConversionCommands.h"
#include "websites/ui/WebsiteCommands.h"
#include "app/ResourceManager.h"
#include "transfer/ui/TransferCommands.h"


namespace qly::app {

namespace {

QString N(const char *name)
{
    return QString::fromLatin1(name);
}

// The commands of the main window itself: exit, options and help.
void registerMainCommands(frmMain &w)
{
    core::ui::CommandTable &t = w.commands();
    t.bind(N("mnuExit"), [&w] { w.close(); });
    t.bind(N("ToolsOptions"), [&w] { ShowOptions(w); });
    t.bind(N("EditBrowsers"), [&w] { ShowOptions(w, core::OptionsTab::ExternalBrowsers); });

    t.bind(N("HelpContents"), [] { core::ui::OpenHelp(); });
    t.bind(N("HelpSearch"), [] { core::ui::OpenHelp(QStringLiteral("search")); });
    t.bind(N("HelpAbout"), [&w] { core::ui::frmMe(&w); });
}

} // namespace

void registerCommands(frmMain &window)
{
    core::ui::CommandTable &t = window.commands();
    for (const core::ui::CommandInfo &info : core::ui::commandCatalogue())
        t.declare(info.name, info.caption, info.key);

    documents::ui::registerDocumentCommands(window);
    markup::ui::registerMarkupCommands(window);
    markup::ui::registerTagCommands(window);
    publish::ui::registerPublishCommands(window);
    texttools::ui::registerTextToolCommands(window);
    texttools::ui::registerConversionCommands(window);
    automation::ui::registerAutomationCommands(window);
    generators::ui::registerTableFrameCommands(window);
    generators::ui::registerMapAndStyleCommands(window);
    images::ui::registerImageCommands(window);
    tagdialogs::ui::registerTagDialogCommands(window);
    generators::ui::registerFormAndScriptCommands(window);
    transfer::ui::registerTransferCommands(window);
    registerMainCommands(window);
    const websites::ui::WebsiteViews views = websites::ui::registerWebsiteCommands(window);
    window.resourceManager().setTabContent(QStringLiteral("Website"), views.website);
    if (views.bookmarks)
        window.resourceManager().setTabContent(QStringLiteral("Bookmarks"), views.bookmarks);
}

} // namespace qly::app
