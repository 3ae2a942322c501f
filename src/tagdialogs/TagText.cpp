#include "tagdialogs/TagText.h"

#include "markup/Links.h"
#include "markup/TextOps.h"

#include <QRegularExpression>
#include <algorithm>

namespace qly::tagdialogs {

QString QuoteValue(const QString &text)
{
    QString inner = text;
    const bool opens = inner.startsWith(u'"');
    const bool closes = inner.size() > 1 && inner.endsWith(u'"');
    if (opens)
        inner.remove(0, 1);
    if (closes)
        inner.chop(1);
    inner.replace(u'"', QStringLiteral("&quot;"));
    return u'"' + inner + u'"';
}

namespace {

bool needsEscape(QChar c)
{
    const ushort u = c.unicode();
    return u <= 0x20 || u >= 0x7f || c == u'"' || c == u'<' || c == u'>';
}

} // namespace

QString EscapeAddress(const QString &address)
{
    if (!AddressNeedsEscapes(address))
        return address;
    QString out;
    out.reserve(address.size() + 16);
    for (qsizetype i = 0; i < address.size(); ++i) {
        const QChar c = address.at(i);
        if (!needsEscape(c)) {
            out += c;
            continue;
        }
        // A surrogate pair is one character.
        qsizetype n = 1;
        if (c.isHighSurrogate() && i + 1 < address.size() && address.at(i + 1).isLowSurrogate())
            n = 2;
        const QByteArray bytes = address.mid(i, n).toUtf8();
        for (const char b : bytes)
            out += u'%' + QString::number(uchar(b), 16).toUpper().rightJustified(2, u'0');
        i += n - 1;
    }
    return out;
}

bool AddressNeedsEscapes(const QString &address)
{
    return std::any_of(address.begin(), address.end(), needsEscape);
}

QString LinkValue(const QString &path)
{
    return EscapeAddress(markup::RelativeLink(markup::TrimBlanks(path)));
}

const QList<QPair<QString, QString>> &NamedColors()
{
    static const QList<QPair<QString, QString>> colours = {
        {QStringLiteral("Black"), QStringLiteral("000000")},   {QStringLiteral("Olive"), QStringLiteral("808000")},
        {QStringLiteral("Teal"), QStringLiteral("008080")},    {QStringLiteral("Red"), QStringLiteral("FF0000")},
        {QStringLiteral("Blue"), QStringLiteral("0000FF")},    {QStringLiteral("Maroon"), QStringLiteral("800000")},
        {QStringLiteral("Navy"), QStringLiteral("000080")},    {QStringLiteral("Gray"), QStringLiteral("808080")},
        {QStringLiteral("Lime"), QStringLiteral("00FF00")},    {QStringLiteral("Fuchsia"), QStringLiteral("FF00FF")},
        {QStringLiteral("White"), QStringLiteral("FFFFFF")},   {QStringLiteral("Green"), QStringLiteral("008000")},
        {QStringLiteral("Purple"), QStringLiteral("800080")},  {QStringLiteral("Silver"), QStringLiteral("C0C0C0")},
        {QStringLiteral("Yellow"), QStringLiteral("FFFF00")},  {QStringLiteral("Aqua"), QStringLiteral("00FFFF")},
    };
    return colours;
}

QString ColorHex(const QString &colour)
{
    QString c = markup::StripQuotes(colour).trimmed();
    if (c.isEmpty())
        return QString();
    for (const auto &named : NamedColors()) {
        if (c.compare(named.first, Qt::CaseInsensitive) == 0)
            return u'#' + named.second;
    }
    bool ok = false;
    if (c.startsWith(u'#')) {
        const QString digits = c.mid(1);
        const uint v = digits.toUInt(&ok, 16);
        if (!ok || digits.size() > 6)
            return QString();
        return u'#' + QString::number(v, 16).toUpper().rightJustified(6, u'0');
    }
    uint bgr = 0;
    if (c.startsWith(QLatin1String("&H"), Qt::CaseInsensitive))
        bgr = c.mid(2).toUInt(&ok, 16);
    else if (c.size() == 6 && QRegularExpression(QStringLiteral("^[0-9A-Fa-f]{6}$")).match(c).hasMatch())
        return ColorHex(u'#' + c);
    else
        bgr = c.toUInt(&ok, 10);
    if (!ok || bgr > 0xFFFFFF)
        return QString();
    const uint rgb = ((bgr & 0xFF) << 16) | (bgr & 0xFF00) | ((bgr >> 16) & 0xFF);
    return u'#' + QString::number(rgb, 16).toUpper().rightJustified(6, u'0');
}

QString PlainValue(const QString &text)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9%.+#_-]+$"));
    if (text.isEmpty() || plain.match(text).hasMatch())
        return text;
    return QuoteValue(text);
}

