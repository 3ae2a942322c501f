#include "texttools/TermMatcher.h"

#include "core/TextCodec.h"

#include <cstring>

namespace qly::texttools {

namespace {

inline char lowerAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c;
}

bool isAscii(const QString &text)
{
    for (QChar c : text) {
        if (c.unicode() >= 0x80)
            return false;
    }
    return true;
}

// The only characters outside ASCII whose case folding gives an ASCII
// letter: KELVIN SIGN (k) and LATIN SMALL LETTER LONG S (s), here as the
// UTF-8 bytes a page would hold them in.
bool holdsWiderFolding(const QByteArray &bytes)
{
    return bytes.contains("\xE2\x84\xAA") || bytes.contains("\xC5\xBF");
}

// How common a character is in web pages, most common highest; letters by
// their frequency in English text, then markup and digits. The rarest
// character of a term is the one searched for first.
int commonness(char c)
{
    static const QByteArray order = QByteArrayLiteral("zqjxkvbywgpfmucdlhrsnioate<>/=\"0123456789 ");
    return int(order.indexOf(c));   // anything not listed counts as rarest
}

} // namespace

TermMatcher::TermMatcher(const QList<Term> &terms)
{
    for (const Term &t : terms) {
        if (t.find.isEmpty())
            continue;
        if (!isAscii(t.find)) {
            m_wide << t.find;
            continue;
        }
        AsciiTerm a;
        a.lower = t.find.toLatin1();
        for (char &c : a.lower)
            c = lowerAscii(c);
        a.foldsFromWider = a.lower.contains('k') || a.lower.contains('s');
        for (int i = 1; i < a.lower.size(); ++i) {
            if (commonness(a.lower.at(i)) < commonness(a.lower.at(a.rare)))
                a.rare = i;
        }
        m_ascii << a;
    }
}

qsizetype TermMatcher::find(const QByteArray &bytes, const AsciiTerm &term)
{
    // Jumps from one place of the term's rarest character (either case) to
    // the next with memchr, and compares the whole term around it.
    const char *hay = bytes.constData();
    const qsizetype n = bytes.size();
    const qsizetype m = term.lower.size();
    const qsizetype r = term.rare;
    const char lower = term.lower.at(r);
    const char upper = lower >= 'a' && lower <= 'z' ? char(lower - ('a' - 'A')) : lower;
    // The next place of each case at or after `from`, or n when there is none.
    auto next = [&](char c, qsizetype from) -> qsizetype {
        const void *p = from < n ? std::memchr(hay + from, c, size_t(n - from)) : nullptr;
        return p ? static_cast<const char *>(p) - hay : n;
    };
    qsizetype nextLower = next(lower, r);
    qsizetype nextUpper = upper == lower ? n : next(upper, r);
    for (;;) {
        const qsizetype at = std::min(nextLower, nextUpper);
        if (at >= n)
            return -1;
        const qsizetype start = at - r;
        if (start + m > n)
            return -1;
        qsizetype j = 0;
        while (j < m && lowerAscii(hay[start + j]) == term.lower.at(j))
            ++j;
        if (j == m)
            return start;
        if (at == nextLower)
            nextLower = next(lower, at + 1);
        else
            nextUpper = next(upper, at + 1);
    }
}

bool TermMatcher::matches(const QByteArray &bytes) const
{
    bool decode = !m_wide.isEmpty();
    for (const AsciiTerm &t : m_ascii) {
        if (find(bytes, t) >= 0)
            return true;
        if (t.foldsFromWider && !decode)
            decode = holdsWiderFolding(bytes);
    }
    if (!decode)
        return false;
    const QString text = core::decodeFile(bytes).text;
    for (const AsciiTerm &t : m_ascii) {
        if (t.foldsFromWider && text.contains(QLatin1String(t.lower), Qt::CaseInsensitive))
            return true;
    }
    for (const QString &w : m_wide) {
        if (text.contains(w, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

} // namespace qly::texttools
