#pragma once

#include <QString>

namespace qly::documents {

// Text algorithms of the edit buffer, on a whole text in memory.

// Line and column of a position, both from 1. CR LF, CR and LF each end a line.
void lineAndColumn(const QString &text, int position, int &line, int &column);

// First hit of `needle` in [start, end) (end < 0: the end of the text) with
// the buffer's find options; -1 when there is none.
int findInText(const QString &text, const QString &needle, int start, int end, int options);

// A letter, a digit or "_".
bool isWordChar(QChar c);

// Moves `end` forwards, or `start` backwards, over characters that are in
// `characters` (or, with `negate`, that are not).
void spanSelection(const QString &text, const QString &characters, bool forward, bool negate,
                   int &start, int &end);

// The tag round `position`: from its "<" to one past its ">". A caret just
// before "<" is in that tag; a caret just after ">" is not.
bool enclosingTag(const QString &text, int position, int &start, int &end);

} // namespace qly::documents
