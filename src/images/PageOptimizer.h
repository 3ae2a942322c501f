#pragma once

#include "core/FileIo.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

namespace qly::images {

// The page optimizer's rules that work on figures and on a page's text;
// the walk of a site from its index page is not here.

// One entry of the resource list.
struct Resource {
    QString path;
    qint64 bytes = 0;
    QString kind;        // "gif/jpg" for an image
    bool marked = false;
};

// What is done to the images: "giftojpeg", "lowsrc" or "replace".
enum class BustMode { GifToJpeg, LowSrc, Replace };
QString BustWord(BustMode mode);

// The rows of the speed list, in kilobits a second: the modems of old and,
// after them, today's lines (their number first, so Val reads it).
QStringList SpeedRows();
// "12.3 sec.": (bytes / 1024) / (Val(speed) / 10) seconds, so 14.4 stands
// for 1.44 kilobytes a second.
QString DownloadTime(qint64 totalBytes, const QString &speed);
// A number as "##0,000": groups of three, at least four digits.
QString FormatSize(qint64 value);

// Marks the resources above `markKb` kilobytes. False, with the message
// told, when the mark is zero or less or nothing is above it.
bool OverMarkSize(QList<Resource> &resources, const QString &markKb);

// "BB" (replace) or "LS" (low-resolution) and the file's name; a GIF
// converted to JPEG gets ".jpg".
QString GetNewFileName(const QString &file, BustMode mode, bool toJpeg);
// The file's name, a blank, its size in kilobytes and "k".
QString GetImageAlt(const QString &file, qint64 bytes);

// Fills in HEIGHT, WIDTH and ALT of every IMG tag of `page` (the text of
// the file `pagePath`) and, for `mode`, adds the LOWSRC or points SRC to
// the new image. An image that is not there is told and its tag left.
// Images for which `keepSource` is true get their sizes and ALT only.
QString AlterHTML(const QString &page, const QString &pagePath, BustMode mode, bool toJpeg,
                  const std::function<bool(const QString &)> &keepSource = {});

// AlterHTML on the page file: the result goes over the page, whose old
// bytes are first kept in its ".bak" (`overwrite`), or under the same name
// into `saveDir`, which is made when needed. The page keeps its encoding;
// every write replaces its file whole.
core::IoResult SaveNewHTML(const QString &pagePath, BustMode mode, bool toJpeg, bool overwrite, const QString &saveDir);
// The same with another change of the page's text.
core::IoResult SaveNewHTML(const QString &pagePath, const std::function<QString(const QString &)> &alter, bool overwrite,
                           const QString &saveDir);

QString RemoveComments(const QString &page);
QString RemoveAllImages(const QString &page);
// Each client-side map becomes a list of plain links, one a line.
QString RemoveImageMap(const QString &page);
QString RemoveApplets(const QString &page);

// The closing message: what was done, the site's new size, and the files
// that lay outside the page's folder and were left.
QString CompressReport(qint64 totalBytes, const QStringList &notOptimized);

} // namespace qly::images
