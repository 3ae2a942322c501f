#pragma once

#include <QObject>
#include <QString>

class QLocalServer;

namespace qly::app {

// One copy of the program per user: the first copy listens on a local
// socket named after the user; a later copy finds it there and hands over
// the file it was started with, which the first copy then opens.
class SingleInstance : public QObject
{
    Q_OBJECT
public:
    explicit SingleInstance(QObject *parent = nullptr);

    // True when another copy is running; `file` (when not empty) has then
    // been handed to it, with `directory` to resolve a relative name.
    // Otherwise this copy claims the name and listens.
    bool anotherCopyRunning(const QString &file = {}, const QString &directory = {});
    static QString serverName();

    // A file as another copy's user named it, made absolute.
    static QString resolve(const QString &file, const QString &directory);

signals:
    // Another copy was started; `file` is absolute, or empty when none was named.
    void fileHandedOver(const QString &file);

private:
    void listen();

    QLocalServer *m_server = nullptr;
};

} // namespace qly::app
