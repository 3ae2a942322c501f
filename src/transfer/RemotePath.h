#pragma once

#include <QByteArray>
#include <QString>

namespace qly::transfer {

// A host as the user types it: "ftp.example.com", "host:2121",
// "ftp://host", "ftps://host" (FTP with TLS required), "sftp://host:22".
struct HostAddress {
    QString scheme;       // "ftp" or "sftp"
    QString host;         // without port
    int port = 0;         // 0: the scheme's own
    bool tls = false;     // ftps: AUTH TLS before the login, then encrypted data
    bool sftp() const { return scheme == QLatin1String("sftp"); }
    // "ftp://host:port", for building request addresses.
    QByteArray baseUrl() const;
    // The form ~/.ssh/known_hosts uses: "host" or "[host]:port".
    QString knownHostsName() const;
};
HostAddress parseHost(const QString &typed);

// Remote paths use "/"; "\" of old project files counts as "/" too.
// Joins `dir` and `name`, one "/" between, "//" collapsed.
QString joinRemote(const QString &dir, const QString &name);
// `path` made absolute against `current`, "." and ".." resolved; with "/"
// in front and none behind (the root is "/").
QString absoluteRemote(const QString &current, const QString &path);
// The directory part of an absolute path ("/a/b.htm" gives "/a", "/b" gives "/").
QString remoteParent(const QString &path);
QString remoteFileName(const QString &path);

// The request address of an absolute remote path: every segment in UTF-8,
// percent-encoded; FTP paths are marked absolute (curl's "//" form).
QByteArray requestUrl(const HostAddress &host, const QString &absolutePath, bool directory = false);

} // namespace qly::transfer
