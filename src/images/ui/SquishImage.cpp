#include "images/ui/SquishImage.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "images/GifTransparency.h"
#include "images/ui/ImageCodec.h"
#include "platform/Prompts.h"

namespace qly::images::ui {

bool SquishImage(const QString &file, const QString &target, int quality, bool toJpeg)
{
    QByteArray original;
    const QImage image = core::readWholeFile(file, original).ok() ? LoadImage(file) : QImage();
    if (image.isNull()) {
        platform::MsgBox(QStringLiteral("An error occurred while loading ") + file
                         + QStringLiteral(".  Please check the file format is GIF or JPG before trying again."));
        return false;
    }
    const QString ext = core::GetFileExt(file).toLower();
    const bool jpeg = toJpeg || ext == QLatin1String("jpg") || ext == QLatin1String("jpeg");
    QByteArray squeezed = jpeg ? EncodeJpeg(image, quality) : EncodeGif(image);
    if (squeezed.isEmpty() || squeezed.size() >= original.size())
        return core::writeFileAtomically(target, original).ok();
    if (!core::writeFileAtomically(target, squeezed).ok())
        return false;
    // A transparent GIF stays transparent.
    const GifPalette before = ReadGifPalette(file, true);
    if (!jpeg && before.transparent.size() == 3) {
        ReadGifPalette(target);
        const quint32 colour = quint8(before.transparent[0]) | (quint32(quint8(before.transparent[1])) << 8)
                               | (quint32(quint8(before.transparent[2])) << 16);
        MakeGifTransparent(colour, target);
    }
    return true;
}

} // namespace qly::images::ui
