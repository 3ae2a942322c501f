#include "tagdialogs/LinkModels.h"

#include "core/HistoryList.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/Selection.h"
#include "markup/TagPrimitives.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"
#include "tagdialogs/TagText.h"

namespace qly::tagdialogs {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

QString escapeWarning()
{
    return S("Blanks and characters beyond ASCII in the address are written as %-escapes.");
}

} // namespace

QString LinkStartTag(const QString &url, const QString &target)
{
    QString tag = S("<A HREF=") + markup::AddQuotes(LinkValue(url));
    if (!target.trimmed().isEmpty())
        tag += S(" TARGET=") + markup::AddQuotes(markup::TrimBlanks(target));
    return tag + u'>';
}

void InsertLinkTag(const QString &url, const QString &target, const QString &text)
{
    QString selected;
    if (documents::Document *doc = documents::Workspace::CurrentDocument())
        markup::HasSelection(markup::Target(doc->txtDoc()), selected);
    const QString start = LinkStartTag(url, target);
    if (!selected.isEmpty())
        markup::InsertMarkup(start + selected, S("</A>"), true);
    else
        markup::InsertMarkup(start + text + S("</A>"), QString(), true);
}

bool ReadLink(const QString &selection, QString &href, QString &target, QString &text, QStringList &problems)
{
    const QString trimmed = selection.trimmed();
    if (!trimmed.startsWith(QLatin1String("<a"), Qt::CaseInsensitive))
        return false;
    const TagReading a = ReadTag(trimmed, {S("a")});
    if (a.name.isEmpty())
        return false;
    problems << a.problems;
    href = a.attributes.value(S("href"));
    target = a.attributes.value(S("target"));
    text = trimmed.mid(a.end);
    if (text.endsWith(QLatin1String("</a>"), Qt::CaseInsensitive))
        text.chop(4);
    else
        problems << S("The link has no closing </A>; the text behind its tag was taken.");
    return true;
}

QStringList LinkModel::fieldNames() const
{
    return {S("url"), S("target"), S("text")};
}

void LinkModel::read(const QString &selection)
{
    QString href, target, text;
    if (ReadLink(selection, href, target, text, m_notes)) {
        m_readBack = true;
        setValue(S("url"), href);
        setValue(S("target"), target);
        setValue(S("text"), text);
    } else {
        setValue(S("text"), selection);
    }
}

QStringList LinkModel::warnings() const
{
    if (AddressNeedsEscapes(value(S("url")).trimmed()))
        return {escapeWarning()};
    return {};
}

bool LinkModel::accept()
{
    if (value(S("url")).trimmed().isEmpty()) {
        platform::MsgBox(S("Please enter a URL."), platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    // A link read back is replaced whole; otherwise the link wraps the
    // selection or holds the text.
    if (m_readBack)
        markup::InsertMarkup(LinkStartTag(value(S("url")), value(S("target"))) + value(S("text")) + S("</A>"),
                             QString(), true);
    else
        InsertLinkTag(value(S("url")), value(S("target")), value(S("text")));
    core::RememberHistory(S("Links"), value(S("url")).trimmed());
    return true;
}

QString SchemeLinkModel::name() const
{
    switch (m_kind) {
    case Ftp: return S("frmFTPLink");
    case News: return S("frmNews");
    case Mail: break;
    }
    return S("frmMail");
}

QString SchemeLinkModel::scheme() const
{
    switch (m_kind) {
    case Ftp: return S("ftp://");
    case News: return S("news:");
    case Mail: break;
    }
    return S("mailto:");
}

QString SchemeLinkModel::historyName() const
{
    switch (m_kind) {
    case Ftp: return S("FTP Sites");
    case News: return S("UseNet Newsgroups");
    case Mail: break;
    }
    return S("E-Mail Addresses");
}

QStringList SchemeLinkModel::fieldNames() const
{
    return {S("value"), S("text")};
}

void SchemeLinkModel::read(const QString &selection)
{
    QString href, target, text;
    if (ReadLink(selection, href, target, text, m_notes)) {
        m_readBack = true;
        if (href.startsWith(scheme(), Qt::CaseInsensitive))
            href = href.mid(scheme().size());
        else
            note(S("The link's address does not start with \"%1\".").arg(scheme()));
        setValue(S("value"), href);
        setValue(S("text"), text);
    } else {
        setValue(S("text"), selection);
    }
}

QString SchemeLinkModel::linkText() const
{
    const QString text = value(S("text"));
    return text.isEmpty() ? value(S("value")).trimmed() : text;
}

QStringList SchemeLinkModel::warnings() const
{
    if (AddressNeedsEscapes(value(S("value")).trimmed()))
        return {escapeWarning()};
    return {};
}

bool SchemeLinkModel::accept()
{
    QString v = value(S("value")).trimmed();
    if (v.startsWith(scheme(), Qt::CaseInsensitive))
        v = v.mid(scheme().size());
    if (v.isEmpty()) {
        static const char *const what[] = {"an FTP site", "a newsgroup", "an e-mail address"};
        platform::MsgBox(S("Please enter %1.").arg(S(what[m_kind])), platform::Buttons::Ok,
                         platform::Icon::Exclamation);
        return false;
    }
    markup::InsertMarkup(S("<A HREF=\"") + scheme() + EscapeAddress(v) + S("\">") + linkText() + S("</A>"),
                         QString(), true);
    core::RememberHistory(historyName(), v);
    return true;
}

} // namespace qly::tagdialogs
