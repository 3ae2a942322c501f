#include "generators/StyleRecord.h"

namespace qly::generators {

namespace {
QStringList list(std::initializer_list<const char *> items)
{
    QStringList out;
    for (const char *item : items)
        out << QString::fromLatin1(item);
    return out;
}
} // namespace

void StyleRecord::visit(const std::function<void(QString &)> &text, const std::function<void(qint16 &)> &number)
{
    for (QString *s : {&StyleName, &HTMLTag, &ClassName, &Description, &FontFamily, &FontSize, &FontSizeUnit,
                       &PseudoElement})
        text(*s);
    number(LinkState);
    number(Spare1);
    for (QString *s : {&LineHeight, &LineHeightUnit, &TextIndent, &TextIndentUnit})
        text(*s);
    for (qint16 *n : {&ColorR, &ColorG, &ColorB, &Spare2})
        number(*n);
    for (QString *s : {&TextAlign, &TextCase, &WhiteSpace, &GenericFont})
        text(*s);
    for (qint16 *n : {&Bold, &Italic, &Underline, &Overline, &LineThrough, &Blink})
        number(*n);
    for (QString *s : {&ListStyle, &ListPosition, &ListImage, &LetterSpacing, &LetterSpacingUnit, &WordSpacing,
                       &WordSpacingUnit})
        text(*s);
    for (QString &s : BoxSize)
        text(s);
    for (QString &s : BoxSizeUnit)
        text(s);
    for (qint16 *n : {&BackR, &BackG, &BackB, &Spare3})
        number(*n);
    text(BackImage);
    number(BackRepeat);
    number(Spare4);
    for (QString &s : BackPos)
        text(s);
    for (QString &s : BackPosUnit)
        text(s);
    text(Unused);
    text(VerticalAlign);
    for (QString *array : {Margin, MarginUnit, Padding, PaddingUnit, BorderSize, BorderStyle})
        for (int i = 0; i < 5; ++i)
            text(array[i]);
    for (QString *s : {&FlowSide, &FlowWrap, &Clear})
        text(*s);
}

StyleRecord::StyleRecord()
{
    const QString none = QStringLiteral("[none]");
    visit([&none](QString &s) { s = none; }, [](qint16 &) {});
    TextCase = FlowSide = FlowWrap = QStringLiteral("None");
    WhiteSpace = QStringLiteral("Normal");
}

bool StyleRecord::operator==(const StyleRecord &other) const
{
    QStringList mine, theirs;
    QList<qint16> myNumbers, theirNumbers;
    const_cast<StyleRecord *>(this)->visit([&](QString &s) { mine << s; }, [&](qint16 &n) { myNumbers << n; });
    const_cast<StyleRecord &>(other).visit([&](QString &s) { theirs << s; },
                                           [&](qint16 &n) { theirNumbers << n; });
    return mine == theirs && myNumbers == theirNumbers;
}

QStringList styleFieldNames()
{
    QStringList names = list({"StyleName", "HTMLTag", "ClassName", "Description", "FontFamily", "FontSize",
                              "FontSizeUnit", "PseudoElement", "LinkState", "Spare1", "LineHeight",
                              "LineHeightUnit", "TextIndent", "TextIndentUnit", "ColorR", "ColorG", "ColorB",
                              "Spare2", "TextAlign", "TextCase", "WhiteSpace", "GenericFont", "Bold", "Italic",
                              "Underline", "Overline", "LineThrough", "Blink", "ListStyle", "ListPosition",
                              "ListImage", "LetterSpacing", "LetterSpacingUnit", "WordSpacing",
                              "WordSpacingUnit"});
    auto array = [&names](const char *name, int count) {
        for (int i = 0; i < count; ++i)
            names << QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i);
    };
    array("BoxSize", 3);
    array("BoxSizeUnit", 3);
    names << list({"BackR", "BackG", "BackB", "Spare3", "BackImage", "BackRepeat", "Spare4"});
    array("BackPos", 3);
    array("BackPosUnit", 3);
    names << list({"Unused", "VerticalAlign"});
    for (const char *name : {"Margin", "MarginUnit", "Padding", "PaddingUnit", "BorderSize", "BorderStyle"})
        array(name, 5);
    names << list({"FlowSide", "FlowWrap", "Clear"});
    return names;
}

bool isSet(const QString &value)
{
    return !value.isEmpty() && value != QLatin1String("[none]");
}

QStringList styleUnits() { return list({"pt", "px", "in", "cm", "mm", "pc", "%"}); }
QStringList listStyles()
{
    return list({"No Bullet", "Disc", "Circle", "Square", "Decimal", "LowerRoman", "UpperRoman", "LowerAlpha",
                 "UpperAlpha"});
}
QStringList listPositions() { return list({"[none]", "Inside", "Outside"}); }
QStringList verticalAligns()
{
    return list({"[none]", "Top", "TextTop", "Middle", "TextBottom", "Bottom", "Baseline", "SubScript",
                 "SuperScript"});
}
QStringList borderSizes() { return list({"[none]", "Thin", "Medium", "Thick"}); }
QStringList borderStyles()
{
    return list({"[none]", "No Border", "Dotted", "Dashed", "Solid", "Double", "Groove", "Ridge", "Inset", "Outset"});
}
QStringList flowSides() { return list({"None", "Left", "Right"}); }
QStringList flowWraps() { return list({"[none]", "Box", "Contour"}); }
QStringList clearValues() { return list({"None", "Left", "Right", "Both"}); }
QStringList textAligns() { return list({"[none]", "Left", "Right", "Center", "Justify"}); }
QStringList textCases() { return list({"None", "Capitalize", "UpperCase", "LowerCase"}); }
QStringList whiteSpaces() { return list({"Normal", "Pre", "NoWrap"}); }
QStringList pseudoElements() { return list({"[none]", "First Letter", "First Line"}); }
QStringList genericFamilies()
{
    return list({"cursive (e.g. Zapf-Chancery) ", "fantasy (e.g. Western) ", "serif (e.g. Times) ",
                 "sans-serif (e.g. Helvetica) ", "monospace (e.g. Courier) "});
}

} // namespace qly::generators
