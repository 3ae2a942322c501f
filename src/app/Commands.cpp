#include "app/Commands.h"

#include "app/MainWindow.h"
#include "app/frmOptions.h"
#include "core/Paths.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "core/ui/frmMe.h"
#include "documents/ui/DocumentCommands.h"
#include "markup/ui/MarkupCommands.h"
#include "publish/ui/PreviewCommands.h"
#include "texttools/ui/ConversionCommands.h"

#include <QDesktopServices>
#include <QUrl>

namespace qly::app {

namespace {

QString N(const char *name)
{
    return QString::fromLatin1(name);
}

// The commands of the main window itself: exit, options, help.
void registerMainCommands(frmMain &w)
{
    core::ui::CommandTable &t = w.commands();
    t.bind(N("mnuExit"), [&w] { w.close(); });
    t.bind(N("ToolsOptions"), [&w] { ShowOptions(w); });
    t.bind(N("EditBrowsers"), [&w] { ShowOptions(w, core::OptionsTab::ExternalBrowsers); });

    const auto openHelp = [] {
        QDesktopServices::openUrl(
            QUrl::fromLocalFile(core::JoinPath(core::ProgramDirectory(), QStringLiteral("help/index.html"))));
    };
    t.bind(N("HelpContents"), openHelp);
    t.bind(N("HelpSearch"), openHelp);
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
    publish::ui::registerPublishCommands(window);
    texttools::ui::registerConversionCommands(window);
    registerMainCommands(window);
}

} // namespace qly::app
