#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace qly::markup {

// A link tag of a text: where it starts (0-based) and its whole text.
struct LinkTag {
    int position = 0;
    QString text;
};

// Every "<a href=" tag (any case) through its ">", in order. False, with
// `unclosed` at the position of the tag, when one has no ">".
bool collectLinkTags(const QString &text, std::vector<LinkTag> &tags, int &unclosed);

// What the user chose for one duplicate shown: go on to the next
// occurrence of the same link, on to the next link, or stop.
enum class DuplicateChoice { Next, NextLink, CancelAll };
// Shows one duplicate (already selected in the document) and asks.
using DuplicateAsk = std::function<DuplicateChoice(const QString &tag)>;

// The Find Duplicate Links command on the current document. Each link that
// occurs again (same text, without regard to case) is offered once, with
// its later occurrences one after the other.
void ToolsFindDup_Click(const DuplicateAsk &ask);

} // namespace qly::markup
