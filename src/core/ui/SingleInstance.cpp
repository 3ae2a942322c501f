#include "core/ui/SingleInstance.h"

#include <QLocalServer>
#include <QLocalSocket>

#include <unistd.h>

namespace qly::core::ui {

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent)
{
}

QString SingleInstance::serverName()
{
    return QStringLiteral("quillery-") + QString::number(::getuid());
}

bool SingleInstance::anotherCopyRunning()
{
    QLocalSocket probe;
    probe.connectToServer(serverName());
    if (probe.waitForConnected(300)) {
        probe.disconnectFromServer();
        return true;
    }
    // Nobody answers: a name left by a copy that crashed is ours to take.
    QLocalServer::removeServer(serverName());
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->listen(serverName());
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *s = m_server->nextPendingConnection())
            s->deleteLater();
    });
    return false;
}

} // namespace qly::core::ui
