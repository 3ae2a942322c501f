#include "images/ui/FrameStrip.h"

#include <QApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace qly::images::ui {

namespace {

const QSize kThumb(96, 72);

QIcon thumbnail(const QString &file)
{
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    QPixmap cell(kThumb);
    cell.fill(Qt::white);
    if (!image.isNull()) {
        if (image.width() > kThumb.width() || image.height() > kThumb.height())
            image = image.scaled(kThumb, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter p(&cell);
        p.drawImage((kThumb.width() - image.width()) / 2, (kThumb.height() - image.height()) / 2, image);
    }
    return QIcon(cell);
}

} // namespace

FrameStrip::FrameStrip(QWidget *parent)
    : QListWidget(parent)
{
    setViewMode(QListView::IconMode);
    setFlow(QListView::LeftToRight);
    setWrapping(false);
    setMovement(QListView::Static);
    setDragEnabled(false);
    setIconSize(kThumb);
    setSpacing(4);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFixedHeight(kThumb.height() + 64);
    setToolTip(QStringLiteral("Drag a frame to its new place, or onto the waste bin to delete it"));
}

void FrameStrip::setFrames(const QStringList &files)
{
    clear();
    for (int i = 0; i < files.size(); ++i) {
        auto *item = new QListWidgetItem(thumbnail(files[i]),
                                         QString::number(i + 1) + QStringLiteral(". ") + QFileInfo(files[i]).fileName(), this);
        item->setToolTip(files[i]);
        item->setSizeHint(QSize(kThumb.width() + 24, kThumb.height() + 28));
    }
}

void FrameStrip::mousePressEvent(QMouseEvent *event)
{
    QListWidget::mousePressEvent(event);
    QListWidgetItem *item = itemAt(event->position().toPoint());
    m_pressedRow = event->button() == Qt::LeftButton && item ? row(item) : -1;
    m_pressedAt = event->position().toPoint();
    m_dragging = false;
}

void FrameStrip::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pressedRow < 0 || !(event->buttons() & Qt::LeftButton))
        return QListWidget::mouseMoveEvent(event);
    if (!m_dragging
        && (event->position().toPoint() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance()) {
        m_dragging = true;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
}

void FrameStrip::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    const int from = m_pressedRow;
    const bool dragged = m_dragging;
    m_pressedRow = -1;
    m_dragging = false;
    viewport()->unsetCursor();
    if (!dragged || from < 0)
        return;
    const QPointF global = event->globalPosition();
    if (m_trash && m_trash->rect().contains(m_trash->mapFromGlobal(global).toPoint())) {
        emit frameDeleted(from);
        return;
    }
    QListWidgetItem *over = itemAt(event->position().toPoint());
    if (!rect().contains(event->position().toPoint()))
        return;
    const int to = over ? row(over) : count() - 1;
    if (to != from)
        emit frameMoved(from, to);
}

} // namespace qly::images::ui
