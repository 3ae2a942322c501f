#include "core/ui/Twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <cmath>

namespace qly::core::ui {

double twipsPerPixel(const QWidget *widget)
{
    double dpi = 96.0;
    if (widget)
        dpi = widget->logicalDpiX();
    else if (const QScreen *screen = QGuiApplication::primaryScreen())
        dpi = screen->logicalDotsPerInchX();
    return dpi > 0 ? 1440.0 / dpi : 15.0;
}

int toTwips(int pixels, const QWidget *widget)
{
    return int(std::lround(pixels * twipsPerPixel(widget)));
}

int fromTwips(int twips, const QWidget *widget)
{
    return int(std::lround(twips / twipsPerPixel(widget)));
}

QRect toTwips(const QRect &p, const QWidget *widget)
{
    return QRect(toTwips(p.x(), widget), toTwips(p.y(), widget), toTwips(p.width(), widget),
                 toTwips(p.height(), widget));
}

QRect fromTwips(const QRect &t, const QWidget *widget)
{
    return QRect(fromTwips(t.x(), widget), fromTwips(t.y(), widget), fromTwips(t.width(), widget),
                 fromTwips(t.height(), widget));
}

} // namespace qly::core::ui
