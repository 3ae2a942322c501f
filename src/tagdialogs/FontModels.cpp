#include "tagdialogs/FontModels.h"

#include "markup/TagPrimitives.h"
#include "markup/TextOps.h"
#include "tagdialogs/TagText.h"

#include <algorithm>

namespace qly::tagdialogs {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

// " SIZE=", " COLOR=" and " FACE=" of a font tag, from the fields.
QString fontAttributes(const TagDialogModel &m, const QString &size)
{
    QString a;
    if (!size.isEmpty())
        a += S(" SIZE=") + PlainValue(size);
    const QString colour = ColorHex(m.value(S("color")));
    if (!colour.isEmpty())
        a += S(" COLOR=\"") + colour + u'"';
    const QString face = markup::TrimBlanks(m.value(S("face")));
    if (!face.isEmpty())
        a += S(" FACE=") + QuoteValue(face);
    return a;
}

// Fills size, colour and face from a tag's attributes.
void readFontAttributes(TagDialogModel &m, const TagReading &tag, QStringList &notes)
{
    m.setValue(S("size"), tag.attributes.value(S("size")));
    const QString colour = tag.attributes.value(S("color"));
    const QString hex = ColorHex(colour);
    m.setValue(S("color"), hex.mid(1));
    if (!colour.isEmpty() && hex.isEmpty())
        notes << S("The colour \"%1\" could not be read.").arg(colour);
    m.setValue(S("face"), tag.attributes.value(S("face")));
}

} // namespace

QStringList FontSizes()
{
    QStringList sizes{QString()};
    for (int i = 1; i <= 7; ++i)
        sizes << u'+' + QString::number(i);
    for (int i = 1; i <= 7; ++i)
        sizes << u'-' + QString::number(i);
    return sizes;
}

QStringList FontModel::styleFlags()
{
    return {S("b"), S("em"), S("strong"), S("u"), S("i"), S("blink"), S("sup"), S("sub"), S("big"), S("small")};
}

QStringList FontModel::styleTags()
{
    QStringList tags;
    for (const QString &f : styleFlags())
        tags << f.toUpper();
    return tags;
}

QStringList FontModel::fieldNames() const
{
    return QStringList{S("size"), S("color"), S("face")} + styleFlags() + QStringList{S("smallprint")};
}

void FontModel::read(const QString &selection)
{
    QString rest = selection.trimmed();
    QStringList closers;
    while (rest.startsWith(u'<')) {
        const TagReading tag = ReadTag(rest, {});
        if (tag.name == QLatin1String("font")) {
            readFontAttributes(*this, tag, m_notes);
            m_notes << tag.problems;
        } else if (styleFlags().contains(tag.name) && tag.attributes.isEmpty()) {
            setFlag(tag.name, true);
        } else {
            break;
        }
        closers.prepend(S("</") + tag.name + u'>');
        rest = rest.mid(tag.end);
        m_readBack = true;
    }
    if (!m_readBack)
        return;
    // The closing tags stand at the end: the outermost is the last.
    for (qsizetype i = closers.size() - 1; i >= 0; --i) {
        const QString &closer = closers.at(i);
        if (rest.endsWith(closer, Qt::CaseInsensitive)) {
            rest.chop(closer.size());
            continue;
        }
        note(S("The selection does not end with %1.").arg(closer.toUpper()));
        // A closing tag cut short goes, so that it is not written twice.
        for (qsizetype n = closer.size() - 1; n >= 2; --n) {
            if (rest.endsWith(closer.left(n), Qt::CaseInsensitive)) {
                rest.chop(n);
                break;
            }
        }
    }
    setValue(S("inner"), rest);
    if (value(S("size")) == QLatin1String("-1") && value(S("color")).isEmpty() && value(S("face")).isEmpty()) {
        setValue(S("size"), QString());
        setFlag(S("smallprint"), true);
    }
}

QString FontModel::startText() const
{
    QString size = value(S("size")).trimmed();
    if (size.isEmpty() && flag(S("smallprint")))
        size = S("-1");
    QString text;
    const QString attributes = fontAttributes(*this, size);
    if (!attributes.isEmpty())
        text = S("<FONT") + attributes + u'>';
    const QStringList flags = styleFlags();
    for (const QString &f : flags) {
        if (flag(f))
            text += u'<' + f.toUpper() + u'>';
    }
    return text;
}

QString FontModel::endText() const
{
    QString text;
    const QStringList flags = styleFlags();
    for (qsizetype i = flags.size() - 1; i >= 0; --i) {
        if (flag(flags.at(i)))
            text += S("</") + flags.at(i).toUpper() + u'>';
    }
    if (startText().startsWith(QLatin1String("<FONT")))
        text += S("</FONT>");
    return text;
}

bool FontModel::accept()
{
    if (m_readBack)
        markup::InsertMarkup(startText() + value(S("inner")), endText());
    else
        markup::WrapSelection(startText(), endText());
    return true;
}

QStringList BaseFontModel::fieldNames() const
{
    return {S("size"), S("color"), S("face")};
}

void BaseFontModel::read(const QString &selection)
{
    const TagReading tag = readOwnTag(selection, {S("basefont")}, S("The selection holds no <BASEFONT> tag; it stays behind the new one."));
    if (tag.name.isEmpty())
        return;
    readFontAttributes(*this, tag, m_notes);
}

QString BaseFontModel::tagText() const
{
    return S("<BASEFONT") + fontAttributes(*this, value(S("size")).trimmed()) + u'>';
}

bool BaseFontModel::accept()
{
    insertAroundSelection(tagText(), QString());
    return true;
}

} // namespace qly::tagdialogs
