#include "transfer/ui/TransferCommands.h"

#include "core/Feedback.h"
#include "core/ui/CommandTable.h"
#include "core/ui/EscapeWatch.h"
#include "core/ui/Shell.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/RemoteDocuments.h"
#include "transfer/WebsiteProjects.h"
#include "transfer/ui/frmAutoDown.h"
#include "transfer/ui/frmOpenRemote.h"
#include "transfer/ui/frmUpload.h"
#include "websites/WebsiteList.h"
#include "websites/Websites.h"

#include <QMainWindow>
#include <algorithm>
#include <memory>

namespace qly::transfer::ui {

namespace {

// Upload Files, Upload Website and Download site via FTP.
void registerWindows(core::ui::Shell &shell)
{
    QMainWindow *window = shell.mainWindow();
    core::ui::CommandTable &t = shell.commands();
    websites::websiteHooks().showWebsiteUpload = [window](int id) { ShowUpload(id, window); };
    t.bind(QStringLiteral("ToolsUploadFiles"), [window] {
        // The selected website; the first one when none is selected.
        ShowUpload(std::max(websites::WebsiteList::instance().CurrentWebsite(), 0), window);
    });
    t.bind(QStringLiteral("mnuUploadProject"), [] {
        const int id = websites::WebsiteList::instance().CurrentWebsite();
        if (id < 0) {
            platform::MsgBox(QStringLiteral("Please select a Website before uploading it."));
            return;
        }
        websites::WebsiteMan_WSUpload(id);
    });
    t.bind(QStringLiteral("ToolsDownload"), [window] { ShowAutoDown(window); });
}

// Open from Server and Save to Server: documents edited on a server
// through the shared session.
void registerRemoteDocuments(core::ui::Shell &shell)
{
    QMainWindow *window = shell.mainWindow();
    core::ui::CommandTable &t = shell.commands();
    t.bind(QStringLiteral("FileOpenRemote"), [window] { ShowOpenRemote(window); });
    t.bind(QStringLiteral("FileSaveRemote"), [] {
        if (documents::Document *doc = documents::Workspace::CurrentDocument())
            doc->SaveRemote();
    });
}

} // namespace

void registerTransferCommands(core::ui::Shell &shell)
{
    useWebsiteProjects();
    installRemoteDocumentHooks();
    registerWindows(shell);
    registerRemoteDocuments(shell);
    FtpClient &ftp = sharedSession();
    QObject::connect(&ftp, &FtpClient::ftp_LastError, &ftp,
                     [&ftp](int code, QString &text) { tell(mainErrorReport(code, text, ftp)); });
    QObject::connect(&ftp, &FtpClient::ftp_Connect, &ftp, [&ftp] {
        if (ftp.Connected())
            core::ShowStatus(QStringLiteral("Connected to ") + ftp.HostName + QStringLiteral(".  ")
                             + QStringLiteral("Current directory is '") + ftp.RemoteDir + u'\'');
    });
    // Escape is watched only while transfers run, so it keeps its meaning elsewhere.
    auto watch = std::make_shared<std::unique_ptr<core::ui::EscapeWatch>>();
    QObject::connect(&ftp, &FtpClient::ftp_Progress, &ftp, [&ftp, watch](qint64 bytes, qint64 total, int percent) {
        core::ShowStatus(QString::number(bytes) + QStringLiteral(" bytes transferred.  (") + QString::number(percent)
                         + QStringLiteral("%)"));
        if (!ftp.busy() || bytes >= total) {
            watch->reset();
            return;
        }
        if (!*watch)
            *watch = std::make_unique<core::ui::EscapeWatch>();
        if ((*watch)->pressed()) {
            watch->reset();
            core::ShowStatus(QStringLiteral("Cancelling action..."));
            ftp.AbortTransfer();
            core::ShowStatus(QStringLiteral("Stopping File Transfer ..."));
        }
    });
}

} // namespace qly::transfer::ui
