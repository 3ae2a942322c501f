#include "markup/DuplicateLinks.h"

#include "documents/Workspace.h"
#include "documents/Document.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QHash>

namespace qly::markup {

bool collectLinkTags(const QString &text, std::vector<LinkTag> &tags, int &unclosed)
{
    tags.clear();
    const QString find = QStringLiteral("<a href=");
    for (qsizetype hit, from = 0; (hit = text.indexOf(find, from, Qt::CaseInsensitive)) >= 0;) {
        const qsizetype close = text.indexOf(u'>', hit + find.size());
        if (close < 0) {
            unclosed = int(hit);
            return false;
        }
        tags.push_back({int(hit), text.mid(hit, close - hit + 1)});
        from = close + 1;
    }
    return true;
}

void ToolsFindDup_Click(const DuplicateAsk &ask)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    platform::HTMLEdit &edit = doc->txtDoc();
    if (edit.GetTextLength() == 0) {
        platform::MsgBox(QStringLiteral("You need to enter some text to check duplicate links"));
        return;
    }
    const int caret = edit.SelStart();
    std::vector<LinkTag> tags;
    int unclosed = -1;
    const bool closed = collectLinkTags(edit.Text(), tags, unclosed);

    // Later occurrences of each link, by its text in lower case.
    QHash<QString, std::vector<size_t>> occurrences;
    for (size_t i = 0; i < tags.size(); ++i)
        occurrences[tags[i].text.toLower()].push_back(i);

    bool found = false;
    bool stop = false;
    for (size_t i = 0; i < tags.size() && !stop; ++i) {
        const auto entry = occurrences.constFind(tags[i].text.toLower());
        const std::vector<size_t> &same = entry.value();
        if (same.size() < 2 || same.front() != i)
            continue;   // no duplicates, or offered with its first occurrence
        for (size_t k = 1; k < same.size(); ++k) {
            found = true;
            const LinkTag &dup = tags[same[k]];
            edit.SetSel(dup.position, dup.position + int(dup.text.size()));
            const DuplicateChoice choice = ask(dup.text);
            if (choice == DuplicateChoice::CancelAll)
                stop = true;
            if (choice != DuplicateChoice::Next)
                break;
        }
    }
    if (!closed && !stop) {
        edit.SetSel(unclosed, unclosed);
        platform::MsgBox(QStringLiteral("A link has not been closed correctly.  Please add the '>' to it."));
        return;
    }
    if (!found) {
        edit.setSelStart(caret);
        platform::MsgBox(QStringLiteral("No duplicate links were found in this document."));
    }
}

} // namespace qly::markup
