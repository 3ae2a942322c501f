#include "tagdialogs/PropertiesModel.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/Links.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"
#include "tagdialogs/TagText.h"

namespace qly::tagdialogs {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

const char *const kMetaNames[] = {"author", "description", "keywords", "distribution"};

QString headEndMissing(const QString &what)
{
    return S("Could not build the %1 because the </HEAD> tag has not been defined.  "
             "Please insert it and try again.").arg(what);
}

// Replaces [from, to) by `text`; a tag removed from a line of its own takes
// the line's end with it.
void replaceTag(QString &page, qsizetype from, qsizetype to, const QString &text)
{
    if (text.isEmpty() && (from == 0 || page.at(from - 1) == u'\n') && page.mid(to, 2) == core::gCRLF)
        to += 2;
    page.replace(from, to - from, text);
}

// Replaces the first stretch from `start` through the next `end` (any case).
bool replaceStretch(QString &page, const QString &start, const QString &end, const QString &text)
{
    const qsizetype p = page.indexOf(start, 0, Qt::CaseInsensitive);
    if (p < 0)
        return false;
    const qsizetype e = page.indexOf(end, p + start.size(), Qt::CaseInsensitive);
    if (e < 0)
        return false;
    replaceTag(page, p, e + end.size(), text);
    return true;
}

bool insertBeforeHeadEnd(QString &page, const QString &text)
{
    const qsizetype p = page.indexOf(QLatin1String("</HEAD"), 0, Qt::CaseInsensitive);
    if (p < 0)
        return false;
    page.insert(p, text + core::gCRLF);
    return true;
}

QString cased(const QString &tag)
{
    return core::ReadSettingFlag(S("Editing"), S("Lower Case Tags")) ? markup::LowerCaseTags(tag) : tag;
}

// The address of a base: as typed, a local path as a file URL.
QString baseAddress(const QString &text)
{
    const QString t = markup::TrimBlanks(text);
    return EscapeAddress(t.startsWith(u'/') || markup::hasDrive(t) ? markup::PathToFileUrl(t) : t);
}

// Start and end of the META tag for `name` (by NAME or HTTP-EQUIV), or -1.
qsizetype findMeta(const QString &page, const QString &name, int &end)
{
    int from = 0;
    while (true) {
        const TagReading meta = ReadTag(page, {S("meta")}, from);
        if (meta.name.isEmpty() || meta.end <= from)
            return -1;
        const QString n = meta.attributes.value(S("name"), meta.attributes.value(S("http-equiv")));
        if (n.compare(name, Qt::CaseInsensitive) == 0) {
            end = meta.end;
            return page.lastIndexOf(QLatin1String("<meta"), meta.end - 1, Qt::CaseInsensitive);
        }
        from = meta.end;
    }
}

} // namespace

QStringList PropertiesModel::fieldNames() const
{
    return {S("title"), S("base"), S("target"), S("showmeta"), S("author"), S("description"), S("keywords"),
            S("distribution"), S("refreshdelay"), S("refreshurl"), S("background"), S("fixed"),
            S("bgcolor"), S("text"), S("link"), S("vlink"), S("alink")};
}

QList<QPair<QString, QString>> PropertiesModel::colourDefaults()
{
    return {{S("bgcolor"), S("C0C0C0")}, {S("text"), S("000000")}, {S("link"), S("0000FF")},
            {S("vlink"), S("C000C0")}, {S("alink"), S("FF0000")}};
}

void PropertiesModel::open()
{
    QString page;
    if (documents::Document *doc = documents::Workspace::CurrentDocument())
        page = doc->txtDoc().Text();
    load(page);
}

