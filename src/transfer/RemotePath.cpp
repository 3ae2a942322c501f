#include "transfer/RemotePath.h"

#include <QStringList>
#include <QUrl>

namespace qly::transfer {

QByteArray HostAddress::baseUrl() const
{
    QString url = scheme + QStringLiteral("://") + (host.contains(u':') ? u'[' + host + u']' : host);
    if (port > 0)
        url += u':' + QString::number(port);
    return url.toUtf8();
}

QString HostAddress::knownHostsName() const
{
    if (port <= 0 || port == 22)
        return host;
    return u'[' + host + QStringLiteral("]:") + QString::number(port);
}

HostAddress parseHost(const QString &typed)
{
    HostAddress a;
    QString rest = typed.trimmed();
    a.scheme = QStringLiteral("ftp");
    const qsizetype sep = rest.indexOf(QLatin1String("://"));
    if (sep > 0) {
        const QString s = rest.left(sep).toLower();
        rest = rest.mid(sep + 3);
        if (s == QLatin1String("sftp"))
            a.scheme = s;
        a.tls = s == QLatin1String("ftps");
    }
    // A path typed behind the host is not part of it.
    const qsizetype slash = rest.indexOf(u'/');
    if (slash >= 0)
        rest.truncate(slash);
    const qsizetype at = rest.lastIndexOf(u'@');
    if (at >= 0)
        rest = rest.mid(at + 1);
    if (rest.startsWith(u'[')) {
        const qsizetype close = rest.indexOf(u']');
        a.host = rest.mid(1, close - 1);
        if (rest.mid(close + 1).startsWith(u':'))
            a.port = rest.mid(close + 2).toInt();
    } else if (rest.count(u':') == 1) {
        a.host = rest.section(u':', 0, 0);
        a.port = rest.section(u':', 1).toInt();
    } else {
        a.host = rest;
    }
    return a;
}

QString joinRemote(const QString &dir, const QString &name)
{
    QString d = dir;
    d.replace(u'\\', u'/');
    QString n = name;
    n.replace(u'\\', u'/');
    QString joined = d.isEmpty() ? n : n.isEmpty() ? d : d + u'/' + n;
    while (joined.contains(QLatin1String("//")))
        joined.replace(QLatin1String("//"), QLatin1String("/"));
    return joined;
}

QString absoluteRemote(const QString &current, const QString &path)
{
    QString p = path;
    p.replace(u'\\', u'/');
    const QString whole = p.startsWith(u'/') ? p : current + u'/' + p;
    QStringList parts;
    for (const QString &seg : whole.split(u'/', Qt::SkipEmptyParts)) {
        if (seg == QLatin1String("."))
            continue;
        if (seg == QLatin1String("..")) {
            if (!parts.isEmpty())
                parts.removeLast();
            continue;
        }
        parts << seg;
    }
    return u'/' + parts.join(u'/');
}

QString remoteParent(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash <= 0 ? QStringLiteral("/") : path.left(slash);
}

QString remoteFileName(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QByteArray requestUrl(const HostAddress &host, const QString &absolutePath, bool directory)
{
    QByteArray url = host.baseUrl();
    // curl reads "ftp://host//a/b" as the absolute path "/a/b"; an SFTP
    // path is absolute as it stands.
    if (!host.sftp())
        url += '/';
    const QStringList parts = absolutePath.split(u'/', Qt::SkipEmptyParts);
    for (const QString &seg : parts)
        url += '/' + QUrl::toPercentEncoding(seg);
    if (directory || parts.isEmpty())
        url += '/';
    return url;
}

} // namespace qly::transfer
