#include "documents/ui/EditColors.h"

#include "documents/HtmlLexer.h"
#include "documents/ui/HtmlColouring.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

namespace qly::documents::ui {

namespace {

QColor slotColor(const platform::ColorTable &colors, int slot)
{
    const int v = colors[size_t(slot)];
    if (v < 0)
        return defaultSlotColor(slot);
    // Stored as red + 256 * green + 65536 * blue.
    return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF);
}

} // namespace

QColor defaultSlotColor(int slot)
{
    switch (slot) {
    case 0: return QColor(0x2f, 0x7f, 0xd0);   // tags: blue
    case 1: return QColor(0xa0, 0x50, 0xc4);   // attributes: violet
    case 2: return QColor(0xd2, 0x69, 0x1e);   // unfinished values: orange
    case 3: return QColor(0x2e, 0x96, 0x5a);   // values: green
    case 5: return QColor(0x1e, 0x96, 0xa6);   // methods: teal
    case 6: return QColor(0x9a, 0x86, 0x2a);   // properties: olive
    case 7: return QColor(0x6a, 0x5a, 0xdd);   // statements: slate blue
    case 8: return QColor(0xbb, 0x7a, 0x12);   // objects: amber
    case 11: return QColor(0xe0, 0x30, 0x3a);  // errors: red
    default: return QApplication::palette().color(QPalette::Text);
    }
}

void applyEditColors(HtmlColouring &lexer, const platform::ColorTable &colors, bool entireTags, const QFont &font)
{
    namespace S = HtmlStyle;
    const int tag = 0;
    const int text = 4;
    const int slotOf[S::Count] = {
        text,                        // Text
        tag,                         // Tag
        entireTags ? tag : 1,        // Attribute
        entireTags ? tag : 3,        // Value
        entireTags ? tag : 2,        // Unfinished
        entireTags ? tag : 11,       // ErrorTag
        10,                          // Comment
        9,                           // ScriptText
        entireTags ? text : 7,       // Statement
        entireTags ? text : 8,       // Object
        entireTags ? text : 5,       // Method
        entireTags ? text : 6,       // Property
        entireTags ? text : 3,       // ScriptString
        10,                          // ScriptComment
        text,                        // StyleText
        tag,                         // Declaration
    };
    const QColor paper = QApplication::palette().color(QPalette::Base);
    QFont italic = font;
    italic.setItalic(true);
    lexer.setDefaultPaper(paper);
    lexer.setDefaultColor(slotColor(colors, text));
    lexer.setPaper(paper, -1);
    for (int style = 0; style < S::Count; ++style) {
        lexer.setColor(slotColor(colors, slotOf[style]), style);
        const bool comment = style == S::Comment || style == S::ScriptComment;
        lexer.setFont(comment ? italic : font, style);
    }
}

} // namespace qly::documents::ui
