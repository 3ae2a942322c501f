#include "support/PublishRules.h"

#include <algorithm>

namespace qly::test {

namespace {

bool delimiter(QChar c)
{
    return QStringLiteral("!.,?;:()[]{} \r\n\t").contains(c);
}

} // namespace

QString replaceByRule(QString text, const QString &term, const QString &replacement, bool matchCase, bool wholeWord)
{
    const Qt::CaseSensitivity cs = matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    qsizetype p = text.indexOf(term, 0, cs);
    while (p >= 0) {
        bool skip = false;
        if (wholeWord) {
            const qsizetype end = p + term.size();
            skip = (p > 0 && !delimiter(text.at(p - 1))) || (end < text.size() && !delimiter(text.at(end)));
        }
        if (!skip)
            text = text.left(p) + replacement + text.mid(p + term.size());
        // An empty replacement after a skipped hit would find it forever.
        p = text.indexOf(term, p + (skip ? std::max<qsizetype>(replacement.size(), 1) : replacement.size()), cs);
    }
    return text;
}

QString slashesByRule(QString text)
{
    qsizetype p = text.indexOf(u'<');
    while (p >= 0) {
        ++p;
        if (p >= text.size())
            break;
        const qsizetype q = text.indexOf(u'>', p);
        if (q > p) {
            text = text.left(p) + text.mid(p, q - p).replace(u'\\', u'/') + text.mid(q);
            p = text.indexOf(u'<', q);
        } else {
            p = text.indexOf(u'<', p + 1);
        }
    }
    return text;
}

} // namespace qly::test
