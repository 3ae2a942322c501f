#include "generators/ui/FrameScreen.h"

#include <QMouseEvent>
#include <QPainter>

namespace qly::generators::ui {

FrameScreen::FrameScreen(FrameModel &model, QWidget *parent) : QWidget(parent), m_model(model)
{
    setObjectName(QStringLiteral("FrmScreen"));
    setMouseTracking(true);
    setMinimumSize(240, 180);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QRectF FrameScreen::screenRect() const
{
    // The screen keeps its proportions inside the widget.
    const QRectF area = QRectF(rect()).adjusted(4, 4, -4, -4);
    const qreal scale = std::min(area.width() / FrameModel::ScreenWidth, area.height() / FrameModel::ScreenHeight);
    const QSizeF size(FrameModel::ScreenWidth * scale, FrameModel::ScreenHeight * scale);
    return QRectF(area.center() - QPointF(size.width() / 2, size.height() / 2), size);
}

QPointF FrameScreen::toTwips(const QPointF &point) const
{
    const QRectF s = screenRect();
    return {(point.x() - s.left()) * FrameModel::ScreenWidth / s.width(),
            (point.y() - s.top()) * FrameModel::ScreenHeight / s.height()};
}

QPointF FrameScreen::toWidget(const QPointF &twips) const
{
    const QRectF s = screenRect();
    return {s.left() + twips.x() * s.width() / FrameModel::ScreenWidth,
            s.top() + twips.y() * s.height() / FrameModel::ScreenHeight};
}

int FrameScreen::frameAt(const QPointF &point) const
{
    const QPointF t = toTwips(point);
    for (int i = m_model.LastFrame(); i >= 0; --i) {
        const FrameModel::Rect &r = m_model.frame(i).rect;
        if (t.x() >= r.left && t.x() < r.right() && t.y() >= r.top && t.y() < r.bottom())
            return i;
    }
    return -1;
}

void FrameScreen::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF s = screenRect();
    p.fillRect(rect(), palette().window());
    p.fillRect(s, QColor(0xd8, 0xdd, 0xe3));
    const QColor ink(0x2d, 0x38, 0x45);
    const QColor blue(0x3b, 0x7d, 0xd8);
    for (int i = 0; i <= m_model.LastFrame(); ++i) {
        const FrameModel::Frame &f = m_model.frame(i);
        const QRectF box(toWidget({f.rect.left, f.rect.top}), toWidget({f.rect.right(), f.rect.bottom()}));
        const bool selected = i == m_model.CurrentFrame();
        p.setPen(QPen(selected ? blue : ink, selected ? 2.5 : 1.0));
        p.setBrush(selected ? QColor(0xe6, 0xf0, 0xfc) : QColor(Qt::white));
        p.drawRect(box.adjusted(1.5, 1.5, -1.5, -1.5));
        p.setPen(ink);
        QString text = QStringLiteral("Frame %1").arg(i + 1);
        if (!f.name.trimmed().isEmpty())
            text += QStringLiteral("\n") + f.name;
        if (!f.source.trimmed().isEmpty())
            text += QStringLiteral("\n") + f.source;
        text += QStringLiteral("\n%1% x %2%").arg(m_model.widthPercent(i)).arg(m_model.heightPercent(i));
        p.drawText(box.adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap, text);
    }
}

void FrameScreen::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int index = frameAt(event->position());
    if (index < 0)
        return;
    m_model.select(index);
    const QPointF t = toTwips(event->position());
    const FrameModel::Rect &r = m_model.frame(index).rect;
    m_dragEdges = m_model.Which_Edge(float(t.x() - r.left), float(t.y() - r.top));
    m_dragFrom = t;
    emit frameSelected(index);
    update();
}

void FrameScreen::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF t = toTwips(event->position());
    if (!(event->buttons() & Qt::LeftButton) || m_dragEdges == FrameModel::NoEdge) {
        // The pointer shows which edge a press would take.
        const int index = frameAt(event->position());
        int edges = FrameModel::NoEdge;
        if (index == m_model.CurrentFrame()) {
            const FrameModel::Rect &r = m_model.frame(index).rect;
            edges = m_model.Which_Edge(float(t.x() - r.left), float(t.y() - r.top));
        }
        setCursor(shapeFor(edges));
        return;
    }
    const QPointF delta = t - m_dragFrom;
    const FrameModel::Rect before = m_model.frame(m_model.CurrentFrame()).rect;
    m_model.moveEdges(m_dragEdges, float(delta.x()), float(delta.y()));
    const FrameModel::Rect after = m_model.frame(m_model.CurrentFrame()).rect;
    // The pointer's position is kept only as far as the edges followed it.
    m_dragFrom += QPointF((m_dragEdges & FrameModel::LeftEdge) ? after.left - before.left
                          : (m_dragEdges & FrameModel::RightEdge) ? after.right() - before.right() : 0,
                          (m_dragEdges & FrameModel::TopEdge) ? after.top - before.top
                          : (m_dragEdges & FrameModel::BottomEdge) ? after.bottom() - before.bottom() : 0);
    emit layoutChanged();
    update();
}

void FrameScreen::mouseReleaseEvent(QMouseEvent *)
{
    m_dragEdges = FrameModel::NoEdge;
    unsetCursor();
}

Qt::CursorShape FrameScreen::shapeFor(int edges) const
{
    const bool across = edges & (FrameModel::LeftEdge | FrameModel::RightEdge);
    const bool up = edges & (FrameModel::TopEdge | FrameModel::BottomEdge);
    if (across && up)
        return ((edges & FrameModel::LeftEdge) != 0) == ((edges & FrameModel::TopEdge) != 0) ? Qt::SizeFDiagCursor
                                                                                             : Qt::SizeBDiagCursor;
    return across ? Qt::SizeHorCursor : up ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

} // namespace qly::generators::ui
