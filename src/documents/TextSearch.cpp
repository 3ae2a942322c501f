#include "documents/TextSearch.h"

#include "platform/HTMLEdit.h"

namespace qly::documents {

void lineAndColumn(const QString &text, int position, int &line, int &column)
{
    position = std::clamp(position, 0, int(text.size()));
    line = 1;
    int lineStart = 0;
    const QChar *d = text.constData();
    for (int i = 0; i < position; ++i) {
        if (d[i] == u'\r') {
            if (i + 1 < position && d[i + 1] == u'\n')
                ++i;
            else if (i + 1 == position && i + 1 < text.size() && d[i + 1] == u'\n')
                break;   // between CR and LF: still on the line
            ++line;
            lineStart = i + 1;
        } else if (d[i] == u'\n') {
            ++line;
            lineStart = i + 1;
        }
    }
    column = position - lineStart + 1;
}

bool isWordChar(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

int findInText(const QString &text, const QString &needle, int start, int end, int options)
{
    const int n = int(text.size());
    if (end < 0 || end > n)
        end = n;
    start = std::max(start, 0);
    if (needle.isEmpty() || start >= end)
        return -1;
    const Qt::CaseSensitivity cs = (options & platform::FindMatchCase) ? Qt::CaseSensitive : Qt::CaseInsensitive;
    int from = start;
    while (from <= end - needle.size()) {
        const qsizetype hit = text.indexOf(needle, from, cs);
        if (hit < 0 || hit + needle.size() > end)
            return -1;
        if (!(options & platform::FindWholeWord))
            return int(hit);
        const qsizetype after = hit + needle.size();
        const bool wordBefore = hit > 0 && isWordChar(text.at(hit - 1));
        const bool wordAfter = after < n && isWordChar(text.at(after));
        if (!wordBefore && !wordAfter)
            return int(hit);
        from = int(hit) + 1;
    }
    return -1;
}

void spanSelection(const QString &text, const QString &characters, bool forward, bool negate,
                   int &start, int &end)
{
    auto spans = [&](QChar c) { return characters.contains(c) != negate; };
    if (forward) {
        while (end < text.size() && spans(text.at(end)))
            ++end;
    } else {
        while (start > 0 && spans(text.at(start - 1)))
            --start;
    }
}

bool enclosingTag(const QString &text, int position, int &start, int &end)
{
    const int n = int(text.size());
    if (position < 0 || position > n)
        return false;
    int open = -1;
    if (position < n && text.at(position) == u'<') {
        open = position;
    } else {
        for (int i = position - 1; i >= 0; --i) {
            if (text.at(i) == u'>')
                return false;
            if (text.at(i) == u'<') {
                open = i;
                break;
            }
        }
    }
    if (open < 0)
        return false;
    for (int i = std::max(open + 1, position); i < n; ++i) {
        if (text.at(i) == u'<')
            return false;
        if (text.at(i) == u'>') {
            start = open;
            end = i + 1;
            return true;
        }
    }
    return false;
}

} // namespace qly::documents
