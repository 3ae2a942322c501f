#include "markup/LinkCommands.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Workspace.h"
#include "documents/Document.h"
#include "markup/Links.h"
#include "markup/TagPrimitives.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

namespace qly::markup {

namespace {

// One absolute "file:" reference made relative to `base`; references on
// another drive or root stay as they are.
QString relativeReference(const QString &reference, const QString &base)
{
    const QString path = FileUrlToPath(reference);
    if (!sameRoot(path, base))
        return reference;
    QString relative = RelativePath(path, base);
    if (relative.isEmpty())
        relative = core::FileNameOf(path);
    return PathToFileUrl(relative);
}

void replaceWholeText(platform::HTMLEdit &edit, const QString &text)
{
    const int caret = edit.SelStart();
    edit.PrepareUndo();
    edit.setText(text);
    edit.EndPUndo();
    edit.setDirty(true);
    edit.setSelStart(std::min(caret, edit.GetTextLength()));
}

// Widens the selection over a double quote that stands right before or after
// it, where the selection itself does not begin or end with one.
void takeInQuotes(platform::HTMLEdit &edit)
{
    const QString selected = edit.SelText();
    const QString text = edit.Text();
    int start = edit.SelStart();
    int end = start + edit.SelLength();
    if (!selected.startsWith(u'"') && start > 0 && text.at(start - 1) == u'"')
        --start;
    if (!selected.endsWith(u'"') && end < text.size() && text.at(end) == u'"')
        ++end;
    edit.SetSel(start, end);
}

} // namespace

void EditAbsToRel_Click()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    if (!core::FileExists(doc->LocalFileName)) {
        platform::MsgBox(QStringLiteral("This document must be saved before relative links can be created."),
                         platform::Buttons::Ok, platform::Icon::Exclamation,
                         QStringLiteral("Cannot Create Relative Links"));
        return;
    }
    platform::HTMLEdit &edit = doc->txtDoc();
    const QString base = doc->LocalFileName;
    if (edit.SelLength() > 0) {
        edit.setSelText(relativeReference(edit.SelText(), base));
        edit.setDirty(true);
        return;
    }
    if (platform::MsgBox(QStringLiteral("Would you like to change all the absolute links in this document to relative links ?"),
                         platform::Buttons::YesNo, platform::Icon::Question)
        != platform::Answer::Yes)
        return;

    core::BeginWait();
    const QString text = edit.Text();
    const QString marker = QStringLiteral("\"file://");
    QString out;
    out.reserve(text.size());
    qsizetype from = 0;
    bool changed = false;
    for (qsizetype hit; (hit = text.indexOf(marker, from, Qt::CaseInsensitive)) >= 0;) {
        const qsizetype valueStart = hit + 1;
        const qsizetype close = text.indexOf(u'"', valueStart);
        if (close < 0)
            break;   // an unclosed reference: left as it is
        const QString value = text.mid(valueStart, close - valueStart);
        const QString converted = relativeReference(value, base);
        out.append(QStringView(text).mid(from, valueStart - from));
        out.append(converted);
        changed = changed || converted != value;
        from = close;
    }
    out.append(QStringView(text).mid(from));
    if (changed)
        replaceWholeText(edit, out);
    core::EndWait();
}

void EditRelToAbs_Click()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    if (!core::FileExists(doc->LocalFileName)) {
        platform::MsgBox(QStringLiteral("Cannot convert the link in an unsaved document."));
        return;
    }
    platform::HTMLEdit &edit = doc->txtDoc();
    if (edit.SelText().isEmpty()) {
        platform::MsgBox(QStringLiteral("Please highlight the reference you wish to change."));
        return;
    }
    const QString shown = doc->ShowFileName.isEmpty() ? doc->LocalFileName : doc->ShowFileName;
    const QString dir = core::DirectoryOf(shown);
    QString sel = StripQuotes(edit.SelText());
    if (sel.startsWith(QLatin1String("file:///"), Qt::CaseInsensitive))
        sel = FileUrlToPath(sel);
    if (sel.contains(u'|') || sel.contains(u':')) {
        platform::MsgBox(QStringLiteral("That is not a relative reference.  Found a '|' or ':' character."),
                         platform::Buttons::Ok, platform::Icon::None, QStringLiteral("Not A Relative Reference"));
        return;
    }
    const QString resolved = ResolveRelativePath(sel, dir);
    if (resolved.isEmpty()) {
        platform::MsgBox(QStringLiteral("Couldn't convert this reference."));
        return;
    }
    // The new reference comes quoted: a selection of a value without its quotes
    // takes them in, so that they are replaced rather than doubled.
    takeInQuotes(edit);
    InsertMarkup(AddQuotes(PathToFileUrl(resolved)), QString(), true, edit);
}

QString removeTags(const QString &text, const QString &mode, const CancelCheck &cancelled, bool *completed)
{
    const bool links = mode.compare(QLatin1String("LINK"), Qt::CaseInsensitive) == 0;
    const QString find = links ? QStringLiteral("<A") : QStringLiteral("<");
    const QString what = links ? QStringLiteral("Removing links... ") : QStringLiteral("Removing HTML tags... ");
    const qsizetype n = text.size();
    QString out;
    out.reserve(n);
    qsizetype from = 0;
    int shown = -1;
    bool done = true;
    for (qsizetype hit; (hit = text.indexOf(find, from, Qt::CaseInsensitive)) >= 0;) {
        const qsizetype close = text.indexOf(u'>', hit + find.size());
        if (close < 0)
            break;   // an unclosed tag at the end stays
        out.append(QStringView(text).mid(from, hit - from));
        from = close + 1;
        const int percent = int(from * 100 / std::max<qsizetype>(n, 1));
        if (percent != shown) {
            shown = percent;
            core::ShowStatus(what + QString::number(percent) + u'%');
            core::DoEvents();
            if (cancelled && cancelled()) {
                done = false;
                break;
            }
        }
    }
    out.append(QStringView(text).mid(from));
    if (links)
        out = ReplaceText(out, QStringLiteral("</A>"), QString());
    if (completed)
        *completed = done;
    return out;
}

bool RemoveMarkup(const QString &mode, const CancelCheck &cancelled)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return false;
    platform::HTMLEdit &edit = doc->txtDoc();
    core::BeginWait();
    bool completed = true;
    const QString text = edit.Text();
    const QString result = removeTags(text, mode, cancelled, &completed);
    if (result != text)
        replaceWholeText(edit, result);
    edit.ColorHTML();
    core::EndWait();
    core::ShowStatus(completed ? QString() : QStringLiteral("Cancelled."));
    return completed;
}

} // namespace qly::markup
