#include "texttools/SpellWords.h"

namespace qly::texttools {

namespace {

bool isWordChar(QChar c)
{
    return c.isLetterOrNumber() || c.isMark();
}

bool isApostrophe(QChar c)
{
    return c == u'\'' || c == u'\u2019';
}

bool startsWithAt(QStringView text, qsizetype at, QLatin1String what)
{
    return text.mid(at, what.size()).compare(what, Qt::CaseInsensitive) == 0;
}

// Behind the tag that opens at `at`: at its ">", quoted values passed over.
qsizetype skipTag(QStringView text, qsizetype at)
{
    QChar quote;
    for (qsizetype i = at + 1; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == u'"' || c == u'\'') {
            // A quote starts a value only behind "=" (allowing blanks).
            qsizetype j = i - 1;
            while (j > at && text.at(j).isSpace())
                --j;
            if (text.at(j) == u'=')
                quote = c;
        } else if (c == u'>') {
            return i + 1;
        }
    }
    return text.size();
}

// Behind whatever markup opens at `at` ("<"): a comment, a SCRIPT or STYLE
// element with its contents, or one tag.
qsizetype skipMarkup(QStringView text, qsizetype at)
{
    if (startsWithAt(text, at, QLatin1String("<!--"))) {
        const qsizetype end = text.indexOf(u"-->", at + 4);
        return end < 0 ? text.size() : end + 3;
    }
    const qsizetype behind = skipTag(text, at);
    for (const QLatin1String element : {QLatin1String("script"), QLatin1String("style")}) {
        if (startsWithAt(text, at + 1, element) && at + 1 + element.size() < text.size()
            && !isWordChar(text.at(at + 1 + element.size()))) {
            const QString close = QStringLiteral("</") + element;
            const qsizetype end = text.indexOf(close, behind, Qt::CaseInsensitive);
            return end < 0 ? text.size() : skipTag(text, end);
        }
    }
    return behind;
}

// The entity at `at` ("&"): its length, or 0 when this "&" opens none.
qsizetype entityLength(QStringView text, qsizetype at)
{
    qsizetype i = at + 1;
    if (i < text.size() && text.at(i) == u'#')
        ++i;
    const qsizetype nameStart = i;
    while (i < text.size() && i - at < 12 && text.at(i).isLetterOrNumber())
        ++i;
    if (i == nameStart || i >= text.size() || text.at(i) != u';')
        return 0;
    return i + 1 - at;
}

// True when the entity of `length` characters at `at` stands for a letter
// ("&eacute;", "&#233;"): it belongs to the word it touches. Others
// ("&nbsp;", "&amp;", "&mdash;") part words as a blank does.
bool entityIsLetter(QStringView text, qsizetype at, qsizetype length)
{
    const QStringView name = text.mid(at + 1, length - 2);
    if (name.startsWith(u'#')) {
        bool ok = false;
        const bool hex = name.size() > 1 && (name.at(1) == u'x' || name.at(1) == u'X');
        const uint value = name.mid(hex ? 2 : 1).toUInt(&ok, hex ? 16 : 10);
        return ok && QChar::isLetter(char32_t(value));
    }
    static const QLatin1String accents[] = {
        QLatin1String("acute"), QLatin1String("grave"), QLatin1String("circ"),  QLatin1String("uml"),
        QLatin1String("tilde"), QLatin1String("ring"),  QLatin1String("cedil"), QLatin1String("slash"),
        QLatin1String("caron"), QLatin1String("ogon"),  QLatin1String("macr"),  QLatin1String("breve"),
        QLatin1String("dot"),   QLatin1String("strok"), QLatin1String("lig")};
    for (const QLatin1String accent : accents) {
        if (name.size() > accent.size() && name.endsWith(accent))
            return true;
    }
    for (const char *letter : {"szlig", "eth", "thorn", "ETH", "THORN", "fnof"}) {
        if (name == QLatin1String(letter))
            return true;
    }
    return false;
}

} // namespace

SpellWord NextSpellWord(QStringView text, qsizetype from)
{
    qsizetype i = from;
    bool touchedByEntity = false;
    while (i < text.size()) {
        const QChar c = text.at(i);
        if (c == u'<') {
            i = skipMarkup(text, i);
            touchedByEntity = false;
            continue;
        }
        if (c == u'&') {
            const qsizetype length = entityLength(text, i);
            if (length > 0) {
                touchedByEntity = entityIsLetter(text, i, length);
                i += length;
                continue;
            }
        }
        if (!isWordChar(c)) {
            ++i;
            touchedByEntity = false;
            continue;
        }
        const qsizetype start = i;
        bool letter = false;
        while (i < text.size()) {
            const QChar w = text.at(i);
            if (isWordChar(w)) {
                letter = letter || w.isLetter();
                ++i;
            } else if (isApostrophe(w) && i + 1 < text.size() && isWordChar(text.at(i + 1))) {
                ++i;
            } else {
                break;
            }
        }
        const qsizetype behind = i < text.size() && text.at(i) == u'&' ? entityLength(text, i) : 0;
        const bool entityBehind = behind > 0 && entityIsLetter(text, i, behind);
        if (letter && !touchedByEntity && !entityBehind)
            return {start, i - start};
        touchedByEntity = false;
    }
    return {};
}

} // namespace qly::texttools
