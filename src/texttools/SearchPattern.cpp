#include "texttools/SearchPattern.h"

#include "documents/TextSearch.h"
#include "markup/TextOps.h"

namespace qly::texttools {

SearchPattern::SearchPattern(const QString &text, bool matchCase, bool wholeWord, bool regex)
    : m_text(text), m_cs(matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive), m_wholeWord(wholeWord),
      m_regex(regex)
{
    if (!m_regex)
        return;
    QRegularExpression::PatternOptions options = QRegularExpression::MultilineOption;
    if (!matchCase)
        options |= QRegularExpression::CaseInsensitiveOption;
    m_re = QRegularExpression(m_wholeWord ? QStringLiteral("\\b(?:%1)\\b").arg(text) : text, options);
}

bool SearchPattern::wordBounded(const QString &text, int position, int length) const
{
    const int after = position + length;
    const bool wordBefore = position > 0 && documents::isWordChar(text.at(position - 1));
    const bool wordAfter = after < text.size() && documents::isWordChar(text.at(after));
    return !wordBefore && !wordAfter;
}

Hit SearchPattern::next(const QString &text, int from, int end) const
{
    const int n = int(text.size());
    if (end < 0 || end > n)
        end = n;
    from = std::max(from, 0);
    if (m_text.isEmpty() || from > end || !isValid())
        return {};
    if (m_regex) {
        // Searching a text that stops at `end` keeps anchors and look-aheads
        // from seeing past the range; the whole text is not copied.
        const QString range = end == n ? text : text.left(end);
        for (int at = from; at <= end;) {
            const QRegularExpressionMatch m = m_re.match(range, at);
            if (!m.hasMatch())
                return {};
            // An empty match finds nothing a user could see or replace.
            if (m.capturedLength() > 0)
                return {int(m.capturedStart()), int(m.capturedLength())};
            at = int(m.capturedStart()) + 1;
        }
        return {};
    }
    for (int at = from; at + m_text.size() <= end;) {
        const qsizetype hit = text.indexOf(m_text, at, m_cs);
        if (hit < 0 || hit + m_text.size() > end)
            return {};
        if (!m_wholeWord || wordBounded(text, int(hit), int(m_text.size())))
            return {int(hit), int(m_text.size())};
        at = int(hit) + 1;
    }
    return {};
}

Hit SearchPattern::previous(const QString &text, int from, int before) const
{
    from = std::max(from, 0);
    before = std::min(before, int(text.size()));
    if (m_text.isEmpty() || before <= from || !isValid())
        return {};
    if (m_regex) {
        // Walk forwards and keep the last hit that starts in range.
        Hit last;
        for (Hit h = next(text, from, -1); h.found() && h.position < before; h = next(text, h.position + 1, -1))
            last = h;
        return last;
    }
    for (int at = before - 1; at >= from;) {
        const qsizetype hit = text.lastIndexOf(m_text, at, m_cs);
        if (hit < from)
            return {};
        if (!m_wholeWord || wordBounded(text, int(hit), int(m_text.size())))
            return {int(hit), int(m_text.size())};
        at = int(hit) - 1;
    }
    return {};
}

QString SearchPattern::replacementFor(const QString &text, const Hit &hit, const QString &replacement) const
{
    if (!m_regex || !replacement.contains(u'\\'))
        return replacement;
    const QRegularExpressionMatch m =
        m_re.match(text, hit.position, QRegularExpression::NormalMatch,
                       QRegularExpression::AnchorAtOffsetMatchOption);
    QString out;
    out.reserve(replacement.size());
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        const QChar c = replacement.at(i);
        if (c == u'\\' && i + 1 < replacement.size()) {
            const QChar d = replacement.at(++i);
            if (d.isDigit())
                out += m.captured(d.digitValue());
            else if (d == u'n')
                out += u'\n';
            else if (d == u't')
                out += u'\t';
            else
                out += d;
        } else {
            out += c;
        }
    }
    return out;
}

QString ExpandSearchText(const QString &text, const QString &documentText)
{
    static const QString eolWord = QStringLiteral("[End Of Line Character]");
    static const QString tabWord = QStringLiteral("[Tab Character]");
    QString out = text;
    if (out.contains(eolWord, Qt::CaseInsensitive)) {
        QString eol = QStringLiteral("\r\n");
        if (documentText.contains(QLatin1String("\r\n")))
            eol = QStringLiteral("\r\n");
        else if (documentText.contains(u'\n'))
            eol = QStringLiteral("\n");
        else if (documentText.contains(u'\r'))
            eol = QStringLiteral("\r");
        markup::ReplaceAll(out, eolWord, eol);
    }
    markup::ReplaceAll(out, tabWord, QStringLiteral("\t"));
    return out;
}

} // namespace qly::texttools
