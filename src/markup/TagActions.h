#pragma once

namespace qly::markup {

struct TagEntry;

// A double-click on a tag of the tree: its start and end text round the
// current document's selection, without the repeat test. Nothing happens
// when no document is open.
void TagDblClick(const TagEntry &entry);

// A tag dropped on the current document: a tag goes in through
// InsertTagItem, a script word as its start and end text.
void DropTag(const TagEntry &entry);

} // namespace qly::markup
