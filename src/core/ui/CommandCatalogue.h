#pragma once

#include <QKeySequence>
#include <QString>
#include <QStringList>
#include <vector>

namespace qly::core::ui {

// Every command of the editor, once, with its caption and key: the menu
// entries, the toolbar tools that have no menu entry, and the popup menu's.
struct CommandInfo {
    QString name;        // the control's name, e.g. "mnuSave", "tlbHead1"
    QString caption;     // as the menu shows it
    QKeySequence key;    // the desktop's standard key, where there is one
};
const std::vector<CommandInfo> &commandCatalogue();

// The menu bar: each menu with its command names ("" a separator, ">Name|Caption"
// opens a submenu that runs to the next "<").
struct MenuLayout {
    QString name;
    QString caption;
    QStringList commands;
};
const std::vector<MenuLayout> &menuLayout();

// The toolbar bands in order, each with the [Display] key that stores its
// visibility, and the browser tools.
struct BandLayout {
    QString name;        // "File", "Text Property", "Insert", "Properties", "Style", "Browser"
    QString viewCommand; // "ViewTB0" ... ; empty for the browser tools
    QStringList tools;   // tool names; a tool runs the command toolCommand() gives
};
const std::vector<BandLayout> &toolbarLayout();

// The command a toolbar tool runs: the menu entry of the same operation,
// or the tool's own command.
QString toolCommand(const QString &tool);

} // namespace qly::core::ui
