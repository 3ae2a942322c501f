#include "support/FtpTestServer.h"

namespace qly::test {

FtpTestServer::FtpTestServer(const QString &root, const QStringList &options)
{
    const QString script = QStringLiteral(TEST_SUPPORT_DIR "/ftpserver.py");
    // Debian's pyftpdlib is installed for the system's Python only.
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral("/usr/bin/python3"), QStringList{script, root} + options);
    if (!m_process.waitForStarted(5000)) {
        m_problem = QStringLiteral("/usr/bin/python3 did not start");
        return;
    }
    while (m_process.waitForReadyRead(10000) || m_process.canReadLine()) {
        if (!m_process.canReadLine())
            continue;
        const QByteArray line = m_process.readLine().trimmed();
        if (line.startsWith("PORT ")) {
            m_port = line.mid(5).toInt();
            return;
        }
    }
    m_problem = QStringLiteral("the test FTP server did not start (is python3-pyftpdlib installed?)");
}

FtpTestServer::~FtpTestServer()
{
    m_process.kill();
    m_process.waitForFinished(3000);
}

QString FtpTestServer::host() const
{
    return QStringLiteral("127.0.0.1:") + QString::number(m_port);
}

} // namespace qly::test
