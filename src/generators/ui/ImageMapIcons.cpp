#include "generators/ui/ImageMapIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace qly::generators::ui {

namespace {

QPixmap draw(int tool, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 16.0, size / 16.0);
    const QColor ink(0x2d, 0x38, 0x45), blue(0x3b, 0x82, 0xc4), red(0xd0, 0x4a, 0x3a);
    QPen pen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(pen);
    p.setBrush(QColor(blue.red(), blue.green(), blue.blue(), 90));
    switch (tool) {
    case 1: {
        QPainterPath arrow;
        arrow.moveTo(4, 2);
        arrow.lineTo(4, 13);
        arrow.lineTo(7, 10);
        arrow.lineTo(9.5, 14.5);
        arrow.lineTo(11, 13.5);
        arrow.lineTo(8.5, 9.5);
        arrow.lineTo(12.5, 9.5);
        arrow.closeSubpath();
        p.setBrush(Qt::white);
        p.drawPath(arrow);
        break;
    }
    case 2:
        p.drawRect(QRectF(2.5, 4, 11, 8));
        break;
    case 3:
        p.drawEllipse(QRectF(2.5, 2.5, 11, 11));
        break;
    case 4:
        p.drawPolygon(QPolygonF({QPointF(2.5, 6), QPointF(8, 2.5), QPointF(13.5, 5.5), QPointF(11.5, 13.5),
                                 QPointF(4, 12)}));
        break;
    default:
        p.setPen(QPen(red, 2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(4, 4), QPointF(12, 12));
        p.drawLine(QPointF(12, 4), QPointF(4, 12));
        break;
    }
    return pixmap;
}

} // namespace

QIcon regionToolIcon(int tool)
{
    QIcon icon;
    for (int size : {16, 24, 32, 48})
        icon.addPixmap(draw(tool, size));
    return icon;
}

} // namespace qly::generators::ui
