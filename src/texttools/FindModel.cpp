#include "texttools/FindModel.h"

#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

namespace qly::texttools {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

void FindModel::setGuise(const QString &guise)
{
    m_replaceGuise = guise.compare(QLatin1String("r"), Qt::CaseInsensitive) == 0;
    m_findNext = false;
}

QString FindModel::title() const
{
    return m_replaceGuise ? QStringLiteral("Replace Text") : QStringLiteral("Find Text");
}

QString FindModel::buttonCaption() const
{
    if (m_replaceGuise)
        return QStringLiteral("&Replace One");
    return m_findNext ? QStringLiteral("&Find Next") : QStringLiteral("&Find First");
}

void FindModel::setFindText(const QString &text)
{
    if (text != m_findText)
        m_findNext = false;
    m_findText = text;
}

namespace {
const QString FindHistoryName = QStringLiteral("Find History");
const QString ReplaceHistoryName = QStringLiteral("Replace History");
} // namespace

void FindModel::rememberFind(const QString &text)
{
    core::RememberHistory(FindHistoryName, text);
}

void FindModel::rememberReplace(const QString &text)
{
    core::RememberHistory(ReplaceHistoryName, text);
}

QStringList FindModel::findHistory() const
{
    return core::ReadHistory(FindHistoryName);
}

QStringList FindModel::replaceHistory() const
{
    return core::ReadHistory(ReplaceHistoryName);
}

SearchPattern FindModel::pattern(const QString &documentText) const
{
    return SearchPattern(ExpandSearchText(m_findText, documentText), m_options[MatchCase], m_options[WholeWord],
                         m_regex);
}

bool FindModel::patternUsable(const SearchPattern &p) const
{
    if (p.isValid())
        return true;
    platform::MsgBox(QStringLiteral("The regular expression is not valid: ") + p.errorText(), Buttons::Ok,
                     Icon::Exclamation, title());
    return false;
}

void FindModel::readRange(const platform::HTMLEdit &edit, int &start, int &end)
{
    const int selStart = edit.SelStart();
    const int selEnd = selStart + edit.SelLength();
    const bool sameSelection = m_rangeStart >= 0 && ((selStart == m_lastHitStart && selEnd == m_lastHitEnd) ||
                                                     (selStart == m_rangeStart && selEnd == m_rangeEnd));
    if (!sameSelection && edit.SelLength() > 0) {
        m_rangeStart = selStart;
        m_rangeEnd = selEnd;
    } else if (!sameSelection) {
        m_rangeStart = 0;
        m_rangeEnd = edit.GetTextLength();
    }
    start = m_rangeStart;
    end = std::min(m_rangeEnd, edit.GetTextLength());
}

bool FindModel::FindNext(platform::HTMLEdit &edit, bool backwards)
{
    // A plain search forwards is the buffer's own Find, which needs no copy
    // of the text; the document's text is read only when a line-end
    // place-holder asks which line end it uses.
    static const QString eolWord = QStringLiteral("[End Of Line Character]");
    const bool own = m_regex || backwards;
    QString text;
    if (own || m_findText.contains(eolWord, Qt::CaseInsensitive))
        text = edit.Text();
    const SearchPattern p = pattern(text);
    if (p.isEmpty() || !patternUsable(p))
        return false;
    int rangeStart = 0;
    int rangeEnd = edit.GetTextLength();
    if (m_options[InSelection])
        readRange(edit, rangeStart, rangeEnd);

    Hit hit;
    if (backwards) {
        hit = p.previous(text, rangeStart, std::min(edit.SelStart(), rangeEnd));
    } else {
        int start = edit.SelStart();
        if (edit.SelLength() > 0 && m_findNext)
            start = edit.SelStart() + 1;   // pass the hit that is selected now
        else if (m_options[FromTop] && !m_findNext)
            start = rangeStart;
        start = std::max(start, rangeStart);
        if (own) {
            hit = p.next(text, start, rangeEnd);
        } else {
            const QString search = ExpandSearchText(m_findText, text);
            const int flags = (m_options[WholeWord] ? platform::FindWholeWord : 0) |
                              (m_options[MatchCase] ? platform::FindMatchCase : 0) | platform::FindNoHighlight;
            hit = {edit.Find(search, start, rangeEnd, flags), int(search.size())};
        }
    }
    if (!hit.found()) {
        platform::MsgBox(QStringLiteral("Search text not found."), Buttons::Ok, Icon::None,
                         QStringLiteral("Find Text"));
        m_findNext = false;
        return false;
    }
    edit.SetSel(hit.position, hit.position + hit.length);
    m_lastHitStart = hit.position;
    m_lastHitEnd = hit.position + hit.length;
    m_findNext = true;
    return true;
}

int FindModel::Replace(platform::HTMLEdit &edit, Mode mode, const std::function<bool()> &cancelled)
{
    if (m_findText.isEmpty() || edit.GetTextLength() == 0)
        return 0;
    // One copy of the text serves the whole walk: every hit is looked for in
    // it, behind the last one, and `shift` maps its positions into the buffer
    // as replacements change the length.
    const QString text = edit.Text();
    const SearchPattern p = pattern(text);
    if (!patternUsable(p))
        return 0;
    const QString replacement = ExpandSearchText(m_replaceText, text);
    int rangeStart = 0;
    int rangeEnd = int(text.size());
    if (m_options[InSelection])
        readRange(edit, rangeStart, rangeEnd);

    int from = m_options[FromTop] ? rangeStart : std::max(edit.SelStart(), rangeStart);
    int shift = 0;
    int count = 0;
    // "ALL" builds the replaced stretch, from the first hit to the end of the
    // last, in memory and puts it into the buffer as one edit: one step to
    // undo, and no cost per hit in the control.
    int spanStart = -1;
    int spanEnd = -1;
    QString span;
    for (;;) {
        if (mode == Mode::All && cancelled && (count % 256) == 0 && cancelled())
            break;
        const Hit hit = p.next(text, from, rangeEnd);
        if (!hit.found()) {
            if (count == 0)
                platform::MsgBox(ExpandSearchText(m_findText, text) + QStringLiteral(" was not found"), Buttons::Ok,
                                 Icon::Exclamation);
            break;
        }
        const QString with = p.replacementFor(text, hit, replacement);
        if (mode == Mode::All) {
            if (spanStart < 0)
                spanStart = hit.position;
            else
                span += QStringView(text).mid(spanEnd, hit.position - spanEnd);
            span += with;
            spanEnd = hit.position + hit.length;
        } else {
            const int at = hit.position + shift;
            edit.SetSel(at, at + hit.length);
            const Answer a = platform::MsgBox(QStringLiteral("Replace this occurrence ?"), Buttons::YesNoCancel,
                                              Icon::Question);
            if (a == Answer::Cancel)
                break;
            if (a != Answer::Yes) {
                from = hit.position + hit.length;
                continue;
            }
            edit.setSelText(with);
        }
        shift += int(with.size()) - hit.length;
        from = hit.position + hit.length;
        ++count;
    }
    if (spanStart >= 0) {
        edit.PrepareUndo();
        edit.SetSel(spanStart, spanEnd);
        edit.setSelText(span);
        edit.EndPUndo();
    }
    if (m_options[InSelection] && count > 0) {
        m_rangeEnd += shift;
        m_lastHitStart = m_lastHitEnd = -1;
    }
    if (count >= 1)
        platform::MsgBox(QString::number(count) + QStringLiteral(" replacements made"), Buttons::Ok,
                         Icon::Information);
    return count;
}

} // namespace qly::texttools
