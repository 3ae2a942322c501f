#include "BenchPage.h"

#include <QFile>

#include <sys/resource.h>

namespace qly::bench {

bool writeGeneratedPage(const QString &path, int megabytes, const QByteArrayList &rows, const QByteArray &bodyTag)
{
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly) || rows.isEmpty())
        return false;
    out.write("<HTML>\r\n<HEAD><TITLE>Large page</TITLE></HEAD>\r\n" + bodyTag + "\r\n");
    const qint64 target = qint64(megabytes) * 1024 * 1024;
    for (qsizetype i = 0; out.size() < target; ++i)
        out.write(rows.at(i % rows.size()));
    out.write("</BODY>\r\n</HTML>\r\n");
    return out.error() == QFileDevice::NoError;
}

long peakKiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace qly::bench
