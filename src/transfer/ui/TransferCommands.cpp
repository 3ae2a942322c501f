#include "transfer/ui/TransferCommands.h"

#include "core/Feedback.h"
#include "core/ui/EscapeWatch.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/RemoteDocuments.h"

#include <memory>

namespace qly::transfer::ui {

void registerTransferCommands(core::ui::Shell &)
{
    installRemoteDocumentHooks();
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
