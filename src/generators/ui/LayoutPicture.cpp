#include "generators/ui/LayoutPicture.h"

#include <QPainter>
#include <QPixmap>

namespace qly::generators::ui {

QIcon LayoutPicture(const QList<QRectF> &frames)
{
    QIcon icon;
    // Drawn for ordinary and for doubled screens.
    for (const int scale : {1, 2}) {
        QPixmap picture(96 * scale, 72 * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(QColor(0xd8, 0xdd, 0xe3));
        QPainter p(&picture);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(QColor(0x2d, 0x38, 0x45), 1.5));
        p.setBrush(Qt::white);
        for (const QRectF &f : frames)
            p.drawRect(QRectF(2 + f.left() * 92, 2 + f.top() * 68, f.width() * 92, f.height() * 68).adjusted(1, 1, -1, -1));
        p.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace qly::generators::ui
