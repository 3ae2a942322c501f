#include "generators/TextEffectsModel.h"

#include "generators/AppletFallback.h"
#include "generators/EffectFallback.h"

namespace qly::generators {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

QString param(const QString &name, const QString &value)
{
    return QStringLiteral("<param name=\"") + name + QStringLiteral("\" value=\"") + value + QStringLiteral("\">")
           + kCrLf;
}

bool is(const QString &effect, const char *name)
{
    return effect == QLatin1String(name);
}

} // namespace

QString HexColor(unsigned rgb)
{
    return QStringLiteral("%1").arg(rgb & 0xFFFFFF, 6, 16, QLatin1Char('0')).toUpper();
}

TextEffectsModel::TextEffectsModel()
{
    const char *defaults[][2] = {
        {"txtStartpos", "0"},          {"txtHorizBounce", "10"},       {"txtVertBounce", "10"},
        {"txtVerticalJumpMan", "20"},  {"txtJumpstepJumpMan", "5"},    {"txtVerticalWavy", "20"},
        {"txtJumpHeightWavy", "10"},   {"txtHorizScroller", "10"},     {"txtSpreadDistSpread", "20"},
        {"txtJumpHeightMexWave", "10"}, {"txtVerticalMexWave", "30"},  {"txtShadow", "3"},
        {"txtDistemper", "5"}};
    for (const auto &d : defaults)
        fields.insert(QString::fromLatin1(d[0]), QString::fromLatin1(d[1]));
}

QStringList TextEffectsModel::effects()
{
    return {QStringLiteral("Bouncing"), QStringLiteral("Jumping"), QStringLiteral("Whip"),
            QStringLiteral("Scrolling"), QStringLiteral("Spread"), QStringLiteral("Wave"),
            QStringLiteral("Spearmint"), QStringLiteral("Distemper")};
}

QStringList TextEffectsModel::fontNames()
{
    return {QStringLiteral("Arial"), QStringLiteral("Courier New"), QStringLiteral("MS Sans Serif"),
            QStringLiteral("Times New Roman")};
}

QStringList TextEffectsModel::alignments()
{
    return {QStringLiteral("Left"),     QStringLiteral("Right"),     QStringLiteral("Top"),
            QStringLiteral("texttop"),  QStringLiteral("Middle"),    QStringLiteral("AbsMiddle"),
            QStringLiteral("BaseLine"), QStringLiteral("Bottom"),    QStringLiteral("AbsBottom")};
}

QString TextEffectsModel::className(const QString &effect)
{
    const char *classes[] = {"lfbounce.class", "lfjumper.class",  "qlytail.class",   "lfscroller.class",
                             "lfspread.class", "lfwave.class",    "spearmint.class", "lfdistemper.class"};
    const qsizetype i = effects().indexOf(effect);
    return i < 0 ? QString() : QString::fromLatin1(classes[i]);
}

QList<QPair<QString, QString>> TextEffectsModel::effectFields(const QString &e)
{
    using P = QPair<QString, QString>;
    auto p = [](const char *name, const char *caption) { return P(QString::fromLatin1(name), QString::fromLatin1(caption)); };
    if (is(e, "Bouncing"))
        return {p("txtStartpos", "Start position:"), p("txtHorizBounce", "Horizontal bounce:"),
                p("txtVertBounce", "Vertical bounce:")};
    if (is(e, "Jumping"))
        return {p("txtVerticalJumpMan", "Vertical:"), p("txtJumpstepJumpMan", "Jump step:")};
    if (is(e, "Whip"))
        return {p("txtVerticalWavy", "Vertical:"), p("txtJumpHeightWavy", "Jump height:")};
    if (is(e, "Scrolling"))
        return {p("txtHorizScroller", "Horizontal:")};
    if (is(e, "Spread"))
        return {p("txtSpreadDistSpread", "Spread distance:")};
    if (is(e, "Wave"))
        return {p("txtJumpHeightMexWave", "Jump height:"), p("txtVerticalMexWave", "Vertical:")};
    if (is(e, "Distemper"))
        return {p("txtShadow", "Shadow:"), p("txtDistemper", "Distemper:")};
    return {};
}

QString TextEffectsModel::GetAlignment() const
{
    return alignments().contains(alignment) ? alignment.toLower() : QStringLiteral("middle");
}

QString TextEffectsModel::GetStyleType() const
{
    if (bold && italic)
        return QStringLiteral("bolditalic");
    if (bold)
        return QStringLiteral("bold");
    return italic ? QStringLiteral("italic") : QStringLiteral("plain");
}

