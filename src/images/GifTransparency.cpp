#include "images/GifTransparency.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "images/GifReader.h"
#include "platform/Prompts.h"

namespace qly::images {

namespace {

bool sameIgnoringCase(char a, char b)
{
    auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c; };
    return lower(a) == lower(b);
}

// The transparency of the first image, or -1; the image's own table goes
// into LocalPalette on the way.
int FindTransparentIndex(GifReader &reader)
{
    while (!reader.failed() && !reader.atEnd() && reader.PeekByte() != 0x3B) {
        if (reader.ahead(0x21, 0xFF) || reader.ahead(0x21, 0xFE)) {
            reader.SkipExtension();
            continue;
        }
        if (!reader.ahead(0x21, 0xF9))
            return -1;
        reader.GetBytes(3);
        const quint8 flags = reader.GetByte();
        reader.GetBytes(2);
        const quint8 index = reader.GetByte();
        reader.GetBytes(1);
        reader.GetBytes(9);
        const quint8 imageFlags = reader.GetByte();
        if (imageFlags & 0x80)
            reader.LocalPalette = reader.GetBytes(3 * (qsizetype(1) << ((imageFlags % 8) + 1)));
        return flags % 2 ? index : -1;
    }
    return -1;
}

} // namespace

QByteArray &PresentPalette()
{
    static QByteArray palette;
    return palette;
}

quint16 FindPaletteIndex(const QByteArray &triple, const QByteArray &palette)
{
    // Runs to the length of the text, past the last whole entry: the
    // entries beyond it are too short to match.
    for (qsizetype i = 0; i <= palette.size(); ++i) {
        const QByteArray entry = palette.mid(i * 3, 3);
        if (entry.size() == 3 && triple.size() == 3 && sameIgnoringCase(entry[0], triple[0])
            && sameIgnoringCase(entry[1], triple[1]) && sameIgnoringCase(entry[2], triple[2]))
            return static_cast<quint16>(std::min<qsizetype>(i, 65534));
        if (i * 3 >= palette.size())
            break;
    }
    return 65535;
}

quint16 FindPaletteIndex(const QByteArray &triple)
{
    return FindPaletteIndex(triple, PresentPalette());
}

GifPalette ReadGifPalette(const QString &file, bool quiet)
{
    GifPalette result;
    QByteArray bytes;
    const core::IoResult read = core::readWholeFile(file, bytes);
    if (!read.ok()) {
        result.error = read.message;
        return result;
    }
    GifReader reader(bytes);
    reader.LocalPalette.clear();
    if (reader.ReadSignature()) {
        reader.GetBytes(4);
        const quint8 flags = reader.GetByte();
        reader.GetBytes(2);
        if (flags & 0x80)
            reader.GlobalPalette = reader.GetBytes(3 * (qsizetype(1) << ((flags % 8) + 1)));
        const int index = FindTransparentIndex(reader);
        result.palette = reader.LocalPalette.isEmpty() ? reader.GlobalPalette : reader.LocalPalette;
        if (index >= 0)
            result.transparent = result.palette.mid(index * 3, 3);
    } else {
        reader.fail(QStringLiteral("it is not a GIF file"));
    }
    result.error = reader.error();
    if (!quiet)
        PresentPalette() = result.palette;
    return result;
}

bool MakeGifTransparent(quint32 colour, const QString &file)
{
    QByteArray triple;
    triple += char(colour & 0xFF);
    triple += char((colour >> 8) & 0xFF);
    triple += char((colour >> 16) & 0xFF);
    const quint16 index = FindPaletteIndex(triple);
    if (index == 65535)
        return false;

    QByteArray bytes;
    QString error;
    const core::IoResult read = core::readWholeFile(file, bytes);
    const QByteArray out = read.ok() ? TransparentGifBytes(bytes, index, &error) : QByteArray();
    if (!read.ok())
        error = read.message;
    if (out.isEmpty()) {
        platform::MsgBox(QStringLiteral("An error has occured reading the file.") + QStringLiteral("\n\n")
                         + core::FileNameOf(file) + QStringLiteral(": ") + error);
        return false;
    }
    return core::writeFileAtomically(file, out).ok();
}

} // namespace qly::images
