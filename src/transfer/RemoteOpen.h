#pragma once

#include <QString>

namespace qly::transfer {

class FtpClient;

// What File > Open from Server asks for.
struct RemoteOpenFields {
    QString host;
    QString login;
    QString password;   // empty: asked for when connecting
    QString path;       // the file on the server
};

// Connects `ftp` to the host (reusing a session already open there) and
// opens the file as a remote document; a failure is told to the user.
bool OpenFromServer(const RemoteOpenFields &fields, FtpClient &ftp);

} // namespace qly::transfer
