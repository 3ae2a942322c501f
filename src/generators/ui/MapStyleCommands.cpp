#include "generators/ui/MapStyleCommands.h"

#include "core/Feedback.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "core/ui/StartupSteps.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "generators/StyleLibrary.h"
#include "generators/ui/StyleComboBinder.h"
#include "generators/ui/frmCSSDocStyles.h"
#include "generators/ui/frmCSSImport.h"
#include "generators/ui/frmCSSSimple.h"
#include "generators/ui/frmImageMap.h"

#include <QMainWindow>

namespace qly::generators::ui {

namespace {

// The style dialogs work on the current document and refill the toolbar's
// combo afterwards.
template <typename Dialog>
void showStyleDialog(QWidget *parent)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    if constexpr (std::is_same_v<Dialog, frmCSSSimple>) {
        Dialog dialog(parent);
        dialog.exec();
    } else {
        Dialog dialog(doc->txtDoc(), parent);
        dialog.exec();
    }
    if (StyleComboBinder *binder = StyleComboBinder::instance())
        binder->refresh();
}

void LoadStyleList()
{
    core::ShowStatus(QStringLiteral("Loading Style Information"));
    StyleLibrary &library = StyleLibrary::instance();
    library.LoadStyleList();
    if (!library.damaged().isEmpty())
        core::ShowStatus(QStringLiteral("These style files cannot be read: %1")
                             .arg(library.damaged().join(QStringLiteral(", "))));
}

} // namespace

void registerMapAndStyleCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    QMainWindow *w = shell.mainWindow();
    t.bind(QStringLiteral("InsertImageMap"), [w] { frmImageMap::showFor(w); });
    t.bind(QStringLiteral("FormatEditStyles"), [w] { showStyleDialog<frmCSSSimple>(w); });
    t.bind(QStringLiteral("FormatSetStyle"), [w] { showStyleDialog<frmCSSDocStyles>(w); });
    t.bind(QStringLiteral("FormatSetURLStyle"), [w] { showStyleDialog<frmCSSImport>(w); });
    shell.startupSteps().add(core::ui::StartupStep::StyleList, LoadStyleList);
    StyleComboBinder::install(shell);
}

} // namespace qly::generators::ui