QString FileSizeText(qint64 bytes)
{
    if (bytes < 1024)
        return QString::number(bytes) + QStringLiteral(" bytes");
    return QString::number(double(bytes) / 1024.0, 'f', 2) + QStringLiteral(" K");
}

QString OneLine(const QString &text)
{
    QString s = text;
    s.replace(u'\r', u' ');
    s.replace(u'\n', u' ');
    return s;
}

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

// The start of the first tag named one of `names` at or after `from`.
qsizetype findTag(const QString &text, const QStringList &names, qsizetype from, QString &name)
{
    for (qsizetype p = text.indexOf(u'<', from); p >= 0; p = text.indexOf(u'<', p + 1)) {
        qsizetype e = p + 1;
        while (e < text.size() && !isBlank(text.at(e)) && text.at(e) != u'>' && text.at(e) != u'<')
            ++e;
        const QString found = text.mid(p + 1, e - p - 1).toLower();
        if (found.isEmpty() || found.startsWith(u'/') || found.startsWith(u'!'))
            continue;
        if (names.isEmpty() || names.contains(found)) {
            name = found;
            return e;
        }
    }
    return -1;
}

} // namespace

TagReading ReadTag(const QString &text, const QStringList &names, int from)
{
    TagReading r;
    QString name;
    qsizetype i = findTag(text, names, from, name);
    if (i < 0) {
        r.end = int(text.size());
        return r;
    }
    r.name = name;
    const qsizetype n = text.size();
    while (true) {
        while (i < n && isBlank(text.at(i)))
            ++i;
        if (i >= n) {
            r.problems << QStringLiteral("The <%1> tag is not closed by \">\".").arg(name.toUpper());
            break;
        }
        if (text.at(i) == u'>') {
            ++i;
            break;
        }
        if (text.at(i) == u'<') {
            r.problems << QStringLiteral("The <%1> tag is not closed by \">\".").arg(name.toUpper());
            break;
        }
        qsizetype s = i;
        while (i < n && !isBlank(text.at(i)) && text.at(i) != u'=' && text.at(i) != u'>' && text.at(i) != u'<')
            ++i;
        const QString attribute = text.mid(s, i - s).toLower();
        qsizetype j = i;
        while (j < n && isBlank(text.at(j)))
            ++j;
        if (j >= n || text.at(j) != u'=') {
            if (attribute.startsWith(u'"') || attribute.startsWith(u'\''))
                r.problems << QStringLiteral("A stray quote in the <%1> tag was passed over.").arg(name.toUpper());
            else if (!attribute.isEmpty())
                r.flags << attribute;
            continue;
        }
        i = j + 1;
        while (i < n && isBlank(text.at(i)))
            ++i;
        QString value;
        if (i < n && (text.at(i) == u'"' || text.at(i) == u'\'')) {
            const QChar quote = text.at(i);
            const qsizetype close = text.indexOf(quote, i + 1);
            if (close < 0) {
                // Read up to the tag's end and tell the quote is open.
                qsizetype e = text.indexOf(u'>', i + 1);
                if (e < 0)
                    e = n;
                value = text.mid(i + 1, e - i - 1).trimmed();
                r.problems << QStringLiteral("The value of %1 in the <%2> tag has no closing quote.")
                                  .arg(attribute.toUpper(), name.toUpper());
                i = e;
            } else {
                value = text.mid(i + 1, close - i - 1);
                i = close + 1;
            }
        } else {
            s = i;
            while (i < n && !isBlank(text.at(i)) && text.at(i) != u'>')
                ++i;
            value = text.mid(s, i - s);
        }
        if (attribute.isEmpty())
            r.problems << QStringLiteral("A value without a name in the <%1> tag was passed over.").arg(name.toUpper());
        else if (!r.attributes.contains(attribute))
            r.attributes.insert(attribute, value);
    }
    r.end = int(i);
    return r;
}

} // namespace qly::tagdialogs
