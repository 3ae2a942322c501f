#include "texttools/ui/ConversionCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "texttools/TextToHtmlFile.h"
#include "texttools/ui/frmConvert.h"
#include "texttools/ui/frmSpeller.h"
#include "texttools/ui/SpellUnderline.h"

#include <QMainWindow>

namespace qly::texttools::ui {

void registerConversionCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    QMainWindow *w = shell.mainWindow();
    t.bind(QStringLiteral("ToolsConvertToHTML"), [w] { frmConvert::showFor(w); });
    t.bind(QStringLiteral("InsertTextFile"), [] { InsertTextFile_Click(); });
    t.bind(QStringLiteral("ToolsSpellCheck"), [w] { frmSpeller::run(w); });
    installTextFileDrop();
    SpellUnderline::install(shell);
}

} // namespace qly::texttools::ui
