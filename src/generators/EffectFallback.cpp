#include "generators/EffectFallback.h"

#include "generators/TextEffectsModel.h"

namespace qly::generators {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

struct Motion {
    const char *effect;
    const char *keyframes;   // the body of @keyframes
    const char *timing;      // duration, easing and repetition
};

const Motion kMotions[] = {
    {"Bouncing", "from{transform:translateY(0)}to{transform:translateY(-0.5em)}", "0.6s ease-in-out infinite alternate"},
    {"Jumping", "0%,100%{transform:translateY(0)}50%{transform:translateY(-0.6em)}", "0.8s ease-out infinite"},
    {"Whip", "from{transform:skewX(-20deg)}to{transform:skewX(20deg)}", "0.5s ease-in-out infinite alternate"},
    {"Scrolling", "from{transform:translateX(100%)}to{transform:translateX(-100%)}", "8s linear infinite"},
    {"Spread", "from{letter-spacing:0}to{letter-spacing:0.5em}", "1.5s ease-in-out infinite alternate"},
    {"Wave", "0%,100%{transform:translateY(0) rotate(0)}50%{transform:translateY(-0.4em) rotate(3deg)}",
     "1s ease-in-out infinite"},
    {"Spearmint", "from{opacity:0.3}to{opacity:1}", "1.2s ease-in-out infinite alternate"},
    {"Distemper", "from{text-shadow:0 0 0 #888888}to{text-shadow:3px 3px 4px #888888}",
     "0.8s ease-in-out infinite alternate"},
};

QString cssFont(const QString &name)
{
    const bool mono = name.contains(QLatin1String("Courier"), Qt::CaseInsensitive);
    const bool sans = name.contains(QLatin1String("Arial")) || name.contains(QLatin1String("Sans"));
    return u'\'' + name + QStringLiteral("',") + (mono ? QStringLiteral("monospace") : sans ? QStringLiteral("sans-serif")
                                                                                            : QStringLiteral("serif"));
}

// A length as CSS: a plain number counts pixels.
QString cssLength(const QString &value)
{
    bool number = false;
    value.trimmed().toInt(&number);
    return number ? value.trimmed() + QStringLiteral("px") : value.trimmed();
}

} // namespace

QString TextEffectFallback(const TextEffectsModel &m)
{
    const Motion *motion = &kMotions[0];
    for (const Motion &candidate : kMotions) {
        if (m.effect == QLatin1String(candidate.effect))
            motion = &candidate;
    }
    const QString name = QStringLiteral("qly-") + QString::fromLatin1(motion->effect).toLower();
    const bool plainColors = m.effect == QLatin1String("Spearmint") || m.effect == QLatin1String("Distemper");
    QString style = QStringLiteral("font:") + (m.bold ? QStringLiteral("bold ") : QString())
                    + (m.italic ? QStringLiteral("italic ") : QString()) + cssLength(m.fontSize) + u' '
                    + cssFont(m.fontName) + QStringLiteral(";color:#") + HexColor(m.foreground);
    if (!plainColors)
        style += QStringLiteral(";background:#") + HexColor(m.background);
    if (m.border || m.border3D)
        style += (m.border3D ? QStringLiteral(";border:3px outset #") : QStringLiteral(";border:1px solid #"))
                 + HexColor(m.borderColor);
    style += QStringLiteral(";overflow:hidden;white-space:nowrap;text-align:center;padding:0.5em 0");
    return QStringLiteral("<div style=\"") + style + QStringLiteral("\">") + kCrLf + QStringLiteral("<style>@keyframes ")
           + name + u'{' + QString::fromLatin1(motion->keyframes) + QStringLiteral("}</style>") + kCrLf
           + QStringLiteral("<span style=\"display:inline-block;animation:") + name + u' '
           + QString::fromLatin1(motion->timing) + QStringLiteral("\">") + m.text + QStringLiteral("</span>") + kCrLf
           + QStringLiteral("</div>") + kCrLf;
}

QString LedFallback(const QString &text, unsigned color, unsigned backColor)
{
    return QStringLiteral("<div style=\"width:600px;height:28px;overflow:hidden;white-space:nowrap;background:#")
           + HexColor(backColor) + QStringLiteral(";color:#") + HexColor(color)
           + QStringLiteral(";font:bold 20px/28px monospace\">") + kCrLf
           + QStringLiteral("<style>@keyframes qly-led{from{transform:translateX(600px)}to{transform:translateX(-100%)}}"
                            "</style>")
           + kCrLf + QStringLiteral("<span style=\"display:inline-block;animation:qly-led 10s linear infinite\">")
           + text + QStringLiteral("</span>") + kCrLf + QStringLiteral("</div>") + kCrLf;
}

QString HRuleFallback(const QString &width, const QString &height, unsigned color, bool border)
{
    return QStringLiteral("<div style=\"width:") + cssLength(width) + QStringLiteral(";height:") + cssLength(height)
           + QStringLiteral(";background:linear-gradient(90deg,#000000,#") + HexColor(color)
           + QStringLiteral(",#000000);background-size:200% 100%;animation:qly-hrule 2s linear infinite")
           + (border ? QStringLiteral(";border:1px solid #000000") : QString()) + QStringLiteral("\"></div>") + kCrLf
           + QStringLiteral("<style>@keyframes qly-hrule{from{background-position:0 0}to{background-position:200% 0}}"
                            "</style>")
           + kCrLf;
}

} // namespace qly::generators
