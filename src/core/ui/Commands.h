#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qly::core::ui {

class CommandTable;
class frmMain;

// Registers every command of the editor in the table, once, by name.
void registerCommands(CommandTable &table, frmMain &window);

// The menu bar: each menu with its command names in order ("" is a separator).
struct MenuLayout {
    QString name;
    QString caption;
    QStringList commands;
};
const std::vector<MenuLayout> &menuLayout();

} // namespace qly::core::ui
