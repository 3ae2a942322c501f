#include "markup/TextOps.h"

#include "core/Feedback.h"

#include <QStringMatcher>

namespace qly::markup {

namespace {

QChar lowered(QChar c)
{
    const char16_t u = c.unicode();
    if (u < 0x80)
        return (u >= u'A' && u <= u'Z') ? QChar(char16_t(u + 32)) : c;
    return c.toLower();
}

} // namespace

QString TrimBlanks(const QString &text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text.at(first) == u' ')
        ++first;
    while (last > first && text.at(last - 1) == u' ')
        --last;
    return text.mid(first, last - first);
}

QString LowerCaseTags(const QString &text)
{
    core::ShowStatus(QStringLiteral("Converting tags to lowercase..."));
    QString out = text;
    QChar *dst = nullptr;  // detached lazily, on the first changed character
    const QChar *src = text.constData();
    bool lowering = false;
    bool inTag = false;
    for (qsizetype i = 0, n = text.size(); i < n; ++i) {
        const QChar c = src[i];
        if (c == u'<') {
            lowering = inTag = true;
        } else if (c == u'>') {
            lowering = inTag = false;
        } else if (c == u'"' && inTag) {
            lowering = !lowering;
        } else if (lowering) {
            const QChar l = lowered(c);
            if (l != c) {
                if (!dst)
                    dst = out.data();
                dst[i] = l;
            }
        }
    }
    return out;
}

QString StripQuotes(const QString &text)
{
    QString s = TrimBlanks(text);
    if (s.startsWith(u'"'))
        s.remove(0, 1);
    if (s.endsWith(u'"'))
        s.chop(1);
    return s;
}

QString AddQuotes(const QString &text)
{
    QString s = text;
    if (!s.startsWith(u'"'))
        s.prepend(u'"');
    if (text.isEmpty() || !text.endsWith(u'"'))
        s.append(u'"');
    return s;
}

int FindLast(int startPosition, const QString &text, const QString &pattern)
{
    const qsizetype n = text.size();
    const qsizetype m = pattern.size();
    qsizetype pos = startPosition == 0 ? n - m : startPosition;
    pos = std::min(pos, n - m + 1);
    for (; pos >= 1; --pos) {
        if (QStringView(text).sliced(pos - 1, m).compare(pattern, Qt::CaseInsensitive) == 0)
            return int(pos);
    }
    return 0;
}

long ReplaceAll(QString &text, const QString &find, const QString &replacement, int compareMode)
{
    if (find.isEmpty())
        return 0;
    const QStringMatcher matcher(find, compareMode == BinaryCompare ? Qt::CaseSensitive : Qt::CaseInsensitive);
    qsizetype hit = matcher.indexIn(text, 0);
    if (hit < 0)
        return 0;
    QString out;
    out.reserve(text.size() + std::max<qsizetype>(0, replacement.size() - find.size()) * 16);
    const QStringView view(text);
    qsizetype from = 0;
    long count = 0;
    while (hit >= 0) {
        out.append(view.sliced(from, hit - from));
        out.append(replacement);
        from = hit + find.size();
        ++count;
        hit = matcher.indexIn(text, from);
    }
    out.append(view.sliced(from));
    text = std::move(out);
    return count;
}

QString ReplaceText(const QString &text, const QString &find, const QString &replacement)
{
    const bool long_ = text.size() > 2000;
    if (long_)
        core::BeginWait();
    QString out = text;
    ReplaceAll(out, find, replacement, TextCompare);
    if (long_)
        core::EndWait();
    return out;
}

bool ExtractSpan(const QString &text, const QString &startText, const QString &endText, QString &span)
{
    const qsizetype p = text.indexOf(startText, 0, Qt::CaseInsensitive);
    if (p < 0)
        return false;
    const qsizetype q = text.indexOf(endText, p + startText.size(), Qt::CaseInsensitive);
    if (q < 0)
        return false;
    span = text.mid(p, q + endText.size() - p);
    return true;
}

int CollectSpans(const QString &text, const QString &startText, const QString &endText, QStringList &list)
{
    list.clear();
    if (startText.isEmpty() && endText.isEmpty())
        return 0;
    const QStringMatcher starts(startText, Qt::CaseInsensitive);
    const QStringMatcher ends(endText, Qt::CaseInsensitive);
    qsizetype from = 0;
    for (;;) {
        const qsizetype p = starts.indexIn(text, from);
        if (p < 0)
            break;
        const qsizetype q = ends.indexIn(text, p + startText.size());
        if (q < 0)
            break;
        from = q + endText.size();
        list << text.mid(p, from - p);
    }
    return int(list.size());
}

bool IsInsideTag(const QString &text, int position)
{
    for (qsizetype i = std::min<qsizetype>(position - 1, text.size()); i >= 1; --i) {
        const QChar c = text.at(i - 1);
        if (c == u'>')
            return false;
        if (c == u'<')
            return true;
    }
    return false;
}

bool IsWholeTag(const QString &text)
{
    return text.startsWith(u'<') && text.endsWith(u'>');
}

} // namespace qly::markup
