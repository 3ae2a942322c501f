#include "generators/ui/FormAndScriptCommands.h"

#include "core/ui/Shell.h"
#include "generators/ui/EffectCommands.h"
#include "generators/ui/FormCommands.h"
#include "generators/ui/ObjectCommands.h"
#include "generators/ui/ScriptCommands.h"

#include <QMainWindow>

namespace qly::generators::ui {

void registerFormAndScriptCommands(core::ui::Shell &shell)
{
    QWidget *window = shell.mainWindow();
    registerFormCommands(shell.commands(), window);
    registerEffectCommands(shell.commands(), window);
    registerScriptCommands(shell.commands(), window);
    registerObjectCommands(shell.commands(), window);
}

} // namespace qly::generators::ui
