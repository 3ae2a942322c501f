#include "images/GifReader.h"

#include <cmath>

namespace qly::images {

namespace {

quint8 byteAt(const QByteArray &bytes, qsizetype i)
{
    return static_cast<quint8>(bytes.at(i));
}

QString hexByte(quint8 b)
{
    return QStringLiteral("0x") + QStringLiteral("%1").arg(b, 2, 16, QLatin1Char('0')).toUpper();
}

} // namespace

GifReader::GifReader(QByteArray bytes)
    : m_bytes(std::move(bytes))
{
}

void GifReader::reset(QByteArray bytes)
{
    m_bytes = std::move(bytes);
    FilePos = 1;
    m_error.clear();
}

void GifReader::fail(const QString &what)
{
    if (m_error.isEmpty())
        m_error = what;
}

QByteArray GifReader::GetBytes(qsizetype count)
{
    const qsizetype start = FilePos - 1;
    const qsizetype left = m_bytes.size() - start;
    if (count > left) {
        fail(QStringLiteral("the file ends after %1 bytes, inside a block that needs %2 more")
                 .arg(m_bytes.size()).arg(count - std::max<qsizetype>(left, 0)));
        FilePos = m_bytes.size() + 1;
        return left > 0 ? m_bytes.mid(start) : QByteArray();
    }
    FilePos += count;
    return m_bytes.mid(start, count);
}

quint8 GifReader::GetByte()
{
    const QByteArray one = GetBytes(1);
    return one.isEmpty() ? 0 : byteAt(one, 0);
}

quint8 GifReader::PeekByte(qsizetype n) const
{
    const qsizetype i = FilePos - 1 + n - 1;
    return i >= 0 && i < m_bytes.size() ? byteAt(m_bytes, i) : 0;
}

QByteArray GifReader::ReadSubBlocks()
{
    QByteArray run;
    quint8 length = GetByte();
    while (length != 0 && !failed()) {
        if (FilePos - 1 + length > m_bytes.size()) {
            fail(QStringLiteral("a data sub-block of %1 bytes at byte %2 runs past the end of the file")
                     .arg(length).arg(FilePos - 1));
            FilePos = m_bytes.size() + 1;
            return run;
        }
        run += char(length);
        run += GetBytes(length);
        length = GetByte();
    }
    run += '\0';
    return run;
}

bool GifReader::ReadSignature()
{
    if (m_bytes.size() - (FilePos - 1) < 6) {
        FilePos = m_bytes.size() + 1;
        return false;
    }
    const QByteArray signature = GetBytes(6);
    return signature.size() == 6 && signature.left(3).toUpper() == "GIF";
}

QByteArray GifReader::readColourTable(int sizeBits)
{
    const qsizetype length = 3 * (qsizetype(1) << (sizeBits + 1));
    if (FilePos - 1 + length > m_bytes.size()) {
        fail(QStringLiteral("a colour table of %1 colours is announced at byte %2, but the file ends first")
                 .arg(length / 3).arg(FilePos - 1));
        FilePos = m_bytes.size() + 1;
        return {};
    }
    return GetBytes(length);
}

QByteArray GifReader::ReadLogicalScreen()
{
    QByteArray block;
    const QByteArray size = GetBytes(4);
    if (size.size() == 4) {
        ScreenWidth = byteAt(size, 0) | (byteAt(size, 1) << 8);
        ScreenHeight = byteAt(size, 2) | (byteAt(size, 3) << 8);
        if (ScreenWidth == 0 || ScreenHeight == 0)
            fail(QStringLiteral("its logical screen is %1 x %2 pixels").arg(ScreenWidth).arg(ScreenHeight));
    }
    if (TransparencyMode)
        block += size;
    const QByteArray rest = GetBytes(3);
    block += rest;
    const quint8 flags = (rest.isEmpty() ? quint8(0) : byteAt(rest, 0));
    QByteArray table;
    if (flags & 0x80) {
        table = readColourTable(flags % 8);
        if (FirstFrame)
            block += table;
    }
    if (LocalPalettes) {
        GlobalPalette = table;
        PaletteSizeBits = flags % 8;
        PaletteSorted = (flags % 16) - PaletteSizeBits;
    }
    Screen = block;
    return block;
}

QByteArray GifReader::ReadImageBlock()
{
    if (!atEnd() && PeekByte() != 0x2C) {
        fail(QStringLiteral("no image starts at byte %1 (%2 where 0x2C was expected)").arg(FilePos - 1).arg(hexByte(PeekByte())));
        return {};
    }
    QByteArray block = GetBytes(9);
    if (failed())
        return {};
    const quint8 packed = GetByte();
    if (packed & 0x80) {
        block += char(packed);
        block += readColourTable(packed % 8);
    } else if (!LocalPalettes || GlobalPalette.isEmpty()) {
        // Without a table of the file's own there is none to carry along.
        block += char(packed);
    } else {
        int flags = 0x80 + PaletteSizeBits;
        if (packed & 0x40)
            flags += 0x40;
        if (PaletteSorted > 0)
            flags += 0x20;
        block += char(flags);
        block += GlobalPalette;
    }
    block += GetBytes(1);
    block += ReadSubBlocks();
    return block;
}

QByteArray GifReader::ReadGraphicControl(const Frame &frame)
{
    QByteArray block = GetBytes(3);
    if (block.size() == 3 && byteAt(block, 2) != 4) {
        fail(QStringLiteral("the graphic control block at byte %1 is %2 bytes long, not 4")
                 .arg(FilePos - 4).arg(byteAt(block, 2)));
        return {};
    }
    quint8 flags = GetByte();
    if (TransparencyMode) {
        if (flags % 2 == 0)
            flags += 1;
        block += char(flags);
        block += GetBytes(2);
        GetBytes(1);
        block += char(TransparentIndex & 0xFF);
    } else {
        const quint8 ours = (flags % 4) + 8;
        block += char(frame.keepDisposal ? flags : ours);
        GetBytes(2);
        block += LittleEndian16(DelayHundredths(frame.delay));
        block += GetBytes(1);
    }
    block += GetBytes(1);
    return block;
}

QByteArray GifReader::ReadFrameBlock(const Frame &frame)
{
    QByteArray block;
    if (ahead(0x21, 0xF9)) {
        block += ReadGraphicControl(frame);
    } else if (TransparencyMode) {
        block += QByteArray("\x21\xF9\x04\x01\x00\x00", 6);
        block += char(TransparentIndex & 0xFF);
        block += '\0';
    } else {
        block += QByteArray("\x21\xF9\x04\x00", 4);
        block += LittleEndian16(DelayHundredths(frame.delay));
        block += QByteArray("\x00\x00", 2);
    }
    if (ahead(0x21, 0xFE)) {
        block += GetBytes(2);
        block += ReadSubBlocks();
    }
    if (PeekByte() != 0x21) {
        block += ReadImageBlock();
    } else {
        // A plain text extension.
        block += GetBytes(15);
        block += ReadSubBlocks();
        block += GetBytes(1);
    }
    return block;
}

QByteArray GifReader::SkipExtension()
{
    QByteArray block;
    if (ahead(0x21, 0xFF)) {
        block += GetBytes(3);
        block += GetBytes(8);
        block += GetBytes(3);
        block += ReadSubBlocks();
    } else if (ahead(0x21, 0xFE)) {
        block += GetBytes(2);
        block += ReadSubBlocks();
    }
    return block;
}

bool GifReader::atBlockEnd() const
{
    const quint8 next = PeekByte();
    return !atEnd() && next != 0x21 && next != 0x2C && next != 0x3B;
}

QByteArray GifReader::ReadFrameFile(const Frame &frame)
{
    FilePos = 1;
    if (!ReadSignature()) {
        fail(QStringLiteral("it is not a GIF file"));
        return {};
    }
    ReadLogicalScreen();
    QByteArray result;
    // Application and comment blocks are passed over; of the images the
    // last one stays, so a single-image file gives the block of its image.
    while (!failed() && !atEnd()) {
        if (ahead(0x21, 0xFF) || ahead(0x21, 0xFE))
            SkipExtension();
        else
            result = ReadFrameBlock(frame);
        if (PeekByte() == 0x3B || PeekByte(2) == 0)
            break;
        if (!result.isEmpty() && atBlockEnd())
            break;
    }
    if (failed())
        return {};
    if (atEnd())
        fail(QStringLiteral("the file ends without its trailer"));
    else if (result.isEmpty())
        fail(QStringLiteral("it holds no image"));
    return failed() ? QByteArray() : result;
}

double Val(const QString &text)
{
    QString digits;
    for (QChar c : text) {
        if (c == QLatin1Char(' ') || c == QLatin1Char('\t'))
            continue;
        digits += c;
    }
    qsizetype i = 0;
    QString number;
    if (i < digits.size() && (digits[i] == QLatin1Char('-') || digits[i] == QLatin1Char('+')))
        number += digits[i++];
    bool point = false;
    for (; i < digits.size(); ++i) {
        const QChar c = digits[i];
        if (c.isDigit() && c.unicode() < 128)
            number += c;
        else if (c == QLatin1Char('.') && !point) {
            point = true;
            number += c;
        } else
            break;
    }
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok ? value : 0.0;
}

int DelayHundredths(const QString &milliseconds)
{
    const double value = std::nearbyint(Val(milliseconds) / 10.0);
    return static_cast<int>(std::clamp(value, 0.0, 65535.0));
}

QByteArray LittleEndian16(int value)
{
    const int high = value / 256;
    const int low = value - high * 256;
    QByteArray bytes;
    bytes += char(low);
    bytes += char(high);
    return bytes;
}

} // namespace qly::images
