#include "core/ui/CommandTable.h"

#include <QAction>

namespace qly::core::ui {

CommandTable::CommandTable(QObject *parent)
    : QObject(parent)
{
}

QAction *CommandTable::declare(const QString &name, const QString &caption, const QKeySequence &key)
{
    Q_ASSERT_X(!m_actions.contains(name), "CommandTable::declare", "command declared twice");
    auto *action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcut(key);
    // Shown in the status bar while the pointer rests on a tool or an entry.
    action->setToolTip(QString(caption).remove(u'&').remove(QStringLiteral("...")));
    action->setStatusTip(action->toolTip());
    action->setEnabled(false);
    m_actions.insert(name, action);
    m_order << name;
    return action;
}

QAction *CommandTable::bind(const QString &name, std::function<void()> run)
{
    QAction *action = m_actions.value(name);
    Q_ASSERT_X(action, "CommandTable::bind", "binding a command that was never declared");
    if (!action)
        return nullptr;
    Q_ASSERT_X(!action->isEnabled(), "CommandTable::bind", "command bound twice");
    connect(action, &QAction::triggered, this, [run = std::move(run)] { run(); });
    action->setEnabled(true);
    return action;
}

QAction *CommandTable::add(const Command &command)
{
    QAction *action = m_actions.value(command.name);
    if (!action)
        action = declare(command.name, command.caption, command.shortcut);
    if (!command.tip.isEmpty()) {
        action->setStatusTip(command.tip);
        action->setToolTip(command.tip);
    }
    action->setCheckable(command.checkable);
    if (command.run)
        bind(command.name, command.run);
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
