#include "generators/ui/TableFrameCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "generators/ui/FixedTemplateDialog.h"
#include "generators/ui/frmNewFrames.h"
#include "generators/ui/frmTable.h"

#include <QMainWindow>

namespace qly::generators::ui {

void registerTableFrameCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    QMainWindow *w = shell.mainWindow();
    t.bind(QStringLiteral("InsertTable"), [w] { frmTable::showFor(w); });
    t.bind(QStringLiteral("InsertTableTemp"), [w] {
        frmTableTemp dialog(w);
        dialog.exec();
    });
    t.bind(QStringLiteral("InsertFrame"), [w] { frmNewFrames::run(w); });
}

} // namespace qly::generators::ui
