#include "markup/Attributes.h"

#include "markup/TextOps.h"

namespace qly::markup {

namespace {

// A character before the name refuses the match only when it reads as a
// number above 0: the digits 1 to 9. Anything else reads as 0.
bool refusesMatch(QChar before)
{
    return before >= u'1' && before <= u'9';
}

QString delimitedValue(const QString &text, const QString &key, const QString &delimiter)
{
    const qsizetype p = text.indexOf(key, 0, Qt::CaseInsensitive);
    if (p < 0)
        return {};
    const qsizetype from = p + key.size();
    qsizetype to = text.indexOf(delimiter, from, Qt::CaseInsensitive);
    if (to < 0)
        to = text.size();
    const QString value = TrimBlanks(text.mid(from, to - from));
    return value.size() > 2 ? StripQuotes(value) : value;
}

} // namespace

QString GetAttributeValue(QString &tagText, const QString &attributeName, bool)
{
    tagText = TrimBlanks(tagText);
    const QString &t = tagText;
    const qsizetype p = t.indexOf(attributeName + u'=', 0, Qt::CaseInsensitive);
    if (p < 0)
        return {};
    if (p > 0 && refusesMatch(t.at(p - 1)))
        return {};
    const qsizetype start = p + attributeName.size() + 1;
    if (start >= t.size())
        return {};
    const bool quoted = t.at(start) == u'"';
    qsizetype i = start + 1;
    for (; i < t.size(); ++i) {
        const QChar c = t.at(i);
        if (c == u'"' || c == u'>' || c.unicode() == 0)
            break;
        if (!quoted && (c == u' ' || c == u'\r' || c == u'\n'))
            break;
    }
    return StripQuotes(t.mid(start, i - start));
}

QString GetAttributeValue(const QString &tagText, const QString &attributeName, bool stripQuotes)
{
    QString copy = tagText;
    return GetAttributeValue(copy, attributeName, stripQuotes);
}

QString GetDelimitedValue(const QString &text, const QString &key, const QString &delimiter)
{
    if (!delimiter.isEmpty())
        return delimitedValue(text, key, delimiter);
    const QString value = delimitedValue(text, key, QStringLiteral(" "));
    return value.isEmpty() ? delimitedValue(text, key, QStringLiteral(">")) : value;
}

} // namespace qly::markup
