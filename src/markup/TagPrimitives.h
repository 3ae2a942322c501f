#pragma once

#include "markup/TextHolder.h"

#include <QDateTime>
#include <QString>

namespace qly::markup {

// Putting markup into a document: the one way every command and generator
// inserts text.

// Replaces the target's selection by `startText` followed by `endText`.
// - Does nothing when no document is open, even with a target given.
// - No target: the current document's buffer, which is marked changed.
// - With [Editing] "Lower Case Tags" on, each string holding a "<" is passed
//   through LowerCaseTags; with [Editing] "Color HTML" on the buffer is
//   recoloured afterwards. One insertion is one undo step.
// - A text box receives `startText` alone, a combo box both strings joined.
// - Unless `skipRepeatTest`, StripRepeatedTags runs first: when it strikes,
//   the text is left unchanged (the tags asked for are not added).
// - Afterwards, with no selection and both strings non-empty the caret
//   stands between them; with a selection the inserted text is selected
//   (after a repeat hit, the selection's start over the stripped length);
//   otherwise the caret stands behind the insertion.
// The existing selection is not kept: to wrap it, pass it inside `startText`.
void InsertMarkup(QString startText, QString endText, bool skipRepeatTest = false, const Target &target = {});

// InsertMarkup(startTag + GetSelection(buffer), endTag) on the current document.
void WrapSelection(const QString &startTag, const QString &endTag, bool skipRepeatTest = false);

// The repeat test of InsertMarkup. Of s = startText + endText, the first tag
// runs to the first ">", the last tag from the last "<" to the end; unless
// both are whole tags, false. The text between them loses every copy of the
// first tag (startText becomes it) and then of the last tag (startText becomes
// it, endText ""); true when either was there.
bool StripRepeatedTags(QString &startText, QString &endText);

// Drops a tag of the tag tree on the current document. `item` is
// name TAB description TAB flag: "<name>" goes in, followed by "</name>"
// when the flag starts with "Y" (any case). The repeat test is active.
void InsertTagItem(const QString &item);

// The moment as text for InsertDate's kinds, in the user's locale:
// 1 short date, 2 short date and time, 3 long date, 4 long date and time
// (time without seconds). Other kinds give "".
QString DateText(int kind, const QDateTime &moment);
// Inserts the current moment as DateText gives it, with no end text.
void InsertDate(int kind);

} // namespace qly::markup
