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
    void textChanged(int position, int modificationType);
    std::pair<std::int64_t, LexState> restartBefore(std::int64_t position) const;

    // The lexer's state at points it passed, by position; valid up to the
    // first change before them.
    std::vector<std::pair<std::int64_t, LexState>> m_checkpoints;
    int m_wordsGeneration = -1;
};

} // namespace qly::documents::ui