void PropertiesModel::load(const QString &page)
{
    m_values.clear();
    m_notes.clear();
    m_blocks.clear();
    m_otherBody.clear();
    m_bodyFlags.clear();
    m_selection.clear();

    QString head;
    const qsizetype headStart = ReadTag(page, {S("head")}).end;
    const qsizetype headEnd = page.indexOf(QLatin1String("</HEAD>"), 0, Qt::CaseInsensitive);
    if (headEnd >= 0 && headStart <= headEnd && page.contains(QLatin1String("<HEAD"), Qt::CaseInsensitive)) {
        head = page.mid(headStart, headEnd - headStart);
    } else {
        head = page;
        if (!page.trimmed().isEmpty())
            note(S("The page has no <HEAD> ... </HEAD>; what could be found was read from the whole text."));
    }
    markup::CollectSpans(head, S("<SCRIPT"), S("</SCRIPT>"), m_blocks);
    QStringList styles;
    markup::CollectSpans(head, S("<STYLE"), S("</STYLE>"), styles);
    m_blocks << styles;

    const qsizetype t = head.indexOf(QLatin1String("<TITLE>"), 0, Qt::CaseInsensitive);
    if (t >= 0) {
        const qsizetype e = head.indexOf(u'<', t + 7);
        setValue(S("title"), head.mid(t + 7, e < 0 ? -1 : e - t - 7).trimmed());
        if (e < 0)
            note(S("The title has no </TITLE>."));
    }
    for (int from = 0;;) {
        const TagReading base = ReadTag(head, {S("base")}, from);
        if (base.name.isEmpty() || base.end <= from)
            break;
        m_notes << base.problems;
        if (base.attributes.contains(S("href")))
            setValue(S("base"), base.attributes.value(S("href")));
        if (base.attributes.contains(S("target")))
            setValue(S("target"), base.attributes.value(S("target")));
        from = base.end;
    }
    for (int from = 0;;) {
        const TagReading meta = ReadTag(head, {S("meta")}, from);
        if (meta.name.isEmpty() || meta.end <= from)
            break;
        m_notes << meta.problems;
        const QString n = meta.attributes.value(S("name"), meta.attributes.value(S("http-equiv"))).toLower();
        const QString content = meta.attributes.value(S("content"));
        for (const char *known : kMetaNames) {
            if (n == QLatin1String(known))
                setValue(n, content);
        }
        if (n == QLatin1String("refresh")) {
            const qsizetype semi = content.indexOf(u';');
            setValue(S("refreshdelay"), content.left(semi).trimmed());
            QString url = semi < 0 ? QString() : content.mid(semi + 1).trimmed();
            if (url.startsWith(QLatin1String("URL="), Qt::CaseInsensitive))
                url = url.mid(4).trimmed();
            setValue(S("refreshurl"), url);
        }
        from = meta.end;
    }

    const TagReading body = ReadTag(page, {S("body")});
    m_notes << body.problems;
    for (const auto &colour : colourDefaults()) {
        const QString given = body.attributes.value(colour.first);
        const QString hex = ColorHex(given);
        setValue(colour.first, hex.isEmpty() ? colour.second : hex.mid(1));
        if (!given.isEmpty() && hex.isEmpty())
            note(S("The colour \"%1\" of the <BODY> tag could not be read.").arg(given));
    }
    setValue(S("background"), body.attributes.value(S("background")));
    setFlag(S("fixed"), body.attributes.value(S("bgproperties")).compare(QLatin1String("fixed"), Qt::CaseInsensitive) == 0);
    for (auto it = body.attributes.cbegin(); it != body.attributes.cend(); ++it) {
        if (!fieldNames().contains(it.key()) && it.key() != QLatin1String("bgproperties"))
            m_otherBody.insert(it.key(), it.value());
    }
    m_bodyFlags = body.flags;

    m_original = m_values;
    setFlag(S("showmeta"), core::ReadSettingFlag(S("General"), S("Show MetaTags")));
    m_original.insert(S("showmeta"), value(S("showmeta")));
    if (value(S("author")).isEmpty())
        setValue(S("author"), core::ReadSetting(S("User Details"), S("User Name")));
}

