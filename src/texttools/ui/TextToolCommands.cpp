#include "texttools/ui/TextToolCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "texttools/ui/frmFind.h"
#include "texttools/ui/frmGrep.h"

#include <QMainWindow>

namespace qly::texttools::ui {

void registerTextToolCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    QMainWindow *w = shell.mainWindow();
    t.bind(QStringLiteral("EditFind"), [w] { frmFind::instance(w).showGuise(QStringLiteral("f")); });
    t.bind(QStringLiteral("EditReplace"), [w] { frmFind::instance(w).showGuise(QStringLiteral("r")); });
    t.bind(QStringLiteral("EditFindNext"), [w] { frmFind::instance(w).findAgain(false); });
    t.bind(QStringLiteral("EditFindPrevious"), [w] { frmFind::instance(w).findAgain(true); });
    t.bind(QStringLiteral("EditMFReplace"), [w] {
        frmGrep &g = frmGrep::instance(w);
        g.show();
        g.raise();
        g.activateWindow();
    });
}

} // namespace qly::texttools::ui
