#include "generators/ui/ImageMapCanvas.h"

#include "core/Feedback.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace qly::generators::ui {

namespace {
constexpr double kHandle = 5.0;   // half the side of a resize handle, pixels on screen
}

ImageMapCanvas::ImageMapCanvas(ImageMapModel &model, QWidget *parent)
    : QWidget(parent), m_model(model)
{
    setObjectName(QStringLiteral("picMapImg"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::ArrowCursor);
}

void ImageMapCanvas::setImage(const QImage &image)
{
    m_image = image;
    m_draft.cancel();
    m_current = -1;
    setFixedSize(sizeHint());
    update();
}

void ImageMapCanvas::setZoom(double zoom)
{
    m_zoom = std::clamp(zoom, 0.25, 8.0);
    setFixedSize(sizeHint());
    update();
}

QSize ImageMapCanvas::sizeHint() const
{
    const QSize s = m_image.isNull() ? QSize(320, 240) : m_image.size();
    return QSize(int(std::ceil(s.width() * m_zoom)), int(std::ceil(s.height() * m_zoom)));
}

void ImageMapCanvas::setTool(Tool tool)
{
    if (m_draft.active())
        return;
    m_tool = tool;
    setCursor(tool == Select ? Qt::ArrowCursor : Qt::CrossCursor);
}

void ImageMapCanvas::setColours(const QColor &standard, const QColor &selected)
{
    m_standard = standard;
    m_selected = selected;
    update();
}

void ImageMapCanvas::setCurrentRegion(int number)
{
    m_current = number >= 1 && number <= m_model.RegionCount() ? number : -1;
    update();
    emit currentChanged(m_current);
}

QPoint ImageMapCanvas::toTwips(const QPointF &pos) const
{
    const double tpp = m_model.twipsPerPixel();
    const QSize picture = m_image.isNull() ? QSize(320, 240) : m_image.size();
    const double x = std::clamp(pos.x() / m_zoom, 0.0, double(picture.width()));
    const double y = std::clamp(pos.y() / m_zoom, 0.0, double(picture.height()));
    return QPoint(int(std::lround(std::floor(x) * tpp)), int(std::lround(std::floor(y) * tpp)));
}

QPointF ImageMapCanvas::toWidget(const QPoint &twips) const
{
    const double f = m_zoom / m_model.twipsPerPixel();
    return QPointF(twips.x() * f, twips.y() * f);
}

void ImageMapCanvas::paintRegion(QPainter &p, const MapRegion &r, const QColor &colour) const
{
    QPen pen(colour, 2);
    pen.setCosmetic(true);
    p.setPen(pen);
    QColor fill = colour;
    fill.setAlpha(48);
    p.setBrush(fill);
    const QRectF box(toWidget(QPoint(r.left, r.top)), toWidget(QPoint(r.left + r.width, r.top + r.height)));
    switch (r.shape) {
    case RegionShape::Rectangle:
        p.drawRect(box);
        break;
    case RegionShape::Circle:
        p.drawEllipse(box);
        break;
    case RegionShape::Polygon: {
        QPolygonF poly;
        for (const QPoint &pt : r.points)
            poly << toWidget(pt);
        p.drawPolygon(poly, Qt::WindingFill);
        break;
    }
    }
}

void ImageMapCanvas::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Dark));
    if (!m_image.isNull())
        p.drawImage(QRectF(QPointF(0, 0), QSizeF(m_image.size()) * m_zoom), m_image);
    p.setRenderHint(QPainter::Antialiasing);
    for (int n = 1; n <= m_model.RegionCount(); ++n)
        paintRegion(p, m_model.region(n), n == m_current ? m_selected : m_standard);

    if (m_current >= 1 && m_model.region(m_current).shape != RegionShape::Polygon) {
        const MapRegion &r = m_model.region(m_current);
        p.setPen(QPen(m_standard, 1));
        p.setBrush(m_selected);
        for (const QPoint &c : {QPoint(r.left, r.top), QPoint(r.left + r.width, r.top),
                                QPoint(r.left + r.width, r.top + r.height), QPoint(r.left, r.top + r.height)})
            p.drawRect(QRectF(toWidget(c) - QPointF(kHandle, kHandle), QSizeF(2 * kHandle, 2 * kHandle)));
    }

    QPen draftPen(m_selected, 2, Qt::DashLine);
    draftPen.setCosmetic(true);
    p.setPen(draftPen);
    p.setBrush(Qt::NoBrush);
    if (m_drag == Drag::Draw) {
        const QRectF box = QRectF(toWidget(m_anchor), toWidget(m_pointer)).normalized();
        if (m_tool == Circle)
            p.drawEllipse(box);
        else
            p.drawRect(box);
    }
    if (m_draft.active()) {
        QPolygonF line;
        for (const QPoint &pt : m_draft.points())
            line << toWidget(pt);
        line << toWidget(m_pointer);
        p.drawPolyline(line);
    }
}

