#pragma once

#include "markup/TextHolder.h"

#include <QString>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::markup {

// Reading and placing the selection of an insertion target.

// Moves the ends of a buffer's selection off the middle of a CR LF pair: a
// start between CR and LF goes behind the LF, an end between them goes before
// the CR. So no command that replaces the selection leaves a lone CR or LF.
void KeepLineEndsWhole(platform::HTMLEdit &edit);

// The selected text. From a document's buffer one trailing CR LF is removed,
// so wrapping a whole selected line replaces its line break too. From a text
// holder the text comes through HasSelection. No target gives "".
QString GetSelection(const Target &target);

// The selection of a buffer is first kept off the middle of a line end
// (KeepLineEndsWhole).

// True when the target's selected text is not empty; `text` receives it, or "".
bool HasSelection(const Target &target, QString &text);

// In the whole text finds the first `startText` and the first `endText` at or
// after it (ignoring case). When both are there and the end stands behind the
// start, selects from the start through the end text. Returns the selection's
// length as it then stands, so with no hit the old selection's length.
int SelectBetween(platform::HTMLEdit &target, const QString &startText, const QString &endText);

// When SelectBetween gives more than 0, replaces the selection by `newText`
// and returns true; otherwise changes nothing and returns false. Unless
// `keepCase` is given, with [Editing] "Lower Case Tags" on `newText` is first
// passed through LowerCaseTags, and the caller's variable receives the result.
// With no hit but an old non-empty selection, that selection is replaced.
bool ReplaceBetween(platform::HTMLEdit &target, const QString &startText, const QString &endText,
                    QString &newText, bool keepCase = false);

} // namespace qly::markup
