#pragma once

#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

namespace qly::markup {

// One row of the character table: the code as written in the file (decimal
// digits; "00" for a line with no character of its own), the description
// shown in the list, and the HTML text that stands for the character.
struct CharacterCode {
    QString code;
    QString description;
    QString entity;
};

// The table of character.inf, rows in file order. Row 0 exists and stays
// empty, so the first line of the file is row 1.
const std::vector<CharacterCode> &CharacterCodes();
// Replaces the table (row 0 is added); for callers that build one in memory.
void setCharacterCodes(std::vector<CharacterCode> rows);

// The file in the program directory.
QString characterFilePath();

// Parses one line: false for a line to ignore (no description, too few
// semicolons). The entity keeps its terminating semicolon.
bool parseCharacterLine(const QString &line, CharacterCode &row);

// Fills the table from character.inf. A missing file is reported and leaves
// the table empty, as does an unreadable one; faulty lines are dropped.
void LoadCharacterCodes();
// Loads the table unless a load has run already (successful or not), so
// translation works before the special characters list was first opened.
void EnsureCharacterCodes();

// The numeric value of a code: its leading decimal digits, 0 when there are
// none or the value is no character.
char32_t characterValue(const QString &code);

// Every character of the table replaced by its entity, rows applied in file
// order, so that a later row also rewrites what an earlier one produced.
// A text of exactly one character goes through TranslateOneCharacter.
QString TranslateCharacters(const QString &text);

// The table as one substitution, as TranslateCharacters applies it: each
// character that changes, with what it finally becomes, lowest code first.
std::vector<std::pair<char32_t, QString>> CharacterTranslations();

// The entity of the first character of `text`, or the character itself when
// its code is below 123 or the table has no row for it.
QString TranslateOneCharacter(const QString &text);

} // namespace qly::markup
