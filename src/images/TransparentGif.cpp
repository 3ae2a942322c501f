#include "images/TransparentGif.h"

#include "images/GifReader.h"

namespace qly::images {

QByteArray TransparentGifBytes(const QByteArray &bytes, quint16 index, QString *error)
{
    GifReader reader(bytes);
    reader.TransparencyMode = true;
    reader.TransparentIndex = index;
    reader.FirstFrame = true;
    reader.LocalPalettes = false;
    QByteArray body;
    if (!reader.ReadSignature())
        reader.fail(QStringLiteral("it is not a GIF file"));
    else
        body += reader.ReadLogicalScreen();
    // The blocks up to and including the first image, that image with the
    // transparency, then the rest as it is up to the trailer.
    const Frame none;
    bool frameDone = false;
    while (!reader.failed() && !frameDone && !reader.atEnd() && reader.PeekByte() != 0x3B
           && reader.PeekByte() != 0) {
        if (reader.ahead(0x21, 0xFF) || reader.ahead(0x21, 0xFE)) {
            body += reader.SkipExtension();
        } else {
            body += reader.ReadFrameBlock(none);
            frameDone = true;
        }
    }
    if (!reader.failed()) {
        const qsizetype from = reader.FilePos - 1;
        const qsizetype trailer = bytes.indexOf('\x3B', from);
        if (trailer < 0)
            reader.fail(QStringLiteral("the file ends without its trailer"));
        else
            body += bytes.mid(from, trailer - from + 1);
    }
    if (reader.failed()) {
        if (error)
            *error = reader.error();
        return {};
    }
    return QByteArray("GIF89a") + body;
}

} // namespace qly::images
