#include "documents/ui/EditColors.h"

#include <Qsci/qscilexerhtml.h>

#include <QColor>

namespace qly::documents::ui {

namespace {

// Colours of slots with no stored value.
QColor defaultColor(int slot)
{
    switch (slot) {
    case 0: return QColor(0x00, 0x00, 0x80);   // tags
    case 1: return QColor(0x80, 0x00, 0x80);   // attributes
    case 2: return QColor(0xC0, 0x40, 0x00);   // unfinished values
    case 3: return QColor(0x00, 0x80, 0x00);   // values
    case 5: return QColor(0x00, 0x60, 0x90);   // methods
    case 6: return QColor(0x60, 0x60, 0x00);   // properties
    case 7: return QColor(0x00, 0x00, 0xC0);   // statements
    case 8: return QColor(0x80, 0x40, 0x00);   // objects
    case 11: return QColor(0xC0, 0x00, 0x00);  // errors
    default: return QColor(0x00, 0x00, 0x00);  // text
    }
}

QColor slotColor(const platform::ColorTable &colors, int slot)
{
    const int v = colors[slot];
    if (v < 0)
        return defaultColor(slot);
    // Stored as red + 256 * green + 65536 * blue.
    return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF);
}

} // namespace

void applyEditColors(QsciLexerHTML &lexer, const platform::ColorTable &colors, bool entireTags)
{
    auto set = [&](int style, int slot) { lexer.setColor(slotColor(colors, slot), style); };
    const int tagSlot = 0;
    set(QsciLexerHTML::Default, 4);
    set(QsciLexerHTML::Tag, tagSlot);
    set(QsciLexerHTML::XMLTagEnd, tagSlot);
    set(QsciLexerHTML::UnknownTag, entireTags ? tagSlot : 11);
    set(QsciLexerHTML::Attribute, entireTags ? tagSlot : 1);
    set(QsciLexerHTML::UnknownAttribute, entireTags ? tagSlot : 11);
    set(QsciLexerHTML::HTMLNumber, entireTags ? tagSlot : 3);
    set(QsciLexerHTML::HTMLDoubleQuotedString, entireTags ? tagSlot : 3);
    set(QsciLexerHTML::HTMLSingleQuotedString, entireTags ? tagSlot : 3);
    set(QsciLexerHTML::OtherInTag, entireTags ? tagSlot : 2);
    set(QsciLexerHTML::Entity, 4);
    set(QsciLexerHTML::JavaScriptDefault, 4);
    set(QsciLexerHTML::JavaScriptKeyword, 7);
    set(QsciLexerHTML::JavaScriptWord, 8);
    set(QsciLexerHTML::JavaScriptSymbol, 5);
    set(QsciLexerHTML::JavaScriptDoubleQuotedString, 6);
    set(QsciLexerHTML::JavaScriptSingleQuotedString, 6);
}

} // namespace qly::documents::ui
