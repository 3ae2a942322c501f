#pragma once

#include <QByteArray>
#include <QString>

namespace qly::transfer {

// SSH host keys for "sftp://" sessions, checked against the user's
// known_hosts file the way ssh itself does.

// The file: `custom` when given, otherwise ~/.ssh/known_hosts.
QString knownHostsPath(const QString &custom);

// A key the server offered that the file does not hold yet.
struct OfferedKey {
    QString hostName;      // as known_hosts writes it
    QByteArray type;       // "ssh-ed25519", "ssh-rsa", ...
    QByteArray base64;
    QString fingerprint() const;   // "SHA256:..." as ssh prints it
    QByteArray knownHostsLine() const;
};

// The type name for one of libcurl's CURLKHTYPE values.
QByteArray sshKeyTypeName(int curlKeyType);

// Asks the user whether to trust `key`; true adds it to `path`.
bool askToTrustHostKey(const OfferedKey &key, const QString &path);

} // namespace qly::transfer
