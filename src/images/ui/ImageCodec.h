#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace qly::images::ui {

// Loading, converting and saving pictures: Qt's readers and writers, and
// giflib for GIF encoding (a true-colour picture gets its palette from
// Qt's conversion to 8-bit indexed colour).

struct ImageInfo {
    QString type;        // "GIF", "JPEG", "BMP", "PNG" or "Unknown"
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    qint64 bytes = 0;    // size on disk
};

// The first image of a file; a null image when it cannot be read.
QImage LoadImage(const QString &path);
ImageInfo FileInformation(const QString &path);
// Bits a pixel of the picture as stored: the palette's bits for indexed
// colour, 8 for grey, else 24 (32 with alpha).
int BitsPerPixel(const QImage &image);

// The picture as a GIF (palette of at most 256 colours) or a JPEG of the
// given quality (0-100); empty on failure.
QByteArray EncodeGif(const QImage &image, QString *error = nullptr);
QByteArray EncodeJpeg(const QImage &image, int quality, QString *error = nullptr);

// The same, written atomically to `path`.
bool SaveGif(const QImage &image, const QString &path, QString *error = nullptr);
bool SaveJpeg(const QImage &image, const QString &path, int quality, QString *error = nullptr);

} // namespace qly::images::ui
