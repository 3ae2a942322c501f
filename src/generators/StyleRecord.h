#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace qly::generators {

// One named style of the style library, field for field as a .qns file
// holds it. In text fields "[none]" or an empty text means "not set";
// numbers are 16-bit as in the file.
struct StyleRecord {
    // Head.
    QString StyleName, HTMLTag, ClassName, Description;

    // Text block.
    QString FontFamily, FontSize, FontSizeUnit, PseudoElement;
    qint16 LinkState = -1;   // -1 none, 0 Normal, 1 Visited, 2 Active
    qint16 Spare1 = 0;
    QString LineHeight, LineHeightUnit, TextIndent, TextIndentUnit;
    qint16 ColorR = -1, ColorG = -1, ColorB = -1;   // ColorR < 0: not set
    qint16 Spare2 = 0;
    QString TextAlign, TextCase, WhiteSpace, GenericFont;
    qint16 Bold = 0, Italic = 0, Underline = 0, Overline = 0, LineThrough = 0, Blink = 0;
    QString ListStyle, ListPosition, ListImage;
    QString LetterSpacing, LetterSpacingUnit, WordSpacing, WordSpacingUnit;

    // Box block.
    QString BoxSize[3], BoxSizeUnit[3];   // 0 width, 1 height, 2 unused
    qint16 BackR = -1, BackG = -1, BackB = -1;   // BackR < 0: not set
    qint16 Spare3 = 0;
    QString BackImage;
    qint16 BackRepeat = 0;   // 0 repeat, 1 no repeat, 2 horizontal, 3 vertical, 4 fixed
    qint16 Spare4 = 0;
    QString BackPos[3], BackPosUnit[3];   // 0 x, 1 y, 2 unused
    QString Unused;
    QString VerticalAlign;
    QString Margin[5], MarginUnit[5];     // the four sides in the editor's order; 4 unused
    QString Padding[5], PaddingUnit[5];
    QString BorderSize[5], BorderStyle[5];   // 0 left, 1 right, 2 top, 3 bottom; 4 unused
    QString FlowSide, FlowWrap, Clear;

    StyleRecord();   // a reset record

    // Calls `text(QString &)` and `number(qint16 &)` for every field in
    // the file's order.
    void visit(const std::function<void(QString &)> &text, const std::function<void(qint16 &)> &number);

    bool operator==(const StyleRecord &other) const;
};

// The fields' names in the file's order, arrays as "Margin(0)".
QStringList styleFieldNames();

// Not empty and not "[none]".
bool isSet(const QString &value);

// The value lists of the editor, in order.
QStringList styleUnits();            // "pt" first: the default
QStringList listStyles();
QStringList listPositions();
QStringList verticalAligns();
QStringList borderSizes();
QStringList borderStyles();
QStringList flowSides();
QStringList flowWraps();
QStringList clearValues();
QStringList textAligns();
QStringList textCases();
QStringList whiteSpaces();
QStringList pseudoElements();
QStringList genericFamilies();       // with their examples, as the editor labels them

} // namespace qly::generators
