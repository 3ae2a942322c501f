#include "transfer/FtpSession.h"

#include "core/Feedback.h"
#include "transfer/FtpClient.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>

namespace qly::transfer {

FtpClient &sharedSession()
{
    static FtpClient *session = new FtpClient(QCoreApplication::instance());
    return *session;
}

QString PromptFtpPassword(const QString &login, const QString &host)
{
    // The ordinary pointer while the user types.
    platform::prompts().setBusy(false);
    const std::optional<QString> answer = platform::prompts().inputPassword(
        platform::programTitle(),
        QStringLiteral("Please enter the password for '") + login + QStringLiteral("' to connect to ") + host);
    return answer.value_or(QString());
}

void waitForConnection(FtpClient &ftp)
{
    while (!ftp.Connected() && ftp.LastError <= 0) {
        QEventLoop loop;
        QObject::connect(&ftp, &FtpClient::ftp_Connect, &loop, &QEventLoop::quit);
        QObject::connect(&ftp, &FtpClient::ftp_LastError, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

bool ConnectToFtp(const QString &host, const QString &login, const QString &password, FtpClient &ftp,
                  const std::optional<QString> &directory)
{
    QString dir = directory.value_or(QString());
    if (directory && dir.isEmpty())
        dir = QStringLiteral("/");
    if (ftp.Connected() && ftp.HostName.compare(host, Qt::CaseInsensitive) == 0)
        return true;

    core::BeginWait();
    ftp.LastError = 0;
    if (ftp.Connected()) {
        core::ShowStatus(QStringLiteral("Disconnecting..."));
        ftp.setAction(FtpClient::Disconnect);
        core::ShowStatus(QString());
    }
    QString where = host + u'/' + dir;
    while (where.contains(QLatin1String("//")))
        where.replace(QLatin1String("//"), QLatin1String("/"));
    core::ShowStatus(QStringLiteral("Connecting to ") + where);
    ftp.HostName = host;
    ftp.UserName = login;
    QString pass = password;
    if (pass.isEmpty())
        pass = PromptFtpPassword(login, host);
    if (pass.isEmpty()) {
        core::EndWait();
        return false;
    }
    ftp.password = pass;
    ftp.LastError = 0;
    ftp.Blocking = false;
    ftp.setAction(FtpClient::Connect);
    waitForConnection(ftp);
    bool ok = false;
    if (ftp.LastError > 0) {
        core::EndWait();
        platform::MsgBox(QStringLiteral("Couldn't log in.  Please check that the Login and Password are correct."));
        ftp.LastError = 0;
    } else {
        if (!dir.isEmpty() && dir != QLatin1String("/"))
            ftp.ChangeDirectory(dir);
        ok = ftp.LastError == 0;
    }
    core::EndWait();
    return ok;
}

void SetTransferMode(FtpClient &ftp, const QString &extension)
{
    static const QStringList text = {QStringLiteral("html"), QStringLiteral("htm"), QStringLiteral("txt"),
                                     QStringLiteral("doc"), QStringLiteral("shtml")};
    if (text.contains(extension.toLower())) {
        if (ftp.Tag != QLatin1String("A")) {
            ftp.Binary = false;
            ftp.Tag = QStringLiteral("A");
        }
    } else if (ftp.Tag == QLatin1String("A")) {
        ftp.Binary = true;
        ftp.Tag = QStringLiteral("I");
    }
}

bool unchangedOnServer(FtpClient &ftp, const QString &local, const QString &remote)
{
    const QFileInfo info(local);
    const auto there = ftp.statFile(remote);
    if (!there || !there->modified.isValid())
        return false;
    if (ftp.Tag != QLatin1String("A") && there->size != info.size())
        return false;
    // Servers tell whole seconds.
    return there->modified >= info.lastModified().toUTC().addSecs(-1);
}

FtpErrorReport uploadErrorReport(int code, const QString &text, const FtpClient &ftp)
{
    FtpErrorReport r;
    QString shown = text;
    switch (code) {
    case ErrNotConnected:
        r.status = QStringLiteral("Tried to disconnect while not connected ...");
        return r;
    case ErrLogin:
        shown = QStringLiteral("Incorrect login name or password");
        break;
    case ErrRemoteName:
        shown = QStringLiteral("A problem occurred with a remote directory name.  The current directory is now ")
                + ftp.RemoteDir;
        break;
    case ErrPermission:
        shown = QStringLiteral("Permission Denied - You cannot do that command in this directory.  Please check "
                               "your 'Write Access' before trying again.");
        break;
    default:
        break;
    }
    r.status = shown;
    if (!shown.isEmpty()) {
        r.box = true;
        r.icon = platform::Icon::Exclamation;
        r.title = QStringLiteral("FTP Error : ") + ftp.ReplyString();
        r.text = QStringLiteral("Error Code : ") + QString::number(code) + QStringLiteral("  ") + shown;
    }
    return r;
}

FtpErrorReport mainErrorReport(int code, const QString &text, const FtpClient &ftp)
{
    FtpErrorReport r;
    r.title = platform::programTitle();
    switch (code) {
    case ErrNotConnected:
        r.status = QStringLiteral("Tried to disconnect while not connected...");
        return r;
    case ErrAborted:
        r.status = QStringLiteral("File transfer successfully aborted");
        return r;
    case ErrRemoteName:
        r.status = QStringLiteral("Error in FTP filename.  Remote - ") + ftp.RemoteFile + QStringLiteral(" Local - ")
                   + ftp.LocalFile;
        return r;
    case ErrSocket:
        r.text = QStringLiteral("An error occurred while trying to select a socket.");
        break;
    case ErrTimedOut:
        r.text = QStringLiteral("Operation timed out.");
        r.icon = platform::Icon::Exclamation;
        break;
    case ErrLogin:
        r.text = QStringLiteral("FTP Server did not allow a connection.");
        r.icon = platform::Icon::Exclamation;
        break;
    default:
        r.text = QString::number(code) + u' ' + text;
        r.title = ftp.ReplyString();
        r.icon = platform::Icon::Information;
        break;
    }
    r.box = true;
    return r;
}

void tell(const FtpErrorReport &report)
{
    if (report.box)
        platform::MsgBox(report.text, platform::Buttons::Ok, report.icon, report.title);
    if (!report.status.isEmpty())
        core::ShowStatus(report.status);
}

} // namespace qly::transfer
