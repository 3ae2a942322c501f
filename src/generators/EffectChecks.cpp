#include "generators/EffectChecks.h"

#include "generators/TextEffectsModel.h"
#include "platform/Prompts.h"

namespace qly::generators {

namespace {

bool inRange(const QString &value, NumberRange range)
{
    bool ok = false;
    const int n = value.trimmed().toInt(&ok);
    return ok && n >= range.low && n <= range.high;
}

} // namespace

QString FormattedNumber(long long n)
{
    return n < 0 ? QString::number(n) : u' ' + QString::number(n);
}

NumberRange EffectFieldRange(const QString &name)
{
    if (name == QLatin1String("txtSpeed"))
        return {0, 1000};
    if (name == QLatin1String("txtappletwidth") || name == QLatin1String("txtappletHeight"))
        return {1, 2000};
    if (name == QLatin1String("txtappletHorizontal") || name == QLatin1String("txtappletVertical"))
        return {0, 500};
    if (name == QLatin1String("txtMinFont"))
        return kFontSizes;
    return {0, 200};
}

bool ValidNumericInput(const QString &value, NumberRange range)
{
    if (inRange(value, range))
        return true;
    platform::MsgBox(QStringLiteral("Enter a Number between") + FormattedNumber(range.low) + QStringLiteral(" and ")
                         + FormattedNumber(range.high),
                     platform::Buttons::Ok, platform::Icon::Exclamation,
                     QStringLiteral("Warning Invalid Input Entered"));
    return false;
}

bool ValidFontName(const QString &name)
{
    if (TextEffectsModel::fontNames().contains(name))
        return true;
    platform::MsgBox(QStringLiteral("Enter a correct Font type"), platform::Buttons::Ok, platform::Icon::Exclamation,
                     QStringLiteral("Warning Invalid Font Type Entered"));
    return false;
}

bool ValidFontSize(const QString &size)
{
    if (inRange(size, kFontSizes))
        return true;
    platform::MsgBox(QStringLiteral("Enter a Fontsize between") + FormattedNumber(kFontSizes.low)
                         + QStringLiteral(" and ") + FormattedNumber(kFontSizes.high),
                     platform::Buttons::Ok, platform::Icon::Exclamation,
                     QStringLiteral("Warning Invalid Font Size Entered"));
    return false;
}

} // namespace qly::generators
