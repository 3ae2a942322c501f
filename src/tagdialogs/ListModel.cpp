#include "tagdialogs/ListModel.h"

#include "core/Globals.h"
#include "markup/TagPrimitives.h"
#include "tagdialogs/TagText.h"

#include <QRegularExpression>

namespace qly::tagdialogs {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

QStringList ListModel::fieldNames() const
{
    return {S("kind"), S("start"), S("type"), S("header"), S("lines")};
}

QString ListModel::kindTag(int kind)
{
    static const char *const tags[] = {"UL", "OL", "DL"};
    return S(tags[qBound(0, kind, 2)]);
}

QString ListModel::title(int kind)
{
    static const char *const titles[] = {"Bulleted List Properties", "Numbered List Properties",
                                         "Definition List Properties"};
    return S(titles[qBound(0, kind, 2)]);
}

QStringList ListModel::typeNames(int kind)
{
    if (kind == 0)
        return {S("Circle"), S("Disk"), S("Square")};
    if (kind == 1)
        return {S("1, 2, 3"), S("A, B, C"), S("a, b, c"), S("I, II, III"), S("i, ii, iii")};
    return {};
}

QStringList ListModel::typeValues(int kind)
{
    if (kind == 0)
        return {S("CIRCLE"), S("DISK"), S("SQUARE")};
    if (kind == 1)
        return {S("1"), S("A"), S("a"), S("I"), S("i")};
    return {};
}

void ListModel::setDefaults()
{
    setValue(S("kind"), QString::number(m_kind));
    // Disk is what browsers draw for a bulleted list without a type.
    setValue(S("type"), m_kind == 0 ? S("1") : S("0"));
}

void ListModel::read(const QString &selection)
{
    QString text = selection;
    text.replace(S("\r\n"), S("\n"));
    text.replace(u'\r', u'\n');
    const TagReading list = ReadTag(text, {S("ul"), S("ol"), S("dl")});
    QStringList lines;
    if (list.name.isEmpty()) {
        // Plain lines become the entries.
        for (const QString &line : text.split(u'\n')) {
            if (!line.trimmed().isEmpty())
                lines << line.trimmed();
        }
        setValue(S("lines"), lines.join(u'\n'));
        return;
    }
    m_readBack = true;
    m_notes << list.problems;
    const int kind = int(QStringList{S("ul"), S("ol"), S("dl")}.indexOf(list.name));
    setValue(S("kind"), QString::number(kind));
    setValue(S("start"), kind == 1 ? list.attributes.value(S("start")) : QString());
    const QString type = list.attributes.value(S("type"));
    setValue(S("type"), kind == 0 ? S("1") : S("0"));
    const QStringList values = typeValues(kind);
    for (qsizetype i = 0; i < values.size(); ++i) {
        // Letters and numerals differ by case for numbered lists only.
        const auto cs = kind == 1 ? Qt::CaseSensitive : Qt::CaseInsensitive;
        if (values.at(i).compare(type, cs) == 0)
            setValue(S("type"), QString::number(i));
    }
    if (!type.isEmpty() && values.indexOf(type) < 0 && kind != 0)
        m_notes << S("The list type \"%1\" is not one of the list.").arg(type);

    QString body = text.mid(list.end);
    const QString closer = S("</") + list.name + u'>';
    const qsizetype close = body.lastIndexOf(closer, -1, Qt::CaseInsensitive);
    if (close >= 0)
        body.truncate(close);
    else
        m_notes << S("The list has no closing %1.").arg(closer.toUpper());
    static const QRegularExpression header(QStringLiteral("<LH>(.*?)</LH>(\\s*<BR>)?"),
                                           QRegularExpression::CaseInsensitiveOption
                                               | QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch h = header.match(body);
    if (h.hasMatch()) {
        setValue(S("header"), h.captured(1).trimmed());
        body.remove(h.capturedStart(), h.capturedLength());
    }
    // Entries begin at <LI>, <DT> or <DD>; their closing tags go.
    static const QRegularExpression entry(QStringLiteral("<(LI|DT|DD)(\\s[^>]*)?>"),
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression closing(QStringLiteral("</(LI|DT|DD)>"),
                                            QRegularExpression::CaseInsensitiveOption);
    body.remove(closing);
    QStringList pieces;
    qsizetype last = -1;
    for (auto it = entry.globalMatch(body); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        if (last >= 0)
            pieces << body.mid(last, m.capturedStart() - last);
        last = m.capturedEnd();
    }
    if (last >= 0)
        pieces << body.mid(last);
    for (const QString &piece : std::as_const(pieces))
        lines << OneLine(piece).trimmed();
    setValue(S("lines"), lines.join(u'\n'));
}

QString ListModel::listText() const
{
    const int kind = qBound(0, value(S("kind")).toInt(), 2);
    const QString tag = kindTag(kind);
    QString text = u'<' + tag;
    if (kind == 1 && !value(S("start")).trimmed().isEmpty())
        text += S(" START=") + PlainValue(value(S("start")).trimmed());
    const QStringList values = typeValues(kind);
    const int type = value(S("type")).toInt();
    if (type >= 0 && type < values.size())
        text += S(" TYPE=") + values.at(type);
    text += u'>';
    if (!value(S("header")).isEmpty())
        text += S("<LH>") + value(S("header")) + S("</LH><BR>") + core::gCRLF;
    QString lines = value(S("lines"));
    lines.replace(S("\r\n"), S("\n"));
    int n = 0;
    for (const QString &line : lines.split(u'\n')) {
        if (line.trimmed().isEmpty())
            continue;
        if (kind == 2)
            text += (n++ % 2 == 0 ? S("<DT>") : S("<DD>")) + line + core::gCRLF;
        else
            text += S("<LI>") + line + core::gCRLF;
    }
    return text + S("</") + tag + u'>';
}

bool ListModel::accept()
{
    // The entries hold the selection's lines, so the list replaces it.
    markup::InsertMarkup(listText(), QString(), true);
    return true;
}

} // namespace qly::tagdialogs
