#include "app/SingleInstance.h"

#include <QDataStream>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>

#include <unistd.h>

namespace qly::app {

namespace {
constexpr int kWaitMs = 2000;
}

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent)
{
}

QString SingleInstance::serverName()
{
    return QStringLiteral("quillery-") + QString::number(::getuid());
}

QString SingleInstance::resolve(const QString &file, const QString &directory)
{
    QString name = file.trimmed();
    if (name.size() >= 2 && name.startsWith(u'"') && name.endsWith(u'"'))
        name = name.mid(1, name.size() - 2);
    if (name.isEmpty())
        return QString();
    return QDir::cleanPath(QDir(directory).absoluteFilePath(name));
}

bool SingleInstance::anotherCopyRunning(const QString &file, const QString &directory)
{
    QLocalSocket probe;
    probe.connectToServer(serverName());
    if (probe.waitForConnected(300)) {
        // The running copy reads one message: the file, absolute, or nothing.
        QByteArray message;
        QDataStream out(&message, QIODevice::WriteOnly);
        out << resolve(file, directory);
        probe.write(message);
        probe.waitForBytesWritten(kWaitMs);
        probe.disconnectFromServer();
        if (probe.state() != QLocalSocket::UnconnectedState)
            probe.waitForDisconnected(kWaitMs);
        return true;
    }
    // Nobody answers: a name left by a copy that crashed is ours to take.
    listen();
    return false;
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(serverName());
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->listen(serverName());
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *s = m_server->nextPendingConnection()) {
            connect(s, &QLocalSocket::disconnected, s, &QObject::deleteLater);
            auto deliver = [this, s] {
                QDataStream in(s);
                in.startTransaction();
                QString file;
                in >> file;
                if (!in.commitTransaction())
                    return;   // the rest is still on its way
                s->disconnect(this);
                emit fileHandedOver(file);
            };
            connect(s, &QLocalSocket::readyRead, this, deliver);
            if (s->bytesAvailable() > 0)
                deliver();
        }
    });
}

} // namespace qly::app
