#include "transfer/WebsiteProjects.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/SiteDownload.h"
#include "transfer/UploadList.h"
#include "websites/LinkedFiles.h"
#include "websites/Password.h"
#include "websites/ProjectFile.h"

namespace qly::transfer {

void useWebsiteProjects()
{
    UploadList::collectLinkedFiles() = [](UploadList &list, const QString &file, const QString &attribute) {
        for (const QString &linked : websites::CollectLinkedFiles(file, attribute))
            list.AddLinkedFile(linked);
    };
    SiteDownload::projectWriter() = [](const QString &projectFile, const QString &section, const QString &key,
                                       const QString &value) {
        websites::WriteProjectValue(section, key, value, projectFile);
    };
}

std::optional<WebsiteServer> ReadWebsiteServer(const QString &projectFile)
{
    if (!core::FileExists(projectFile))
        return std::nullopt;
    const QString details = QStringLiteral("Details");
    WebsiteServer s;
    s.host = websites::ReadProjectValue(projectFile, details, QStringLiteral("Host"));
    s.directory = websites::ReadProjectValue(projectFile, details, QStringLiteral("Directory"));
    s.login = websites::ReadProjectValue(projectFile, details, QStringLiteral("Login As"));
    s.password = websites::ProjectPassword(projectFile);
    return s;
}

bool ConnectToHost(FtpClient &ftp, const QString &projectFile, QString *directory)
{
    core::BeginWait();
    const std::optional<WebsiteServer> server = ReadWebsiteServer(projectFile);
    if (!server) {
        core::EndWait();
        platform::MsgBox(QStringLiteral("The project file could not be found"));
        return false;
    }
    if (directory)
        *directory = server->directory;
    ftp.HostName = server->host;
    ftp.UserName = server->login;
    ftp.password = server->password;
    ftp.LastError = 0;
    ftp.Blocking = false;
    ftp.setAction(FtpClient::Connect);
    waitForConnection(ftp);
    if (ftp.LastError >= 1)
        ftp.LastError = 0;
    core::EndWait();
    return true;
}

} // namespace qly::transfer
