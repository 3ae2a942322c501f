#pragma once

#include "documents/HtmlLexer.h"

#include <Qsci/qscilexercustom.h>

#include <utility>
#include <vector>

namespace qly::documents::ui {

// The colouring of a document: our own HTML lexer behind Scintilla. Styles
// what Scintilla asks for (the lines on screen) from the nearest point the
// lexer passed before, so an edit costs the lines it touches, also on a
// page that is one long line; styleTo() colours ahead for the idle time.
class HtmlColouring : public QsciLexerCustom
{
    Q_OBJECT
public:
    explicit HtmlColouring(QObject *parent = nullptr);

    const char *language() const override { return "HTML"; }
    QString description(int style) const override;
    void setEditor(QsciScintilla *editor) override;
    void styleText(int start, int end) override;

    // Styles everything up to `end` that is not styled yet.
    void styleTo(long end);
    // Where styling stands: every byte before it is coloured.
    long endStyled() const;
    // Colours everything again from the start (the known words changed).
    void restyleAll();

private:
    using Checkpoint = std::pair<std::int64_t, LexState>;

    void textChanged(int position, int modificationType, int length);
    std::pair<std::int64_t, LexState> restartBefore(std::int64_t position) const;
    // The next point past the changes where the old colouring may be met.
    std::int64_t nextMeeting(std::int64_t pos);
    bool meets(std::int64_t pos, const LexState &state) const;
    void takeOldColouring();
    // Nothing is known past a change (the page is coloured anew).
    void forgetOldColouring();

    // The lexer's state at points it passed, by position; valid up to the
    // first change before them.
    std::vector<Checkpoint> m_checkpoints;
    // The states the lexer had past the changes not coloured yet (moved
    // with them), and how far that colouring reached. Lexing that comes to
    // one of them in the same state knows that the rest, up to
    // m_oldColouredTo, is coloured as before.
    std::vector<Checkpoint> m_oldCheckpoints;
    std::size_t m_nextOld = 0;
    std::int64_t m_oldColouredTo = 0;
    // Every change not coloured yet ends before this (-1: none).
    std::int64_t m_changedTo = -1;
    int m_wordsGeneration = -1;
};

} // namespace qly::documents::ui
