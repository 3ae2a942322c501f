#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace qly::tagdialogs {

// Pieces of text the tag dialogs share.

// AddQuotes for a value that is shown to readers (alternate text, names):
// the outer quotes are added as AddQuotes does, and a double quote inside
// becomes &quot; so that the tag stays whole.
QString QuoteValue(const QString &text);

// An address as it may stand between quotes in a tag: blanks, control
// characters, double quotes, "<", ">" and characters beyond ASCII are
// %-escaped (UTF-8); "%" and everything else stay as typed.
QString EscapeAddress(const QString &address);
// True when EscapeAddress changes the address.
bool AddressNeedsEscapes(const QString &address);

// A file or address going into markup: RelativeLink, then EscapeAddress.
QString LinkValue(const QString &path);

// "#" and six hexadecimal digits, zero-padded, upper case, for a colour
// given as "RRGGBB" (with or without "#"), a colour name of HTML's sixteen,
// or red + 256 * green + 65536 * blue as decimal text ("&H..." too). Empty
// when it is none of these.
QString ColorHex(const QString &colour);
// The sixteen colour names of HTML with their values "RRGGBB".
const QList<QPair<QString, QString>> &NamedColors();

// A value fit to stand in a tag without quotes ("100", "50%", "LEFT"); any
// other value is given quotes.
QString PlainValue(const QString &text);

// "0.00 K" above 1023 bytes, otherwise "n bytes".
QString FileSizeText(qint64 bytes);

// The attributes of one tag, read leniently: names lower-cased, values
// without their quotes. A tag cut short, an unclosed quote or a value
// without a name are passed over and told in `problems`.
struct TagReading {
    QString name;                      // lower case; empty when there is no tag
    QMap<QString, QString> attributes;
    QStringList flags;                 // attributes without a value, lower case
    QStringList problems;
    int end = 0;                       // index behind the tag's ">" (or the text's end)
};
// Reads the first tag of `text` whose name is one of `names` (lower case);
// with `names` empty, the first tag of all.
TagReading ReadTag(const QString &text, const QStringList &names = {}, int from = 0);

// The text with its line ends made blanks.
QString OneLine(const QString &text);

} // namespace qly::tagdialogs
