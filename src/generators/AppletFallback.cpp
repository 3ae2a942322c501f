#include "generators/AppletFallback.h"

#include "core/Settings.h"

namespace qly::generators {

bool AppletFallbackOn()
{
    return core::ReadSettingFlag(QStringLiteral("Generators"), QStringLiteral("Applet Fallback"));
}

void SetAppletFallback(bool on)
{
    core::WriteSetting(QStringLiteral("Generators"), QStringLiteral("Applet Fallback"), core::YesNo(on));
}

} // namespace qly::generators
