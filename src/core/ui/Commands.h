#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qly::core::ui {

class CommandTable;
class frmMain;

// Declares every command of the catalogue in the table, then gives each
// command that is built its work.
void registerCommands(CommandTable &table, frmMain &window);

} // namespace qly::core::ui
