#include "tagdialogs/ImageModel.h"

#include "core/HistoryList.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"
#include "tagdialogs/TagText.h"

#include <QFileInfo>

namespace qly::tagdialogs {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

// The fields read from the tag, in the order they are written.
const char *const kNumbers[] = {"height", "width", "hspace", "vspace", "border"};

} // namespace

QStringList ImageModel::fieldNames() const
{
    return {S("src"), S("lowsrc"), S("alt"), S("width"), S("height"), S("hspace"),
            S("vspace"), S("border"), S("align"), S("link")};
}

QStringList ImageModel::alignments()
{
    return {QString(), S("Left"), S("Right"), S("Top"), S("TextTop"), S("Middle"), S("AbsMiddle"),
            S("Baseline"), S("Bottom"), S("AbsBottom")};
}

void ImageModel::read(const QString &selection)
{
    const QString text = OneLine(selection);
    const TagReading img = readOwnTag(text, {S("img")}, S("The selection holds no <IMG> tag; it stays beside the new picture."));
    if (img.name.isEmpty())
        return;
    for (const QString &field : fieldNames()) {
        if (field != QLatin1String("link"))
            setValue(field, img.attributes.value(field));
    }
    // An alignment is shown as the list has it.
    for (const QString &a : alignments()) {
        if (!a.isEmpty() && a.compare(value(S("align")), Qt::CaseInsensitive) == 0)
            setValue(S("align"), a);
    }
    const qsizetype imgAt = text.indexOf(QLatin1String("<img"), 0, Qt::CaseInsensitive);
    const TagReading anchor = ReadTag(text.left(imgAt), {S("a")});
    if (!anchor.name.isEmpty())
        setValue(S("link"), anchor.attributes.value(S("href")));
}

QString ImageModel::imageTag() const
{
    QString tag = S("<IMG ");
    if (!value(S("src")).trimmed().isEmpty())
        tag += S("SRC=") + markup::AddQuotes(LinkValue(value(S("src")))) + u' ';
    if (!value(S("lowsrc")).trimmed().isEmpty())
        tag += S("LOWSRC=") + markup::AddQuotes(LinkValue(value(S("lowsrc")))) + u' ';
    if (!value(S("alt")).isEmpty())
        tag += S("ALT=") + QuoteValue(value(S("alt"))) + u' ';
    for (const char *number : kNumbers) {
        const QString v = value(S(number)).trimmed();
        if (!v.isEmpty())
            tag += S(number).toUpper() + u'=' + PlainValue(v) + u' ';
    }
    if (!value(S("align")).isEmpty())
        tag += S("ALIGN=") + PlainValue(value(S("align"))) + u' ';
    tag = markup::TrimBlanks(tag) + u'>';
    const QString link = value(S("link")).trimmed();
    if (!link.isEmpty())
        tag = S("<A HREF=") + markup::AddQuotes(LinkValue(link)) + u'>' + tag + S("</A>");
    return tag;
}

QStringList ImageModel::warnings() const
{
    QStringList w;
    const QString src = value(S("src")).trimmed();
    if (!src.isEmpty() && !src.contains(S("://")) && QFileInfo(src).isAbsolute() && !QFileInfo::exists(src))
        w << S("The picture's file does not exist.");
    for (const char *field : {"src", "lowsrc", "link"}) {
        if (AddressNeedsEscapes(value(S(field)).trimmed())) {
            w << S("Blanks and characters beyond ASCII in addresses are written as %-escapes.");
            break;
        }
    }
    return w;
}

bool ImageModel::accept()
{
    if (value(S("src")).trimmed().isEmpty()) {
        platform::MsgBox(S("You must choose a picture first."), platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    insertAroundSelection(imageTag(), QString());
    core::RememberHistory(S("Images"), value(S("src")).trimmed());
    core::RememberHistory(S("Low-Res Images"), value(S("lowsrc")).trimmed());
    core::RememberHistory(S("Links"), value(S("link")).trimmed());
    return true;
}

} // namespace qly::tagdialogs