QList<PropertiesModel::Box> PropertiesModel::apply(QString &page) const
{
    QList<Box> boxes;
    const auto put = [&page, &boxes](const QString &start, const QString &end, const QString &text,
                                     const QString &title, const QString &what) {
        if (replaceStretch(page, start, end, text))
            return;
        if (text.isEmpty())
            return;
        if (!insertBeforeHeadEnd(page, text))
            boxes << Box{title, headEndMissing(what)};
    };

    if (changed(S("title")))
        put(S("<TITLE>"), S("</TITLE>"), cased(S("<TITLE>") + value(S("title")) + S("</TITLE>")),
            S("Could Not Build <TITLE> Tag"), S("<TITLE> tag"));
    if (changed(S("base"))) {
        const QString v = value(S("base")).trimmed();
        put(S("<BASE HREF="), S(">"), v.isEmpty() ? QString() : cased(S("<BASE HREF=") + markup::AddQuotes(baseAddress(v)) + u'>'),
            S("Could Not Build <BASE HREF=> Tag"), S("<BASE HREF=> tag"));
    }
    if (changed(S("target"))) {
        const QString v = markup::TrimBlanks(value(S("target")));
        // The target's box speaks of the base's tag, as it always has.
        put(S("<BASE TARGET="), S(">"), v.isEmpty() ? QString() : cased(S("<BASE TARGET=") + markup::AddQuotes(v) + u'>'),
            S("Could Not Build <BASE TARGET=> Tag"), S("<BASE HREF=> tag"));
    }

    if (flag(S("showmeta"))) {
        const QString delay = value(S("refreshdelay")).trimmed();
        const QString url = value(S("refreshurl")).trimmed();
        if (delay.isEmpty() != url.isEmpty()) {
            boxes << Box{S("Delay Or URL Not Supplied"),
                         S("Please enter a delay (in seconds) and a URL to jump to after that time has elapsed.")};
        }
        QList<QPair<QString, QString>> metas;
        bool any = false;
        for (const char *known : kMetaNames) {
            if (changed(S(known))) {
                metas << qMakePair(S(known), markup::TrimBlanks(value(S(known))));
                any = true;
            }
        }
        if ((changed(S("refreshdelay")) || changed(S("refreshurl"))) && delay.isEmpty() == url.isEmpty()) {
            metas << qMakePair(S("refresh"), delay.isEmpty() ? QString() : delay + S(";URL=") + LinkValue(url));
            any = true;
        }
        if (any && !value(S("author")).trimmed().isEmpty())
            metas << qMakePair(S("generator"), S("Quillery"));
        if (any)
            metas << qMakePair(S("resource-type"), S("document"));
        for (const auto &meta : std::as_const(metas)) {
            const QString kind = meta.first == QLatin1String("refresh") ? S("HTTP-EQUIV") : S("NAME");
            const QString text = meta.second.isEmpty()
                                     ? QString()
                                     : cased(S("<META ") + kind + u'=' + markup::AddQuotes(meta.first)
                                             + S(" CONTENT=") + QuoteValue(meta.second) + u'>');
            int end = 0;
            const qsizetype at = findMeta(page, meta.first, end);
            if (at >= 0) {
                replaceTag(page, at, end, text);
            } else if (!text.isEmpty() && !insertBeforeHeadEnd(page, text)) {
                boxes << Box{S("Could Not Build Meta Tag"),
                             S("Could not build the ") + meta.first
                                 + S(" META tag because the </HEAD> tag has not been defined.  "
                                     "Please insert it and try again.")};
            }
        }
    }

    bool bodyChanged = changed(S("background")) || changed(S("fixed"));
    for (const auto &colour : colourDefaults())
        bodyChanged = bodyChanged || changed(colour.first);
    if (bodyChanged) {
        QString tag = S("<BODY");
        if (!value(S("background")).trimmed().isEmpty())
            tag += S(" BACKGROUND=") + markup::AddQuotes(LinkValue(value(S("background"))));
        if (flag(S("fixed")))
            tag += S(" BGPROPERTIES=FIXED");
        for (const auto &colour : colourDefaults()) {
            const QString hex = ColorHex(value(colour.first));
            if (!hex.isEmpty() && hex.mid(1) != colour.second)
                tag += u' ' + colour.first.toUpper() + u'=' + markup::AddQuotes(hex);
        }
        for (auto it = m_otherBody.cbegin(); it != m_otherBody.cend(); ++it)
            tag += u' ' + it.key().toUpper() + u'=' + QuoteValue(it.value());
        for (const QString &f : m_bodyFlags)
            tag += u' ' + f.toUpper();
        tag = cased(tag + u'>');
        const TagReading body = ReadTag(page, {S("body")});
        if (!body.name.isEmpty()) {
            const qsizetype at = page.lastIndexOf(QLatin1String("<body"), body.end - 1, Qt::CaseInsensitive);
            page.replace(at, body.end - at, tag);
        } else {
            const qsizetype p = page.indexOf(QLatin1String("</HEAD>"), 0, Qt::CaseInsensitive);
            if (p < 0)
                boxes << Box{S("Could Not Build <BODY> Tag"), headEndMissing(S("<BODY> tag"))};
            else
                page.insert(p + 7, core::gCRLF + tag);
        }
    }
    return boxes;
}

bool PropertiesModel::accept()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return true;
    platform::HTMLEdit &edit = doc->txtDoc();
    const QString old = edit.Text();
    QString page = old;
    const QList<Box> boxes = apply(page);
    if (!boxes.isEmpty()) {
        for (const Box &box : boxes)
            platform::MsgBox(box.text, platform::Buttons::Ok, platform::Icon::Exclamation, box.title);
        return false;
    }
    core::WriteSetting(S("General"), S("Show MetaTags"), core::YesNo(flag(S("showmeta"))));
    if (page == old)
        return true;
    // Only the changed stretch is replaced: one undo step, the rest untouched.
    qsizetype prefix = 0;
    while (prefix < old.size() && prefix < page.size() && old.at(prefix) == page.at(prefix))
        ++prefix;
    qsizetype suffix = 0;
    while (suffix < old.size() - prefix && suffix < page.size() - prefix
           && old.at(old.size() - 1 - suffix) == page.at(page.size() - 1 - suffix))
        ++suffix;
    edit.PrepareUndo();
    edit.SetSel(int(prefix), int(old.size() - suffix));
    edit.setSelText(page.mid(prefix, page.size() - suffix - prefix));
    edit.EndPUndo();
    edit.setDirty(true);
    return true;
}

} // namespace qly::tagdialogs
