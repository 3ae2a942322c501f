#pragma once

#include <QString>
#include <optional>

namespace qly::transfer {

class FtpClient;

// Transfers over website projects. The upload list walks a page's links
// with the websites' link scanner, and a site download writes its new
// project through the project file writer (each write atomic). The editor
// and the command line call this once before their first transfer.
void useWebsiteProjects();

// Where a website is sent, from its project's [Details]: "Host",
// "Directory", "Login As" and the stored password (scrambled in the file,
// or in the desktop's secret store when the project says so).
struct WebsiteServer {
    QString host;
    QString directory;
    QString login;
    QString password;
};
// Nothing when the project file does not exist.
std::optional<WebsiteServer> ReadWebsiteServer(const QString &projectFile);

// Opens `ftp` on the server of the website project, with the stored
// password as it is (an empty one is not asked for: the server's refusal
// comes through the session's error event). Without the project file it
// says "The project file could not be found" and returns false; otherwise
// true, connected or not. `directory` receives the website's remote
// directory.
bool ConnectToHost(FtpClient &ftp, const QString &projectFile, QString *directory = nullptr);

} // namespace qly::transfer
