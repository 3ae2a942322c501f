#include "core/ui/Placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace qly::core::ui {

QRect keepInside(const QRect &window, const QRect &area)
{
    if (area.isEmpty())
        return window;
    QRect r(window.topLeft(), window.size().boundedTo(area.size()));
    r.moveLeft(std::clamp(r.left(), area.left(), area.right() - r.width() + 1));
    r.moveTop(std::clamp(r.top(), area.top(), area.bottom() - r.height() + 1));
    return r;
}

QRect besideWidget(const QSize &size, const QWidget *widget)
{
    const QRect anchor(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    const QScreen *screen = widget->screen() ? widget->screen() : QGuiApplication::primaryScreen();
    const QRect avail = screen ? screen->availableGeometry() : anchor;
    QRect r(QPoint(anchor.right() + 1, anchor.top()), size);
    if (r.right() > avail.right())
        r.moveRight(anchor.left() - 1);
    if (r.left() < avail.left())
        r.moveRight(anchor.right());
    return keepInside(r, avail);
}

bool onSomeScreen(const QRect &window)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&window](const QScreen *s) {
        const QRect common = s->availableGeometry().intersected(window);
        return common.width() * 2 >= window.width() && common.height() * 2 >= window.height();
    });
}

} // namespace qly::core::ui
