#include "transfer/HostKeys.h"

#include "core/FileIo.h"
#include "platform/Prompts.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <curl/curl.h>

namespace qly::transfer {

QString knownHostsPath(const QString &custom)
{
    if (!custom.isEmpty())
        return custom;
    return QDir::home().filePath(QStringLiteral(".ssh/known_hosts"));
}

QString OfferedKey::fingerprint() const
{
    const QByteArray digest = QCryptographicHash::hash(QByteArray::fromBase64(base64), QCryptographicHash::Sha256);
    QByteArray text = digest.toBase64(QByteArray::OmitTrailingEquals);
    return QStringLiteral("SHA256:") + QString::fromLatin1(text);
}

QByteArray OfferedKey::knownHostsLine() const
{
    return hostName.toUtf8() + ' ' + type + ' ' + base64 + '\n';
}

QByteArray sshKeyTypeName(int curlKeyType)
{
    switch (curlKeyType) {
    case CURLKHTYPE_RSA:
        return "ssh-rsa";
    case CURLKHTYPE_DSS:
        return "ssh-dss";
    case CURLKHTYPE_ECDSA:
        return "ecdsa-sha2-nistp256";
    case CURLKHTYPE_ED25519:
        return "ssh-ed25519";
    default:
        return QByteArray();
    }
}

bool askToTrustHostKey(const OfferedKey &key, const QString &path)
{
    const QString text = QStringLiteral("The server %1 is not known yet. It identifies itself with this %2 key:\n\n"
                                        "%3\n\n"
                                        "Connect only if this is the key the server's administrator gave you. "
                                        "Trust it and remember it in %4?")
                             .arg(key.hostName, QString::fromLatin1(key.type), key.fingerprint(), path);
    const platform::Answer answer = platform::MsgBox(text, platform::Buttons::YesNo, platform::Icon::Question,
                                                     QStringLiteral("New Server Key"));
    if (answer != platform::Answer::Yes)
        return false;
    QDir().mkpath(QFileInfo(path).absolutePath());
    // The lines already there stay as they are; the new one goes behind.
    QByteArray bytes;
    if (QFile::exists(path) && !core::readWholeFile(path, bytes).ok())
        return false;
    if (!bytes.isEmpty() && !bytes.endsWith('\n'))
        bytes += '\n';
    return core::writeFileAtomically(path, bytes + key.knownHostsLine()).ok();
}

} // namespace qly::transfer