int ImageMapCanvas::cornerAt(const QPointF &pos) const
{
    if (m_current < 1 || m_model.region(m_current).shape == RegionShape::Polygon)
        return -1;
    const MapRegion &r = m_model.region(m_current);
    const QPoint corners[4] = {QPoint(r.left, r.top), QPoint(r.left + r.width, r.top),
                               QPoint(r.left + r.width, r.top + r.height), QPoint(r.left, r.top + r.height)};
    for (int i = 0; i < 4; ++i) {
        const QPointF d = toWidget(corners[i]) - pos;
        if (std::abs(d.x()) <= kHandle + 1 && std::abs(d.y()) <= kHandle + 1)
            return i;
    }
    return -1;
}

void ImageMapCanvas::pressSelect(QMouseEvent *event)
{
    const QPoint at = toTwips(event->position());
    if (event->button() == Qt::RightButton) {
        const int hit = m_model.HitTestRegion(at);
        if (hit > 0)
            setCurrentRegion(hit);
        emit rightClicked(hit);
        return;
    }
    m_corner = cornerAt(event->position());
    const int hit = m_corner >= 0 ? m_current : m_model.HitTestRegion(at);
    setCurrentRegion(hit);
    if (hit < 1)
        return;
    m_drag = m_corner >= 0 ? Drag::Resize : Drag::Move;
    m_anchor = at;
    m_before = m_model.region(hit);
}

void ImageMapCanvas::pressPolygon(QMouseEvent *event)
{
    const QPoint at = toTwips(event->position());
    if (event->button() == Qt::RightButton) {
        if (!m_draft.active())
            return;
        const auto polygon = m_draft.finish();
        emit polygonStateChanged(false);
        update();
        if (polygon)
            emit regionDrawn(*polygon);
        return;
    }
    if (!m_draft.active()) {
        if (!MayStartRegion(m_model))
            return;
        m_draft.start(at);
        emit polygonStateChanged(true);
    } else {
        m_draft.addPoint(at);
    }
    m_pointer = at;
    update();
}

void ImageMapCanvas::mousePressEvent(QMouseEvent *event)
{
    if (m_image.isNull()) {
        core::ShowStatus(QStringLiteral("Choose the picture of the map first."));
        return;
    }
    if (m_tool == Select) {
        pressSelect(event);
    } else if (m_tool == Polygon) {
        pressPolygon(event);
    } else if (event->button() == Qt::LeftButton) {
        if (!MayStartRegion(m_model))
            return;
        m_drag = Drag::Draw;
        m_anchor = m_pointer = toTwips(event->position());
    }
}

void ImageMapCanvas::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = toTwips(event->position());
    const double tpp = m_model.twipsPerPixel();
    emit pointerMoved(QPoint(int(m_pointer.x() / tpp), int(m_pointer.y() / tpp)));
    if (m_drag == Drag::Move || m_drag == Drag::Resize) {
        MapRegion r = m_before;
        const QPoint d = m_pointer - m_anchor;
        if (m_drag == Drag::Move) {
            // Keep the whole region on the picture.
            const QPoint limit = toTwips(QPointF(1e9, 1e9));
            const int dx = std::clamp(d.x(), -r.left, limit.x() - r.left - r.width);
            const int dy = std::clamp(d.y(), -r.top, limit.y() - r.top - r.height);
            r.left += dx;
            r.top += dy;
            for (QPoint &p : r.points)
                p += QPoint(dx, dy);
        } else {
            QPoint a(r.left, r.top), b(r.left + r.width, r.top + r.height);
            if (m_corner == 0 || m_corner == 3)
                a.rx() = m_pointer.x();
            else
                b.rx() = m_pointer.x();
            if (m_corner == 0 || m_corner == 1)
                a.ry() = m_pointer.y();
            else
                b.ry() = m_pointer.y();
            r.left = std::min(a.x(), b.x());
            r.top = std::min(a.y(), b.y());
            r.width = std::abs(b.x() - a.x());
            r.height = std::abs(b.y() - a.y());
        }
        m_model.region(m_current) = r;
    }
    if (m_drag != Drag::None || m_draft.active())
        update();
    else if (m_tool == Select)
        setCursor(cornerAt(event->position()) >= 0 ? Qt::SizeFDiagCursor : Qt::ArrowCursor);
}

void ImageMapCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const Drag drag = m_drag;
    m_drag = Drag::None;
    if (drag == Drag::Move || drag == Drag::Resize) {
        if (!(m_model.region(m_current) == m_before)) {
            m_model.mapChanged = true;
            emit regionChanged(m_current);
        }
        update();
        return;
    }
    if (drag != Drag::Draw)
        return;
    m_pointer = toTwips(event->position());
    update();
    MapRegion r;
    r.shape = m_tool == Circle ? RegionShape::Circle : RegionShape::Rectangle;
    r.left = std::min(m_anchor.x(), m_pointer.x());
    r.top = std::min(m_anchor.y(), m_pointer.y());
    r.width = std::abs(m_pointer.x() - m_anchor.x());
    r.height = std::abs(m_pointer.y() - m_anchor.y());
    if (r.width > 0 && r.height > 0)
        emit regionDrawn(r);
}

} // namespace qly::generators::ui
