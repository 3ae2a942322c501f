#include "images/ui/ImageCodec.h"

#include "core/FileIo.h"
#include "images/GifTransparency.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>

#include <gif_lib.h>

#include <vector>

namespace qly::images::ui {

namespace {

int appendToBuffer(GifFileType *gif, const GifByteType *data, int length)
{
    static_cast<QByteArray *>(gif->UserData)->append(reinterpret_cast<const char *>(data), length);
    return length;
}

int paletteBits(int colours)
{
    int bits = 1;
    while ((1 << bits) < colours && bits < 8)
        ++bits;
    return bits;
}

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

bool writeOut(const QString &path, const QByteArray &bytes, QString *error)
{
    if (bytes.isEmpty())
        return false;
    const core::IoResult result = core::writeFileAtomically(path, bytes);
    if (!result.ok())
        setError(error, result.message);
    return result.ok();
}

} // namespace

QImage LoadImage(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.read();
}

int BitsPerPixel(const QImage &image)
{
    if (image.isNull())
        return 0;
    if (image.format() == QImage::Format_Indexed8 || image.format() == QImage::Format_Mono
        || image.format() == QImage::Format_MonoLSB)
        return paletteBits(std::max<qsizetype>(image.colorCount(), 2));
    if (image.format() == QImage::Format_Grayscale8)
        return 8;
    return image.hasAlphaChannel() ? 32 : 24;
}

ImageInfo FileInformation(const QString &path)
{
    ImageInfo info;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format().toLower();
    info.type = format == "gif" ? QStringLiteral("GIF")
              : format == "jpeg" || format == "jpg" ? QStringLiteral("JPEG")
              : format == "bmp" ? QStringLiteral("BMP")
              : format == "png" ? QStringLiteral("PNG")
              : QStringLiteral("Unknown");
    const QImage image = reader.read();
    info.width = image.width();
    info.height = image.height();
    info.bitsPerPixel = BitsPerPixel(image);
    // Qt hands GIF pictures over in true colour: the file's palette tells.
    if (info.type == QLatin1String("GIF")) {
        const qsizetype colours = ReadGifPalette(path, true).palette.size() / 3;
        if (colours > 0)
            info.bitsPerPixel = paletteBits(int(colours));
    }
    info.bytes = QFileInfo(path).size();
    return info;
}

QByteArray EncodeGif(const QImage &source, QString *error)
{
    if (source.isNull()) {
        setError(error, QStringLiteral("there is no picture to save"));
        return {};
    }
    const QImage image = source.format() == QImage::Format_Indexed8
                             ? source
                             : source.convertToFormat(QImage::Format_RGB32).convertToFormat(QImage::Format_Indexed8);
    const int bits = paletteBits(std::max<qsizetype>(image.colorCount(), 2));
    std::vector<GifColorType> colours(1u << bits, GifColorType{0, 0, 0});
    for (int i = 0; i < image.colorCount(); ++i) {
        const QRgb c = image.color(i);
        colours[i] = GifColorType{GifByteType(qRed(c)), GifByteType(qGreen(c)), GifByteType(qBlue(c))};
    }
    QByteArray out;
    int status = 0;
    GifFileType *gif = EGifOpen(&out, appendToBuffer, &status);
    if (!gif) {
        setError(error, QString::fromLatin1(GifErrorString(status)));
        return {};
    }
    ColorMapObject *map = GifMakeMapObject(1 << bits, colours.data());
    EGifSetGifVersion(gif, true);
    bool ok = map && EGifPutScreenDesc(gif, image.width(), image.height(), bits, 0, map) == GIF_OK
              && EGifPutImageDesc(gif, 0, 0, image.width(), image.height(), false, nullptr) == GIF_OK;
    std::vector<GifPixelType> line(size_t(image.width()));
    for (int y = 0; ok && y < image.height(); ++y) {
        const uchar *row = image.constScanLine(y);
        std::copy(row, row + image.width(), line.begin());
        ok = EGifPutLine(gif, line.data(), image.width()) == GIF_OK;
    }
    if (!ok)
        setError(error, QString::fromLatin1(GifErrorString(gif->Error)));
    GifFreeMapObject(map);
    if (EGifCloseFile(gif, &status) != GIF_OK && ok) {
        ok = false;
        setError(error, QString::fromLatin1(GifErrorString(status)));
    }
    return ok ? out : QByteArray();
}

QByteArray EncodeJpeg(const QImage &image, int quality, QString *error)
{
    QByteArray out;
    QBuffer buffer(&out);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(std::clamp(quality, 0, 100));
    const QImage flat = image.hasAlphaChannel() ? image.convertToFormat(QImage::Format_RGB32) : image;
    if (image.isNull() || !writer.write(flat)) {
        setError(error, image.isNull() ? QStringLiteral("there is no picture to save") : writer.errorString());
        return {};
    }
    return out;
}

bool SaveGif(const QImage &image, const QString &path, QString *error)
{
    return writeOut(path, EncodeGif(image, error), error);
}

bool SaveJpeg(const QImage &image, const QString &path, int quality, QString *error)
{
    return writeOut(path, EncodeJpeg(image, quality, error), error);
}

} // namespace qly::images::ui
