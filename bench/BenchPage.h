#pragma once

#include <QByteArrayList>
#include <QString>

namespace qly::bench {

// Writes a page of `megabytes` MB: a head, the rows over and over in turn,
// and the closing tags. False when the file cannot be written.
bool writeGeneratedPage(const QString &path, int megabytes, const QByteArrayList &rows,
                        const QByteArray &bodyTag = "<BODY>");

// The process's peak resident memory in KiB.
long peakKiB();

} // namespace qly::bench
