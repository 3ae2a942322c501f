#include "generators/StyleText.h"

#include "generators/StyleLibrary.h"
#include "markup/Links.h"

#include <cmath>

namespace qly::generators {

namespace {

const QString CRLF = QStringLiteral("\r\n");

QString unitOf(const QString &unit)
{
    return isSet(unit) ? unit : QString();
}

QString quoted(const QString &name, const QString &value)
{
    return name + QStringLiteral(": \"") + value + QStringLiteral("\";") + CRLF;
}

QString hexColour(int r, int g, int b)
{
    return QStringLiteral("%1%2%3")
        .arg(r & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(g & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(b & 0xFF, 2, 16, QLatin1Char('0'))
        .toUpper();
}

QString wholeNumber(const QString &value)
{
    bool ok = false;
    const double d = value.trimmed().toDouble(&ok);
    return ok ? QString::number(qint64(std::nearbyint(d))) : value.trimmed();
}

QString cssVerticalAlign(const QString &value)
{
    static const QStringList css = {QString(), QStringLiteral("top"), QStringLiteral("text-top"),
                                    QStringLiteral("middle"), QStringLiteral("text-bottom"),
                                    QStringLiteral("bottom"), QStringLiteral("baseline"),
                                    QStringLiteral("sub"), QStringLiteral("super")};
    const qsizetype i = verticalAligns().indexOf(value);
    return i > 0 ? css.at(i) : value.toLower();
}

// "margin:" and "padding:": the four sides, an unset side as 0.
QString sides(const QString &name, const QString *values, const QString *units)
{
    bool any = false;
    for (int i = 0; i < 4; ++i)
        any = any || isSet(values[i]);
    if (!any)
        return {};
    QString s = name + QLatin1Char(':');
    for (int i = 0; i < 4; ++i)
        s += QLatin1Char(' ') + (isSet(values[i]) ? values[i] + unitOf(units[i]) : QStringLiteral("0"));
    return s + QLatin1Char(';') + CRLF;
}

} // namespace

QString TextProperties(const StyleRecord &r)
{
    QString s;
    if (isSet(r.FontFamily))
        s += quoted(QStringLiteral("font-family"), r.FontFamily);
    if (isSet(r.FontSize))
        s += quoted(QStringLiteral("font-size"), r.FontSize + unitOf(r.FontSizeUnit));
    if (r.ColorR >= 0)
        s += quoted(QStringLiteral("color"), QLatin1Char('#') + hexColour(r.ColorR, r.ColorG, r.ColorB));
    if (isSet(r.LineHeight))
        s += quoted(QStringLiteral("line-height"), r.LineHeight + unitOf(r.LineHeightUnit));
    if (isSet(r.TextIndent))
        s += quoted(QStringLiteral("text-indent"), r.TextIndent + unitOf(r.TextIndentUnit));
    if (isSet(r.TextAlign))
        s += quoted(QStringLiteral("text-align"), r.TextAlign);
    if (!r.TextCase.isEmpty() && r.TextCase != QLatin1String("None") && isSet(r.TextCase))
        s += quoted(QStringLiteral("text-transform"), r.TextCase);
    if (!r.WhiteSpace.isEmpty() && r.WhiteSpace != QLatin1String("Normal") && isSet(r.WhiteSpace))
        s += quoted(QStringLiteral("white-space"), r.WhiteSpace);
    if (r.Bold)
        s += quoted(QStringLiteral("font-weight"), QStringLiteral("bold"));
    if (r.Italic)
        s += quoted(QStringLiteral("font-style"), QStringLiteral("italic"));
    const std::pair<qint16, const char *> decorations[] = {
        {r.Underline, "underline"}, {r.Overline, "overline"}, {r.LineThrough, "line-through"}, {r.Blink, "blink"}};
    for (const auto &[on, word] : decorations) {
        if (on)
            s += quoted(QStringLiteral("text-decoration"), QString::fromLatin1(word));
    }
    if (isSet(r.ListStyle) || isSet(r.ListPosition) || isSet(r.ListImage)) {
        static const QStringList keywords = {
            QStringLiteral("none"),         QStringLiteral("disc "),        QStringLiteral("circle "),
            QStringLiteral("square "),      QStringLiteral("decimal "),     QStringLiteral("lower-roman "),
            QStringLiteral("upper-roman "), QStringLiteral("lower-alpha "), QStringLiteral("upper-alpha ")};
        const qsizetype i = listStyles().indexOf(r.ListStyle);
        QString value = i >= 0 ? keywords.at(i) : QString();
        if (isSet(r.ListPosition))
            value += r.ListPosition + QLatin1Char(' ');
        if (isSet(r.ListImage))
            value += QStringLiteral("url(") + r.ListImage + QLatin1Char(')');
        s += quoted(QStringLiteral("list-style"), value);
    }
    if (isSet(r.LetterSpacing))
        s += quoted(QStringLiteral("letter-spacing"), r.LetterSpacing + unitOf(r.LetterSpacingUnit));
    if (isSet(r.WordSpacing))
        s += quoted(QStringLiteral("word-spacing"), r.WordSpacing + unitOf(r.WordSpacingUnit));
    return s;
}

QString BoxProperties(const StyleRecord &r, const LinkFunction &link)
{
    QString s;
    if (isSet(r.BoxSize[0]))
        s += quoted(QStringLiteral("width"), r.BoxSize[0] + unitOf(r.BoxSizeUnit[0]));
    if (isSet(r.BoxSize[1]))
        s += quoted(QStringLiteral("height"), r.BoxSize[1] + unitOf(r.BoxSizeUnit[1]));
    if (isSet(r.BackImage) || r.BackR >= 0) {
        QString value;
        if (isSet(r.BackImage)) {
            const QString ref = link ? link(r.BackImage) : markup::RelativeLink(r.BackImage);
            value += QStringLiteral("url(") + (ref.isEmpty() ? r.BackImage : ref) + QStringLiteral(") ");
        }
        static const char *repeats[] = {"", "no-repeat ", "repeat-x ", "repeat-y ", "fixed "};
        if (r.BackRepeat >= 1 && r.BackRepeat <= 4)
            value += QString::fromLatin1(repeats[r.BackRepeat]);
        for (int i = 0; i < 2; ++i) {
            if (isSet(r.BackPos[i]))
                value += wholeNumber(r.BackPos[i]) + unitOf(r.BackPosUnit[i]) + QLatin1Char(' ');
        }
        if (r.BackR >= 0)
            value += QLatin1Char('#') + hexColour(r.BackR, r.BackG, r.BackB);
        s += QStringLiteral("background: ") + value.trimmed() + QLatin1Char(';') + CRLF;
    }
    if (isSet(r.VerticalAlign))
        s += quoted(QStringLiteral("vertical-align"), cssVerticalAlign(r.VerticalAlign));
    s += sides(QStringLiteral("margin"), r.Margin, r.MarginUnit);
    s += sides(QStringLiteral("padding"), r.Padding, r.PaddingUnit);
    static const char *borders[] = {"border-left:", "border-right:", "border-top:", "border-bottom:"};
    for (int i = 0; i < 4; ++i) {
        if (!isSet(r.BorderSize[i]) && !isSet(r.BorderStyle[i]))
            continue;
        s += QString::fromLatin1(borders[i]);
        if (isSet(r.BorderSize[i]))
            s += QLatin1Char(' ') + r.BorderSize[i];
        if (isSet(r.BorderStyle[i]))
            s += QLatin1Char(' ')
                 + (r.BorderStyle[i] == QLatin1String("No Border") ? QStringLiteral("none") : r.BorderStyle[i]);
        s += QLatin1Char(';') + CRLF;
    }
    if (isSet(r.FlowSide) && r.FlowSide != QLatin1String("None")) {
        s += QStringLiteral("float: ") + r.FlowSide;
        if (isSet(r.FlowWrap) && r.FlowWrap != QLatin1String("None"))
            s += QLatin1Char(' ') + r.FlowWrap;
        s += QLatin1Char(';') + CRLF;
    }
    if (isSet(r.Clear))
        s += quoted(QStringLiteral("clear"), r.Clear);
    return s;
}

QString StyleText(const QString &name, const StyleRecord &r, const LinkFunction &link)
{
    const QString body = TextProperties(r) + BoxProperties(r, link);
    QString s = QStringLiteral("/* Quillery Style Name=\"") + name + QStringLiteral("\" */") + CRLF;
    QString selector = isSet(r.HTMLTag) ? r.HTMLTag : QString();
    if (isSet(r.ClassName))
        selector += QLatin1Char('.') + r.ClassName;
    const bool pseudo = isSet(r.PseudoElement);
    const bool linkState = r.LinkState >= 0 && r.LinkState <= 2;
    const QString rule = QStringLiteral(" {") + CRLF + body + QLatin1Char('}') + CRLF;
    if (!pseudo && !linkState)
        s += selector + rule;
    if (pseudo)
        s += selector + QLatin1Char(':')
             + (r.PseudoElement == QLatin1String("First Line") ? QStringLiteral("first-line")
                                                                : QStringLiteral("first-letter"))
             + rule;
    if (linkState) {
        static const char *states[] = {"Normal", "Visited", "Active"};
        s += selector + QLatin1Char(':') + QString::fromLatin1(states[r.LinkState]) + rule;
    }
    return s;
}

QString StyleText(const QString &name, const StyleLibrary &library, const LinkFunction &link)
{
    return StyleText(name, StyleFromList(name, library), link);
}

} // namespace qly::generators
