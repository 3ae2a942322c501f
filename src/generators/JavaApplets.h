#pragma once

#include <QString>
#include <array>

namespace qly::generators {

// The Java horizontal rule: empty fields take their defaults (width 100%,
// height "6", gradient size "25", change "50").
struct JavaHRuleFields {
    QString width;
    QString height;
    QString gradientSize;
    QString change;
    unsigned color = 0x0000FF;
    bool border = false;
};
QString JavaHRuleText(const JavaHRuleFields &f, bool fallback);

// The LED sign with its caption, text colour and background colour.
QString JavaLEDText(const QString &caption, unsigned color, unsigned backColor, bool fallback);

// The <MARQUEE> of the marquee dialog. `fields` are the seven text boxes
// (1 height, 2 hspace, 3 vspace, 4 scroll delay, 5 scroll amount, 6 loop,
// 7 width) at 0 to 6; each list index is -1 for no choice.
struct MarqueeFields {
    std::array<QString, 7> fields;
    int behavior = -1;   // "Scroll Right Through", "Scroll And Stick", "Bounce Off Edges"
    int direction = -1;  // "Left to Right", "Right to Left"
    QString bgColor;     // a colour name or "#" and six digits
    QString align;       // "Top", "Middle", "Bottom"
    QString text;
};
QString MarqueeText(const MarqueeFields &f);
QStringList MarqueeColorNames();

} // namespace qly::generators
