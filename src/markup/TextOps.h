#pragma once

#include <QString>
#include <QStringList>

namespace qly::markup {

// String operations on markup held in memory. Positions here count
// characters from 1 (0 meaning "none"), unlike buffer positions, which count
// from 0. Comparisons ignore case unless a function says otherwise. Every
// operation is a single pass over the text.

// Compare modes of ReplaceAll.
inline constexpr int BinaryCompare = 0;  // exact
inline constexpr int TextCompare = 1;    // without regard to case

// Lower-cases tag names, attribute names and unquoted attribute values,
// leaving text between tags and quoted values as they are. "<" starts a tag,
// ">" ends it (even inside quotes), and a double quote inside a tag switches
// lowering off and on. Shows "Converting tags to lowercase..." in the status bar.
QString LowerCaseTags(const QString &text);

// The text without blanks (spaces only) at either end.
QString TrimBlanks(const QString &text);
// Trims blanks, then removes one leading and one trailing double quote.
QString StripQuotes(const QString &text);
// Adds a double quote in front unless the text starts with one and behind
// unless it ends with one; "" becomes two double quotes.
QString AddQuotes(const QString &text);

// The last position at or before `startPosition` where `pattern` stands,
// walking back to position 1; 0 when there is none. A `startPosition` of 0
// means the text's length less the pattern's length, so a pattern standing
// exactly at the very end is not found.
int FindLast(int startPosition, const QString &text, const QString &pattern);

// Replaces every `find` in `text`, left to right, continuing behind each
// hit (hits do not overlap), and returns their number. `compareMode` 0 is
// exact, any other value (1, or above 65534) ignores case. An empty `find`
// changes nothing and returns 0.
long ReplaceAll(QString &text, const QString &find, const QString &replacement, int compareMode = TextCompare);
// The same without regard to case, returning the result; shows the wait
// cursor while working on a text of more than 2000 characters.
QString ReplaceText(const QString &text, const QString &find, const QString &replacement);

// The first span from `startText` through the next `endText` after it, both
// included, into `span`. When either is missing `span` is left untouched and
// the result is false.
bool ExtractSpan(const QString &text, const QString &startText, const QString &endText, QString &span);
// Every such span in order, the next `startText` searched from the end of the
// last `endText`; a `startText` without a following `endText` ends the scan.
// `list` is cleared first. Returns the number of spans.
int CollectSpans(const QString &text, const QString &startText, const QString &endText, QStringList &list);

// Walks back from position `position` - 1: true at a "<", false at a ">" or
// at the start of the text.
bool IsInsideTag(const QString &text, int position);
// True when the text starts with "<" and ends with ">".
bool IsWholeTag(const QString &text);

} // namespace qly::markup
