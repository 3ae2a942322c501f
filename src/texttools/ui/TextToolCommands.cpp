#include "texttools/ui/TextToolCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "texttools/ui/frmFind.h"
#include "texttools/ui/frmGrep.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

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
    // The marks of the find dialog follow the current document.
    QObject::connect(shell.mdiArea(), &QMdiArea::subWindowActivated, w, [] {
        if (frmFind *f = frmFind::existing())
            f->followCurrentDocument();
    });
}

} // namespace qly::texttools::ui
