#include "core/TextCodec.h"

#include <array>
#include <cstring>

namespace qly::core {

namespace {

// Code points of bytes 0x80 to 0x9F; the other bytes map to themselves.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t toUnicode(unsigned char byte)
{
    return (byte >= 0x80 && byte < 0xA0) ? kHigh[byte - 0x80] : char16_t(byte);
}

// Returns the byte for a code point, or -1 when Windows-1252 has none.
int fromUnicode(char32_t cp)
{
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF))
        return int(cp);
    for (int i = 0; i < 32; ++i) {
        if (kHigh[i] == cp)
            return 0x80 + i;
    }
    return -1;
}

void appendReference(QByteArray &out, char32_t cp)
{
    out += "&#";
    out += QByteArray::number(quint32(cp));
    out += ';';
}

} // namespace

bool isValidUtf8(const QByteArray &bytes)
{
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.constData());
    const auto *end = p + bytes.size();
    while (p < end) {
        // Runs of ASCII, eight bytes at a time.
        while (end - p >= 8) {
            quint64 word;
            std::memcpy(&word, p, 8);
            if (word & 0x8080808080808080ULL)
                break;
            p += 8;
        }
        if (p >= end)
            break;
        const unsigned char c = *p;
        if (c < 0x80) {
            ++p;
            continue;
        }
        int extra = 0;
        char32_t min = 0;
        char32_t cp = 0;
        if (c >= 0xC2 && c <= 0xDF) {
            extra = 1; min = 0x80; cp = c & 0x1F;
        } else if (c >= 0xE0 && c <= 0xEF) {
            extra = 2; min = 0x800; cp = c & 0x0F;
        } else if (c >= 0xF0 && c <= 0xF4) {
            extra = 3; min = 0x10000; cp = c & 0x07;
        } else {
            return false;
        }
        if (end - p <= extra)
            return false;
        for (int i = 1; i <= extra; ++i) {
            const unsigned char cc = p[i];
            if ((cc & 0xC0) != 0x80)
                return false;
            cp = (cp << 6) | (cc & 0x3F);
        }
        if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
            return false;
        p += extra + 1;
    }
    return true;
}

TextEncoding detectEncoding(const QByteArray &bytes)
{
    return isValidUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

QString decodeText(const QByteArray &bytes, TextEncoding encoding)
{
    if (encoding == TextEncoding::Utf8)
        return QString::fromUtf8(bytes);
    QString out(bytes.size(), Qt::Uninitialized);
    auto *dst = reinterpret_cast<char16_t *>(out.data());
    for (qsizetype i = 0; i < bytes.size(); ++i)
        dst[i] = toUnicode(static_cast<unsigned char>(bytes[i]));
    return out;
}

QByteArray encodeText(const QString &text, TextEncoding encoding)
{
    if (encoding == TextEncoding::Utf8)
        return text.toUtf8();
    QByteArray out;
    out.reserve(text.size());
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        char32_t cp = text.at(i).unicode();
        if (QChar::isHighSurrogate(cp) && i + 1 < n && text.at(i + 1).isLowSurrogate()) {
            cp = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            ++i;
        }
        const int byte = fromUnicode(cp);
        if (byte >= 0)
            out += char(byte);
        else
            appendReference(out, cp);
    }
    return out;
}

QByteArray windows1252ToUtf8(const QByteArray &bytes)
{
    QByteArray out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (const char ch : bytes) {
        const auto b = static_cast<unsigned char>(ch);
        if (b < 0x80) {
            out += ch;
            continue;
        }
        const char16_t u = toUnicode(b);
        if (u < 0x800) {
            out += char(0xC0 | (u >> 6));
            out += char(0x80 | (u & 0x3F));
        } else {
            out += char(0xE0 | (u >> 12));
            out += char(0x80 | ((u >> 6) & 0x3F));
            out += char(0x80 | (u & 0x3F));
        }
    }
    return out;
}

QByteArray utf8ToWindows1252(const QByteArray &utf8)
{
    QByteArray out;
    out.reserve(utf8.size());
    const auto *p = reinterpret_cast<const unsigned char *>(utf8.constData());
    const auto *end = p + utf8.size();
    while (p < end) {
        const unsigned char c = *p;
        if (c < 0x80) {
            out += char(c);
            ++p;
            continue;
        }
        int extra = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
        char32_t cp = extra == 3 ? (c & 0x07) : extra == 2 ? (c & 0x0F) : (c & 0x1F);
        if (extra == 0 || end - p <= extra) {
            // Not UTF-8 after all: keep the byte.
            out += char(c);
            ++p;
            continue;
        }
        for (int i = 1; i <= extra; ++i)
            cp = (cp << 6) | (p[i] & 0x3F);
        p += extra + 1;
        const int byte = fromUnicode(cp);
        if (byte >= 0)
            out += char(byte);
        else
            appendReference(out, cp);
    }
    return out;
}

char32_t decodeUtf8(const unsigned char *at, int length)
{
    if (length == 1)
        return at[0];
    char32_t c = at[0] & (0x7F >> length);
    for (int i = 1; i < length; ++i)
        c = (c << 6) | (at[i] & 0x3F);
    return c;
}

DecodedFile decodeFile(const QByteArray &bytes)
{
    DecodedFile file;
    file.encoding = detectEncoding(bytes);
    file.text = decodeText(bytes, file.encoding);
    return file;
}

} // namespace qly::core
