#pragma once

#include <QByteArray>
#include <QString>

namespace qly::core {

// The two encodings a file can be shown in. Windows-1252 here maps all 256
// byte values (the five unassigned ones to U+0081, U+008D, U+008F, U+0090,
// U+009D), so decoding and encoding back give the same bytes.
enum class TextEncoding { Utf8, Windows1252 };

bool isValidUtf8(const QByteArray &bytes);
TextEncoding detectEncoding(const QByteArray &bytes);

QString decodeText(const QByteArray &bytes, TextEncoding encoding);
// Characters that Windows-1252 cannot hold are written as "&#N;", so no text is lost.
QByteArray encodeText(const QString &text, TextEncoding encoding);

// Straight byte conversions, without a QString in between.
QByteArray windows1252ToUtf8(const QByteArray &bytes);
QByteArray utf8ToWindows1252(const QByteArray &utf8);

// The byte length of the UTF-8 character that starts with `lead`.
inline int utf8SequenceLength(unsigned char lead) { return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4; }
// The character of valid UTF-8 at `at`, `length` bytes long.
char32_t decodeUtf8(const unsigned char *at, int length);

// Reads a file as text in its detected encoding.
struct DecodedFile {
    QString text;
    TextEncoding encoding = TextEncoding::Utf8;
};
DecodedFile decodeFile(const QByteArray &bytes);

} // namespace qly::core
