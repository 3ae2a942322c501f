#include "transfer/RemoteOpen.h"

#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/RemoteDocuments.h"

namespace qly::transfer {

bool OpenFromServer(const RemoteOpenFields &fields, FtpClient &ftp)
{
    const QString host = fields.host.trimmed();
    const QString path = fields.path.trimmed();
    if (host.isEmpty() || path.isEmpty()) {
        platform::MsgBox(QStringLiteral("Please enter the server and the path of the file to open."));
        return false;
    }
    // A session open on the same server as another user is not the one asked for.
    if (ftp.Connected() && ftp.HostName.compare(host, Qt::CaseInsensitive) == 0 && ftp.UserName != fields.login)
        ftp.Quit();
    // ConnectToFtp tells a refused login itself; a cancelled password says nothing.
    if (!ConnectToFtp(host, fields.login, fields.password, ftp))
        return false;
    if (OpenRemoteDocument(ftp, path))
        return true;
    platform::MsgBox(QStringLiteral("Could not open ") + path + QStringLiteral(" from ") + host
                         + QStringLiteral(".  Please check that the file exists on the server."),
                     platform::Buttons::Ok, platform::Icon::Exclamation);
    return false;
}

} // namespace qly::transfer
