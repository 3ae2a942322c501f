#include "generators/JavaApplets.h"

#include "generators/EffectFallback.h"
#include "generators/TextEffectsModel.h"

#include <QStringList>

namespace qly::generators {

namespace {
const QString kCrLf = QStringLiteral("\r\n");
}

QString JavaHRuleText(const JavaHRuleFields &f, bool fallback)
{
    const QString width = f.width.isEmpty() ? QStringLiteral("100%") : f.width;
    QString out = QStringLiteral("<CENTER>") + kCrLf + QStringLiteral("<APPLET CODE=\"lfhrule.class\" WIDTH=") + width
                  + (f.height.isEmpty() ? QStringLiteral(" HEIGHT=\"6\">") : QStringLiteral(" HEIGHT=") + f.height + u'>')
                  + kCrLf + QStringLiteral("<PARAM NAME=\"density\" VALUE=\"250\">") + kCrLf
                  + QStringLiteral("<PARAM NAME=\"gradientsize\" VALUE=\"")
                  + (f.gradientSize.isEmpty() ? QStringLiteral("25") : f.gradientSize) + QStringLiteral("\">") + kCrLf
                  + QStringLiteral("<PARAM NAME=\"speed\" VALUE=\"30\">") + kCrLf
                  + QStringLiteral("<PARAM NAME=\"direction\" VALUE=\"1\">") + kCrLf
                  + QStringLiteral("<PARAM NAME=\"color\" VALUE=\"") + HexColor(f.color) + QStringLiteral("\">") + kCrLf
                  + (f.change.isEmpty() ? QStringLiteral("<PARAM NAME=\"change\" VALUE=\"50\">")
                                        : QStringLiteral("<PARAM NAME=\"change\" VALUE=") + f.change + u'>')
                  + kCrLf + QStringLiteral("<PARAM NAME=\"border\" VALUE=\"") + (f.border ? u'1' : u'0')
                  + QStringLiteral("\">") + kCrLf + QStringLiteral("<PARAM NAME=\"bordercolor\" VALUE=\"000000\">") + kCrLf;
    if (fallback)
        out += HRuleFallback(width, f.height.isEmpty() ? QStringLiteral("6") : f.height, f.color, f.border);
    return out + QStringLiteral("</APPLET>") + kCrLf + QStringLiteral("</CENTER>") + kCrLf;
}

QString JavaLEDText(const QString &caption, unsigned color, unsigned backColor, bool fallback)
{
    QString out = QStringLiteral("<center>") + kCrLf + QStringLiteral("<applet code=\"lfled.class\" width=600 height=28>")
                  + kCrLf + QStringLiteral("<param name=caption value=\"") + caption + QStringLiteral("\">") + kCrLf
                  + QStringLiteral("<param name=delay value=20>") + kCrLf + QStringLiteral("<param name=size value=3>")
                  + kCrLf + QStringLiteral("<param name=color value=") + HexColor(color) + u'>' + kCrLf
                  + QStringLiteral("<param name=backcolor value=") + HexColor(backColor) + u'>' + kCrLf;
    if (fallback)
        out += LedFallback(caption, color, backColor);
    return out + QStringLiteral("</applet>") + kCrLf + QStringLiteral("</center>") + kCrLf;
}

QString MarqueeText(const MarqueeFields &f)
{
    // Attribute order: delay, amount, loop, height, width, hspace, vspace.
    const struct { const char *name; int field; } order[] = {{" SCROLLDELAY=", 3}, {" SCROLLAMOUNT=", 4},
                                                             {" LOOP=", 5},        {" HEIGHT=", 0},
                                                             {" WIDTH=", 6},       {" HSPACE=", 1},
                                                             {" VSPACE=", 2}};
    QString out = QStringLiteral("<MARQUEE");
    for (const auto &o : order) {
        if (!f.fields[size_t(o.field)].isEmpty())
            out += QString::fromLatin1(o.name) + f.fields[size_t(o.field)];
    }
    const char *behaviors[] = {"SCROLL", "SLIDE", "ALTERNATE"};
    if (f.behavior >= 0 && f.behavior < 3)
        out += QStringLiteral(" BEHAVIOR=") + QString::fromLatin1(behaviors[f.behavior]);
    if (f.direction == 0 || f.direction == 1)
        out += QStringLiteral(" DIRECTION=") + (f.direction == 0 ? QStringLiteral("RIGHT") : QStringLiteral("LEFT"));
    if (!f.bgColor.isEmpty())
        out += QStringLiteral(" BGCOLOR=") + f.bgColor;
    if (!f.align.isEmpty())
        out += QStringLiteral(" ALIGN=") + f.align;
    return out + u'>' + f.text + QStringLiteral("</MARQUEE>");
}

QStringList MarqueeColorNames()
{
    return {QStringLiteral("Black"), QStringLiteral("Olive"), QStringLiteral("Teal"),   QStringLiteral("Red"),
            QStringLiteral("Blue"),  QStringLiteral("Maroon"), QStringLiteral("Navy"),  QStringLiteral("Gray"),
            QStringLiteral("Lime"),  QStringLiteral("Fuchsia"), QStringLiteral("White"), QStringLiteral("Green"),
            QStringLiteral("Purple"), QStringLiteral("Silver"), QStringLiteral("Yellow"), QStringLiteral("Aqua")};
}

} // namespace qly::generators
