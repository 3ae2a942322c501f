#pragma once

namespace qly::app {

class frmMain;

// Declares every command of the catalogue in the main window's table, then
// lets each part of the editor register the work of its own commands and
// its start-up steps.
void registerCommands(frmMain &window);

} // namespace qly::app
