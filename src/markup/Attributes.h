#pragma once

#include <QString>

namespace qly::markup {

// Reading values out of a tag's text.

// The value of `attributeName` in a tag's text, quotes removed; "" when it
// is not there.
// - `tagText` is trimmed of blanks in place: the caller's variable changes.
// - The first `attributeName` + "=" anywhere, ignoring case, decides. It is
//   refused only when the character before it is a digit 1 to 9: any other
//   character, a letter included, lets it stand, so "SRC" is found inside
//   "LOWSRC=". Blanks around "=" and attributes without "=" are not found.
// - The value ends before a double quote or a ">" (quoted or not), a NUL,
//   and, for a value not starting with a double quote, a blank, CR or LF.
// `stripQuotes` is accepted for old callers and has no effect.
QString GetAttributeValue(QString &tagText, const QString &attributeName, bool stripQuotes = true);
// The same on a text that need not change.
QString GetAttributeValue(const QString &tagText, const QString &attributeName, bool stripQuotes = true);

// The text after the first `key` up to the next `delimiter` (or the end),
// trimmed, and with its quotes stripped when longer than 2 characters; ""
// when `key` is not there. An empty `delimiter` tries a blank and, when that
// gives nothing, ">".
QString GetDelimitedValue(const QString &text, const QString &key, const QString &delimiter);

} // namespace qly::markup
