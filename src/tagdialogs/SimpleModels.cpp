#include "tagdialogs/SimpleModels.h"

#include "core/Settings.h"
#include "markup/TagPrimitives.h"
#include "platform/Prompts.h"
#include "tagdialogs/TagText.h"

#include <QFileInfo>

namespace qly::tagdialogs {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

void exclaim(const QString &text)
{
    platform::MsgBox(text, platform::Buttons::Ok, platform::Icon::Exclamation);
}

} // namespace

QStringList AnchorNames(const QString &page)
{
    QStringList names;
    int from = 0;
    while (true) {
        const TagReading a = ReadTag(page, {S("a")}, from);
        if (a.name.isEmpty())
            break;
        for (const char *key : {"name", "id"}) {
            const QString n = a.attributes.value(S(key)).trimmed();
            if (!n.isEmpty() && !names.contains(n))
                names << n;
        }
        if (a.end <= from)
            break;
        from = a.end;
    }
    return names;
}

void AnchorModel::read(const QString &selection)
{
    const QString trimmed = selection.trimmed();
    if (trimmed.startsWith(QLatin1String("<a"), Qt::CaseInsensitive)) {
        const TagReading a = ReadTag(trimmed, {S("a")});
        const QString n = a.attributes.value(S("name"), a.attributes.value(S("id")));
        if (!n.isEmpty()) {
            m_notes << a.problems;
            setValue(S("name"), n);
            m_readBack = true;
            QString inner = trimmed.mid(a.end);
            if (inner.endsWith(QLatin1String("</a>"), Qt::CaseInsensitive))
                inner.chop(4);
            setValue(S("inner"), inner);
            return;
        }
    }
    // Plain text proposes itself as the name.
    if (!trimmed.contains(u'<') && !trimmed.contains(u'\n'))
        setValue(S("name"), trimmed);
}

QStringList AnchorModel::warnings() const
{
    if (value(S("name")).trimmed().contains(u' '))
        return {S("A name with blanks cannot be reached from every browser.")};
    return {};
}

bool AnchorModel::accept()
{
    const QString n = value(S("name")).trimmed();
    if (n.isEmpty()) {
        exclaim(S("Please enter a name for the anchor."));
        return false;
    }
    const bool id = core::ReadSetting(S("General"), S("Target")).compare(QLatin1String("ID"), Qt::CaseInsensitive) == 0;
    const QString quoted = QuoteValue(n);
    const QString start = (id ? S("<A ID=") : S("<A NAME=")) + quoted + u'>';
    // The ID form stands alone, unless it had text inside it.
    const QString inner = m_readBack ? value(S("inner")) : m_selection;
    const QString end = id && inner.isEmpty() ? QString() : S("</A>");
    markup::InsertMarkup(start + inner, end, true);
    return true;
}

QStringList RuleModel::fieldNames() const
{
    return {S("width"), S("percent"), S("align"), S("size"), S("noshade")};
}

QStringList RuleModel::alignments()
{
    return {QString(), S("Center"), S("Left"), S("Right")};
}

void RuleModel::setDefaults()
{
    setValue(S("width"), S("100"));
    setFlag(S("percent"), true);
    setFlag(S("noshade"), false);
}

void RuleModel::read(const QString &selection)
{
    const TagReading hr = readOwnTag(selection, {S("hr")}, S("The selection holds no <HR> tag; it stays behind the new rule."));
    if (hr.name.isEmpty())
        return;
    QString width = hr.attributes.value(S("width"));
    setFlag(S("percent"), width.endsWith(u'%'));
    if (width.endsWith(u'%'))
        width.chop(1);
    setValue(S("width"), width);
    setValue(S("align"), QString());
    const QString align = hr.attributes.value(S("align"));
    for (const QString &a : alignments()) {
        if (!a.isEmpty() && a.compare(align, Qt::CaseInsensitive) == 0)
            setValue(S("align"), a);
    }
    if (!align.isEmpty() && value(S("align")).isEmpty())
        note(S("The alignment \"%1\" is not one of the list.").arg(align));
    setValue(S("size"), hr.attributes.value(S("size")));
    setFlag(S("noshade"), hr.flags.contains(S("noshade")));
}

QString RuleModel::ruleTag() const
{
    QString tag = S("<HR");
    const QString width = value(S("width")).trimmed();
    if (!width.isEmpty())
        tag += S(" WIDTH=") + PlainValue(width + (flag(S("percent")) ? S("%") : QString()));
    if (!value(S("align")).isEmpty())
        tag += S(" ALIGN=") + PlainValue(value(S("align")));
    if (!value(S("size")).trimmed().isEmpty())
        tag += S(" SIZE=") + PlainValue(value(S("size")).trimmed());
    if (flag(S("noshade")))
        tag += S(" NOSHADE");
    return tag + u'>';
}

bool RuleModel::accept()
{
    // A selection that is no rule stays behind it.
    insertAroundSelection(ruleTag(), QString());
    return true;
}

void BackSoundModel::read(const QString &selection)
{
    const TagReading embed = readOwnTag(selection, {S("embed"), S("bgsound")}, S("The selection holds no <EMBED> tag; it stays behind the sound."));
    if (embed.name.isEmpty())
        return;
    setValue(S("file"), embed.attributes.value(S("src")));
}

QStringList BackSoundModel::warnings() const
{
    const QString file = value(S("file")).trimmed();
    QStringList w;
    if (!file.isEmpty() && QFileInfo(file).isAbsolute() && !QFileInfo::exists(file))
        w << S("The sound file does not exist.");
    if (AddressNeedsEscapes(file))
        w << S("Blanks and characters beyond ASCII in the file name are written as %-escapes.");
    return w;
}

bool BackSoundModel::accept()
{
    const QString file = value(S("file")).trimmed();
    if (file.isEmpty()) {
        exclaim(S("Please choose a sound file."));
        return false;
    }
    const QString tag = S("<EMBED SRC=\"") + LinkValue(file) + S("\" HIDDEN=TRUE>");
    insertAroundSelection(tag, QString());
    return true;
}

} // namespace qly::tagdialogs
