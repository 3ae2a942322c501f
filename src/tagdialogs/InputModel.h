#pragma once

#include <QString>

namespace qly::tagdialogs {

// frmInput, the general input box, without its window. The caller reads
// the answer from `Tag` after the dialog is hidden.
class InputModel
{
public:
    static QString chosen() { return QStringLiteral("QN~CHOSEN"); }
    static QString cancelled() { return QStringLiteral("QN~CANCELLED"); }

    // OK: the text when there is one, otherwise "QN~CHOSEN" (a choice from
    // the list, read from the list by the caller).
    void ok(const QString &text) { Tag = text.isEmpty() ? chosen() : text; }
    // Cancel: "QN~CANCELLED" and no choice in the list.
    void cancel() { Tag = cancelled(); listIndex = -1; }

    QString Tag;          // empty before the dialog is answered
    int listIndex = -1;
};

} // namespace qly::tagdialogs
