#pragma once

#include <QString>

namespace qly::test {

// Publishing's rules written the slow and obvious way, rebuilding the text
// at each hit, to hold the real code against.

// One alias: the hit at p is replaced unless, for a whole word, a character
// other than a delimiter stands before or behind it; the search goes on
// behind the replacement, or past a skipped hit by the replacement's length
// (at least one).
QString replaceByRule(QString text, const QString &term, const QString &replacement, bool matchCase, bool wholeWord);

// "\" to "/" from each "<" to the next ">".
QString slashesByRule(QString text);

} // namespace qly::test
