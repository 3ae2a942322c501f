#include "core/ui/CommandTable.h"

#include <QAction>

namespace qly::core::ui {

CommandTable::CommandTable(QObject *parent)
    : QObject(parent)
{
}

QAction *CommandTable::add(const Command &command)
{
    Q_ASSERT_X(!m_actions.contains(command.name), "CommandTable::add", "command registered twice");
    auto *action = new QAction(command.caption, this);
    action->setObjectName(command.name);
    action->setShortcut(command.shortcut);
    action->setStatusTip(command.tip);
    action->setToolTip(command.tip.isEmpty() ? QString(command.caption).remove(u'&') : command.tip);
    action->setCheckable(command.checkable);
    if (command.run) {
        const auto run = command.run;
        connect(action, &QAction::triggered, this, [run] { run(); });
    } else {
        action->setEnabled(false);
    }
    m_actions.insert(command.name, action);
    m_order << command.name;
    return action;
}

QAction *CommandTable::action(const QString &name) const
{
    return m_actions.value(name);
}

bool CommandTable::run(const QString &name) const
{
    QAction *a = m_actions.value(name);
    if (!a || !a->isEnabled())
        return false;
    a->trigger();
    return true;
}

} // namespace qly::core::ui
