#pragma once

#include "platform/HTMLEdit.h"

class QsciLexerHTML;

namespace qly::documents::ui {

// Gives the lexer's styles the colours of the slots; with `entireTags`
// a whole tag, its attributes and values included, takes the tag colour.
void applyEditColors(QsciLexerHTML &lexer, const platform::ColorTable &colors, bool entireTags);

} // namespace qly::documents::ui
