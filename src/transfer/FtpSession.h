#pragma once

#include "platform/Prompts.h"

#include <QString>
#include <optional>

namespace qly::transfer {

class FtpClient;

// The main window's session, shared by saving to a server and site
// download; made on first use.
FtpClient &sharedSession();

// Asks for the password of `login` on `host`; empty when cancelled.
QString PromptFtpPassword(const QString &login, const QString &host);

// Opens a session on `host` (reusing the one already open there) and moves
// to `directory` when one is given; true when the session is ready.
bool ConnectToFtp(const QString &host, const QString &login, const QString &password, FtpClient &ftp,
                  const std::optional<QString> &directory = std::nullopt);

// Text mode for pages and text files, binary for the rest.
void SetTransferMode(FtpClient &ftp, const QString &extension);

// True when the server's copy of `local` at `remote` has the same size (not
// asked of pages sent as text, whose line ends may change) and a time no
// older than the local file's: an upload of changed files passes it over.
bool unchangedOnServer(FtpClient &ftp, const QString &local, const QString &remote);

// Runs the event loop until the session is connected or has failed.
void waitForConnection(FtpClient &ftp);

// What a session error shows: a status text, and a message box when `box`.
struct FtpErrorReport {
    QString status;
    bool box = false;
    QString title;
    QString text;
    platform::Icon icon = platform::Icon::None;
};
// The upload window's reading of an error; `text` is the session's own.
FtpErrorReport uploadErrorReport(int code, const QString &text, const FtpClient &ftp);
// The main window's reading of an error of the shared session.
FtpErrorReport mainErrorReport(int code, const QString &text, const FtpClient &ftp);
// Shows it: the box through the prompts, the status through ShowStatus.
void tell(const FtpErrorReport &report);

} // namespace qly::transfer
