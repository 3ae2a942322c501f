#include "app/Commands.h"

#include "app/MainWindow.h"
#include "app/frmOptions.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Help.h"
#include "core/ui/frmMe.h"
#include "documents/ui/DocumentCommands.h"
#include "markup/ui/MarkupCommands.h"
#include "platform/Prompts.h"
#include "publish/ui/PreviewCommands.h"
#include "texttools/ui/TextToolCommands.h"
#include "texttools/ui/ConversionCommands.h"


namespace qly::app {

namespace {

QString N(const char *name)
{
    return QString::fromLatin1(name);
}

// The commands of the main window itself: exit, options, help, and the
// website messages.
void registerMainCommands(frmMain &w)
{
    core::ui::CommandTable &t = w.commands();
    t.bind(N("mnuExit"), [&w] { w.close(); });
    t.bind(N("ToolsOptions"), [&w] { ShowOptions(w); });
    t.bind(N("EditBrowsers"), [&w] { ShowOptions(w, core::OptionsTab::ExternalBrowsers); });

    t.bind(N("HelpContents"), [] { core::ui::OpenHelp(); });
    t.bind(N("HelpSearch"), [] { core::ui::OpenHelp(); });
    t.bind(N("HelpAbout"), [&w] { core::ui::frmMe(&w); });

    // No website is open before the website manager is built, so none is selected.
    t.bind(N("FileAddFiles"), [] {
        platform::MsgBox(QStringLiteral("Please select a Website before adding files to it."));
    });
    t.bind(N("mnuUploadProject"), [] {
        platform::MsgBox(QStringLiteral("Please select a Website before uploading it."));
    });
}

} // namespace

void registerCommands(frmMain &window)
{
    core::ui::CommandTable &t = window.commands();
    for (const core::ui::CommandInfo &info : core::ui::commandCatalogue())
        t.declare(info.name, info.caption, info.key);

    documents::ui::registerDocumentCommands(window);
    markup::ui::registerMarkupCommands(window);
    publish::ui::registerPublishCommands(window);
    texttools::ui::registerTextToolCommands(window);
    texttools::ui::registerConversionCommands(window);
    registerMainCommands(window);
}

} // namespace qly::app
