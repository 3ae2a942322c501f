#include "generators/ImageMapModel.h"

#include <algorithm>
#include <cmath>

namespace qly::generators {

namespace {

const QString CRLF = QStringLiteral("\r\n");

// A number as the old runtime's Str() wrote it: a blank in place of the
// sign for numbers not below zero.
QString signedText(int value)
{
    return value < 0 ? QString::number(value) : QLatin1Char(' ') + QString::number(value);
}

// > 0 when `p` lies left of the line from `a` to `b`.
qint64 sideOf(const QPoint &a, const QPoint &b, const QPoint &p)
{
    return qint64(b.x() - a.x()) * (p.y() - a.y()) - qint64(p.x() - a.x()) * (b.y() - a.y());
}

int windingNumber(const QList<QPoint> &points, const QPoint &p)
{
    int winding = 0;
    const qsizetype n = points.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QPoint &a = points.at(i);
        const QPoint &b = points.at((i + 1) % n);
        if (a.y() <= p.y()) {
            if (b.y() > p.y() && sideOf(a, b, p) > 0)
                ++winding;
        } else if (b.y() <= p.y() && sideOf(a, b, p) < 0) {
            --winding;
        }
    }
    return winding;
}

bool holds(const MapRegion &r, const QPoint &p)
{
    switch (r.shape) {
    case RegionShape::Rectangle:
        return p.x() >= r.left && p.x() < r.left + r.width && p.y() >= r.top && p.y() < r.top + r.height;
    case RegionShape::Circle: {
        if (r.width <= 0 || r.height <= 0)
            return false;
        const double rx = r.width / 2.0, ry = r.height / 2.0;
        const double dx = (p.x() - (r.left + rx)) / rx, dy = (p.y() - (r.top + ry)) / ry;
        return dx * dx + dy * dy <= 1.0;
    }
    case RegionShape::Polygon:
        return r.points.size() >= 3 && windingNumber(r.points, p) != 0;
    }
    return false;
}

} // namespace

void fitPolygonBox(MapRegion &region)
{
    if (region.points.isEmpty())
        return;
    int x0 = region.points.first().x(), x1 = x0, y0 = region.points.first().y(), y1 = y0;
    for (const QPoint &p : std::as_const(region.points)) {
        x0 = std::min(x0, p.x());
        x1 = std::max(x1, p.x());
        y0 = std::min(y0, p.y());
        y1 = std::max(y1, p.y());
    }
    region.left = x0;
    region.top = y0;
    region.width = x1 - x0;
    region.height = y1 - y0;
}

ImageMapModel::ImageMapModel(double twipsPerPixel)
    : m_twipsPerPixel(twipsPerPixel > 0 ? twipsPerPixel : 15.0)
{
}

int ImageMapModel::addRegion(MapRegion region)
{
    if (isFull())
        return 0;
    if (region.shape == RegionShape::Polygon) {
        fitPolygonBox(region);
    } else {
        if (region.width < 0) {
            region.left += region.width;
            region.width = -region.width;
        }
        if (region.height < 0) {
            region.top += region.height;
            region.height = -region.height;
        }
        region.points.clear();
    }
    m_regions.append(region);
    mapChanged = true;
    return RegionCount();
}

bool ImageMapModel::deleteRegion(int number)
{
    if (number < 1 || number > RegionCount())
        return false;
    m_regions.removeAt(number - 1);
    if (m_regions.isEmpty())
        mapChanged = false;
    return true;
}

void ImageMapModel::clear()
{
    m_regions.clear();
    mapChanged = false;
}

void ImageMapModel::moveRegion(int number, int dx, int dy)
{
    MapRegion &r = region(number);
    r.left += dx;
    r.top += dy;
    for (QPoint &p : r.points)
        p += QPoint(dx, dy);
}

int ImageMapModel::HitTestRegion(QPoint twips) const
{
    for (int n = 1; n <= RegionCount(); ++n) {
        if (holds(region(n), twips))
            return n;
    }
    return -1;
}

int ImageMapModel::TwipsToPixels(double value, int axis) const
{
    Q_UNUSED(axis) // one scale for both axes on today's screens
    return int(std::nearbyint(value / m_twipsPerPixel));
}

QString ImageMapModel::WriteMapMarkup(const QString &imageReference) const
{
    const MapValues &v = values;
    QString s = QStringLiteral("<IMG SRC=\"") + imageReference + QStringLiteral("\" USEMAP=\"#")
                + v.mapName + QLatin1Char('"');
    if (!v.altText.isEmpty())
        s += QStringLiteral(" ALT=\"") + v.altText + QLatin1Char('"');
    if (!v.imgHeight.isEmpty())
        s += QStringLiteral(" HEIGHT=") + v.imgHeight;
    if (!v.imgWidth.isEmpty())
        s += QStringLiteral(" WIDTH=") + v.imgWidth;
    if (!v.horzSpace.isEmpty())
        s += QStringLiteral(" HSPACE=") + v.horzSpace;
    if (!v.vertSpace.isEmpty())
        s += QStringLiteral(" VSPACE=") + v.vertSpace;
    s += QStringLiteral(" BORDER=") + (v.borderWidth.isEmpty() ? QStringLiteral("0") : v.borderWidth);
    if (!v.align.isEmpty())
        s += QStringLiteral(" ALIGN=") + v.align;
    s += QLatin1Char('>') + CRLF + CRLF;
    s += QStringLiteral("<MAP NAME=\"") + v.mapName + QStringLiteral("\">") + CRLF;

    const QString comma = QStringLiteral(", ");
    for (const MapRegion &r : m_regions) {
        QString coords;
        switch (r.shape) {
        case RegionShape::Rectangle:
            s += QStringLiteral("<AREA SHAPE=RECT COORDS=\"");
            coords = QString::number(TwipsToPixels(r.left, 0)) + comma + signedText(TwipsToPixels(r.top, 1))
                     + comma + QString::number(TwipsToPixels(r.left + r.width, 0)) + comma
                     + signedText(TwipsToPixels(r.top, 1) + TwipsToPixels(r.height, 1));
            break;
        case RegionShape::Circle: {
            s += QStringLiteral("<AREA SHAPE=CIRCLE COORDS=\"");
            const int rx = int(std::nearbyint(r.width / 2.0));
            const int ry = int(std::nearbyint(r.height / 2.0));
            coords = QString::number(TwipsToPixels(r.left + rx, 0)) + comma
                     + QString::number(TwipsToPixels(r.top + ry, 1)) + comma
                     + QString::number(TwipsToPixels(rx, 0));
            break;
        }
        case RegionShape::Polygon:
            s += QStringLiteral("<AREA SHAPE=POLYGON COORDS=\"");
            for (const QPoint &p : r.points)
                coords += QString::number(TwipsToPixels(p.x(), 0)) + comma
                          + QString::number(TwipsToPixels(p.y(), 1)) + comma;
            if (!r.points.isEmpty())
                coords += QString::number(TwipsToPixels(r.points.first().x(), 0)) + comma
                          + QString::number(TwipsToPixels(r.points.first().y(), 1));
            break;
        }
        s += coords + QStringLiteral("\" HREF=\"") + r.url + QLatin1Char('"');
        if (!r.target.isEmpty())
            s += QStringLiteral(" TARGET=\"") + r.target + QStringLiteral("\">") + CRLF;
        else
            s += QLatin1Char('>') + CRLF;
    }
    s += QStringLiteral("</MAP>") + CRLF;
    return s;
}

} // namespace qly::generators
