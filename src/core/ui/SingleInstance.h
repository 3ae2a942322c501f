#pragma once

#include <QObject>

class QLocalServer;

namespace qly::core::ui {

// One copy of the program per user: the first copy listens on a local
// socket named after the user; a later copy finds it there.
class SingleInstance : public QObject
{
    Q_OBJECT
public:
    explicit SingleInstance(QObject *parent = nullptr);

    // True when another copy is running. Otherwise this copy claims the name.
    bool anotherCopyRunning();
    static QString serverName();

private:
    QLocalServer *m_server = nullptr;
};

} // namespace qly::core::ui
