#include "core/ui/KeyboardLocks.h"

#if QLY_HAVE_XKB
#include <QGuiApplication>
// After Qt: the X11 headers define names (KeyPress, Bool ...) that Qt uses.
#include <X11/XKBlib.h>
#endif

namespace qly::core::ui {

std::optional<bool> numLockNow()
{
#if QLY_HAVE_XKB
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    Display *display = x11 ? x11->display() : nullptr;
    if (!display)
        return std::nullopt;
    Bool on = False;
    if (XkbGetNamedIndicator(display, XInternAtom(display, "Num Lock", False), nullptr, &on, nullptr, nullptr))
        return on != False;
#endif
    return std::nullopt;
}

} // namespace qly::core::ui
