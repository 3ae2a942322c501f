#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace qly::test {

// A real FTP server on 127.0.0.1 (pyftpdlib, see ftpserver.py) serving
// `root`, for as long as the object lives. Options as the script takes them.
class FtpTestServer
{
public:
    FtpTestServer(const QString &root, const QStringList &options = {});
    ~FtpTestServer();
    // False with a reason when the server could not start (no pyftpdlib).
    bool started() const { return m_port > 0; }
    QString problem() const { return m_problem; }
    int port() const { return m_port; }
    // "127.0.0.1:port".
    QString host() const;
    static QString user() { return QStringLiteral("tester"); }
    static QString password() { return QStringLiteral("secret"); }

private:
    QProcess m_process;
    int m_port = 0;
    QString m_problem;
};

} // namespace qly::test

// Declares the server `name` on `root` (options as the script takes them),
// or skips the test when no server can start.
#define QLY_FTP_SERVER(name, root, ...)                                                                            \
    qly::test::FtpTestServer name(root, ##__VA_ARGS__);                                                            \
    if (!name.started())                                                                                           \
        QSKIP(qPrintable(name.problem()));
