#include "markup/Selection.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"

#include <algorithm>

namespace qly::markup {

void KeepLineEndsWhole(platform::HTMLEdit &edit)
{
    const QString selected = edit.SelText();
    const bool splitAtStart = selected.startsWith(u'\n');
    const bool splitAtEnd = selected.endsWith(u'\r');
    if (!splitAtStart && !splitAtEnd)
        return;
    // Rare: only now is the whole text worth fetching, for the neighbours.
    const QString text = edit.Text();
    int start = edit.SelStart();
    int end = start + edit.SelLength();
    if (splitAtStart && start > 0 && text.at(start - 1) == u'\r')
        ++start;
    if (splitAtEnd && end < text.size() && text.at(end) == u'\n')
        --end;
    edit.SetSel(start, std::max(start, end));
}

QString GetSelection(const Target &target)
{
    if (platform::HTMLEdit *edit = target.edit()) {
        KeepLineEndsWhole(*edit);
        QString text = edit->SelText();
        if (text.endsWith(core::gCRLF))
            text.chop(2);
        return text;
    }
    QString text;
    HasSelection(target, text);
    return text;
}

bool HasSelection(const Target &target, QString &text)
{
    if (platform::HTMLEdit *edit = target.edit()) {
        KeepLineEndsWhole(*edit);
        text = edit->SelText();
    } else if (TextHolder *holder = target.holder())
        text = holder->selectedText();
    else
        text.clear();
    return !text.isEmpty();
}

int SelectBetween(platform::HTMLEdit &target, const QString &startText, const QString &endText)
{
    const QString text = target.Text();
    const qsizetype p = text.indexOf(startText, 0, Qt::CaseInsensitive);
    if (p >= 0) {
        const qsizetype q = text.indexOf(endText, p, Qt::CaseInsensitive);
        if (q > p)
            target.SetSel(int(p), int(q + endText.size()));
    }
    return target.SelLength();
}

bool ReplaceBetween(platform::HTMLEdit &target, const QString &startText, const QString &endText,
                    QString &newText, bool keepCase)
{
    if (SelectBetween(target, startText, endText) <= 0)
        return false;
    if (!keepCase && core::ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Lower Case Tags")))
        newText = LowerCaseTags(newText);
    target.setSelText(newText);
    return true;
}

} // namespace qly::markup
