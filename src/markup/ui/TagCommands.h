#pragma once

namespace qly::core::ui {
class Shell;
}

namespace qly::markup::ui {

class TagTree;

// Puts the tag tree on the resource manager's "Tags" tab, binds Edit Tags
// and Filter Tags, lets documents take dropped tags, and builds the tree
// at start-up.
TagTree *registerTagCommands(core::ui::Shell &shell);

// What start-up does for the tree: the catalogue, the filters, the stored
// view and the upper-case switch.
void BuildTagTree(TagTree &tree);

} // namespace qly::markup::ui
