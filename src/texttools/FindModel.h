#pragma once

#include "core/HistoryList.h"

#include "texttools/SearchPattern.h"

#include <QString>
#include <QStringList>
#include <functional>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::texttools {

// The find and replace dialog without its window: the fields, the options,
// the two guises, the history lists, and the searches with their questions
// and counts. The dialog shows it and hands it the current document's buffer.
class FindModel
{
public:
    enum Option { InSelection = 0, FromTop = 1, WholeWord = 2, MatchCase = 3 };
    enum class Mode { One, All };

    // How long each drop-down history grows.
    static constexpr int HistoryLength = core::HistoryLength;

    // "f" for the Find guise, "r" for the Replace guise.
    void setGuise(const QString &guise);
    bool replaceGuise() const { return m_replaceGuise; }
    QString title() const;
    // The caption of the find-or-replace button: "&Find First", after a hit
    // "&Find Next"; "&Replace One" in the Replace guise.
    QString buttonCaption() const;

    QString findText() const { return m_findText; }
    // A changed search text starts again with "&Find First".
    void setFindText(const QString &text);
    QString replaceText() const { return m_replaceText; }
    void setReplaceText(const QString &text) { m_replaceText = text; }

    bool option(Option o) const { return m_options[o]; }
    void setOption(Option o, bool on) { m_options[o] = on; }
    // Regular expressions instead of plain text; off by default.
    bool regex() const { return m_regex; }
    void setRegex(bool on) { m_regex = on; }

    // Puts a text at the top of its history (once; the oldest drops off).
    // The histories are kept in the configuration from session to session.
    void rememberFind(const QString &text);
    void rememberReplace(const QString &text);
    QStringList findHistory() const;
    QStringList replaceHistory() const;

    // The next hit (or with `backwards` the one before the caret), selected.
    // "Search text not found." when there is none. True on a hit.
    bool FindNext(platform::HTMLEdit &edit, bool backwards = false);

    // "ONE" asks at each hit, "ALL" replaces every hit; the count box at the
    // end. `cancelled` is asked every 256 hits of "ALL". Returns the count.
    int Replace(platform::HTMLEdit &edit, Mode mode, const std::function<bool()> &cancelled = {});

    // The pattern as the options make it, on the expanded search text.
    SearchPattern pattern(const QString &documentText) const;

private:
    // The range that "Search in selection" keeps between presses.
    void readRange(const platform::HTMLEdit &edit, int &start, int &end);
    bool patternUsable(const SearchPattern &p) const;

    bool m_replaceGuise = false;
    bool m_findNext = false;   // the Find button reads "&Find Next"
    QString m_findText;
    QString m_replaceText;
    bool m_options[4] = {false, false, false, false};
    bool m_regex = false;
    int m_rangeStart = -1;
    int m_rangeEnd = -1;
    int m_lastHitStart = -1;
    int m_lastHitEnd = -1;
};

} // namespace qly::texttools
