#pragma once

#include <QHash>
#include <QKeySequence>
#include <QObject>
#include <QString>
#include <functional>

class QAction;

namespace qly::core::ui {

// Every command of the editor, registered once under its name. Menus,
// toolbars, the popup menu and keyboard shortcuts all reach a command
// through its action here. A command whose work is not built yet is
// registered disabled.
class CommandTable : public QObject
{
    Q_OBJECT
public:
    explicit CommandTable(QObject *parent = nullptr);

    struct Command {
        QString name;                     // e.g. "mnuSave"
        QString caption;                  // e.g. "&Save"
        std::function<void()> run;        // empty: not available yet
        QKeySequence shortcut = {};
        QString tip = {};
        bool checkable = false;
    };

    // Declares a command without its work: it shows disabled until bound.
    QAction *declare(const QString &name, const QString &caption, const QKeySequence &key = {});
    // Gives a declared command its work and enables it.
    QAction *bind(const QString &name, std::function<void()> run);
    // Declares (when new) and binds in one statement.
    QAction *add(const Command &command);
    QAction *action(const QString &name) const;
    bool contains(const QString &name) const { return m_actions.contains(name); }
    // Runs a command by name; false when it is unknown or disabled.
    bool run(const QString &name) const;
    QStringList names() const { return m_order; }

private:
    QHash<QString, QAction *> m_actions;
    QStringList m_order;
};

} // namespace qly::core::ui
