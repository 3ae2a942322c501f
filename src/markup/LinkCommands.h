#pragma once

#include <QString>
#include <functional>

namespace qly::markup {

// Asked now and then during long work; true ends it where it stands.
using CancelCheck = std::function<bool()>;

// Turns "file://" references of the current document into relative ones:
// the selection, or after asking every quoted reference in the document.
void EditAbsToRel_Click();

// Turns the selected relative reference into a quoted "file:///" one.
void EditRelToAbs_Click();

// Removes markup from the current document as one undo step: mode "LINK"
// removes every tag beginning "<A" (any tag whose name starts with A) and
// every "</A>"; mode "ALL" removes every tag. Progress goes to the status
// text; `cancelled` may end the run early, keeping what was removed so far.
// False when cancelled.
bool RemoveMarkup(const QString &mode, const CancelCheck &cancelled = {});

// The pure text work of RemoveMarkup; `processed` receives how far it got.
QString removeTags(const QString &text, const QString &mode, const CancelCheck &cancelled = {},
                   bool *completed = nullptr);

} // namespace qly::markup