QString TextEffectsModel::params() const
{
    const QString s = speed;
    if (is(effect, "Bouncing"))
        return param(QStringLiteral("speed"), s) + param(QStringLiteral("startPosition"), field(QStringLiteral("txtStartpos")))
               + param(QStringLiteral("horizontal"), field(QStringLiteral("txtHorizBounce")))
               + param(QStringLiteral("vertical"), field(QStringLiteral("txtVertBounce")));
    if (is(effect, "Jumping"))
        return param(QStringLiteral("speed"), s)
               + param(QStringLiteral("vertical"), field(QStringLiteral("txtVerticalJumpMan")))
               + param(QStringLiteral("jumpstep"), field(QStringLiteral("txtJumpstepJumpMan")))
               + param(QStringLiteral("popcorn"), popcorn ? QStringLiteral("yes") : QStringLiteral("no"));
    if (is(effect, "Whip"))
        return param(QStringLiteral("speed"), s) + param(QStringLiteral("vertical"), field(QStringLiteral("txtVerticalWavy")))
               + param(QStringLiteral("jumpheight"), field(QStringLiteral("txtJumpHeightWavy")));
    if (is(effect, "Scrolling"))
        return param(QStringLiteral("speed"), s)
               + param(QStringLiteral("horizontal"), field(QStringLiteral("txtHorizScroller")));
    if (is(effect, "Spread"))
        return param(QStringLiteral("speed"), s)
               + param(QStringLiteral("spreadDist"), field(QStringLiteral("txtSpreadDistSpread")));
    if (is(effect, "Wave"))
        return param(QStringLiteral("speed"), s)
               + param(QStringLiteral("jumpheight"), field(QStringLiteral("txtJumpHeightMexWave")))
               + param(QStringLiteral("vertical"), field(QStringLiteral("txtVerticalMexWave")));
    if (is(effect, "Distemper"))
        return param(QStringLiteral("speed"), s) + param(QStringLiteral("shadow"), field(QStringLiteral("txtShadow")))
               + param(QStringLiteral("distemper"), field(QStringLiteral("txtDistemper")));
    if (is(effect, "Spearmint")) {
        // The speed as a number: leading zeros vanish.
        return param(QStringLiteral("speed"), QString::number(s.trimmed().toLongLong()))
               + QStringLiteral("<param name = \"border\" value = \"no\">") + kCrLf
               + QStringLiteral("<param name = \"inpdelay\" value = \"0\">") + kCrLf
               + QStringLiteral("<param name = \"bordercolor\" value = \"0\">") + kCrLf
               + QStringLiteral("<param name = \"borderstyle\" value = \"3d\">") + kCrLf
               + param(QStringLiteral("align"), spearmintAlign.isEmpty() ? QStringLiteral("center") : spearmintAlign)
               + param(QStringLiteral("spearmint"), spearmintEat ? QStringLiteral("eat") : QStringLiteral("none"))
               + param(QStringLiteral("fontgradient"), gradient ? QStringLiteral("wow") : QStringLiteral("solid"));
    }
    return {};
}

QString TextEffectsModel::textParams() const
{
    QString out;
    if (is(effect, "Spearmint") || is(effect, "Distemper")) {
        out = param(QStringLiteral("caption"), text);
        if (is(effect, "Spearmint"))
            out += param(QStringLiteral("maxfont"), fontSize)
                   + param(QStringLiteral("minfont"), minFont.isEmpty() ? fontSize : minFont);
    } else {
        out = param(QStringLiteral("fontsize"), fontSize);
        if (is(effect, "Scrolling"))
            out += QStringLiteral("<param name=\"line1\" value = \"") + text + QStringLiteral("\">") + kCrLf;
        else
            out += param(QStringLiteral("text"), text);
    }
    out += param(QStringLiteral("font"), fontName);
    if (is(effect, "Spearmint") || is(effect, "Distemper"))
        return out + param(QStringLiteral("color"), QString::number(foreground & 0xFFFFFF))
               + param(QStringLiteral("fontstyle"), QStringLiteral("plain"));
    return out + param(QStringLiteral("color"), HexColor(foreground)) + param(QStringLiteral("style"), GetStyleType())
           + param(QStringLiteral("background"), HexColor(background));
}

QString TextEffectsModel::CreateApplet()
{
    return CreateApplet(AppletFallbackOn());
}

QString TextEffectsModel::CreateApplet(bool fallback)
{
    if (text.isEmpty())
        text = QStringLiteral("Lumenfold Software");
    QString out = QStringLiteral("<applet code=\"") + className(effect) + QStringLiteral("\" width=") + width
                  + QStringLiteral(" height=") + height + QStringLiteral(" align = ") + GetAlignment()
                  + QStringLiteral(" alt = \"its stuffed\" ") + QStringLiteral(" vspace = ") + vertical
                  + QStringLiteral(" hspace = ") + horizontal + u'>' + kCrLf;
    out += textParams() + params();
    if (fallback)
        out += TextEffectFallback(*this);
    return out + QStringLiteral("</applet>") + kCrLf;
}

QString TextEffectsModel::previewPage(const QString &applet) const
{
    return QStringLiteral("<HTML>") + kCrLf + QStringLiteral("<HEAD>") + kCrLf
           + QStringLiteral("<TITLE> Text Effects Preview </TITLE>") + kCrLf + QStringLiteral("</HEAD>") + kCrLf
           + QStringLiteral("<BODY>") + kCrLf + applet + QStringLiteral("</BODY>") + kCrLf + QStringLiteral("</HTML>")
           + kCrLf;
}

} // namespace qly::generators
