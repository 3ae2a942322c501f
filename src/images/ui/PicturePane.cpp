#include "images/ui/PicturePane.h"

#include <QMouseEvent>
#include <QPainter>

namespace qly::images::ui {

PicturePane::PicturePane(QWidget *parent)
    : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setMinimumSize(160, 120);
    setFrameShape(QFrame::StyledPanel);
}

void PicturePane::setImage(const QImage &image)
{
    m_image = image;
    if (image.isNull()) {
        setMinimumSize(160, 120);
        clear();
        return;
    }
    // The whole picture, scrolled when the pane is smaller.
    setMinimumSize(image.size());
    QPixmap shown(image.size());
    QPainter p(&shown);
    const int cell = 8;
    for (int y = 0; y < image.height(); y += cell)
        for (int x = 0; x < image.width(); x += cell)
            p.fillRect(x, y, cell, cell, ((x + y) / cell) % 2 ? QColor(0xcc, 0xcc, 0xcc) : Qt::white);
    p.drawImage(0, 0, image);
    p.end();
    setPixmap(shown);
}

void PicturePane::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (m_image.isNull())
        return;
    // The picture stands centred in the pane.
    const QPoint origin((width() - m_image.width()) / 2, (height() - m_image.height()) / 2);
    const QPoint pixel = event->position().toPoint() - origin;
    if (m_image.rect().contains(pixel))
        emit picked(pixel);
}

} // namespace qly::images::ui
