#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>

namespace qly::generators {

// A client-side image map: up to 15 hotspots on a picture, each a rectangle,
// a circle (the ellipse of its bounding box) or a polygon, with a URL and a
// frame target. Geometry is kept in twips on the picture, as the editor
// draws it; the output converts to pixels.

enum class RegionShape { Rectangle = 2, Circle = 3, Polygon = 4 };

struct MapRegion {
    QString url;
    QString target;
    RegionShape shape = RegionShape::Rectangle;
    int top = 0;      // bounding box, twips
    int left = 0;
    int height = 0;
    int width = 0;
    QList<QPoint> points;   // polygon vertices, twips; the closing side is implied

    QRect bounds() const { return QRect(left, top, width, height); }
    bool operator==(const MapRegion &) const = default;
};

// The values of the <IMG> element, as frmIMapName shows them: all text.
struct MapValues {
    QString mapName;
    QString altText;
    QString align;
    QString borderWidth;
    QString horzSpace;
    QString vertSpace;
    QString imgWidth;
    QString imgHeight;
    bool operator==(const MapValues &) const = default;
};

class ImageMapModel
{
public:
    static constexpr int MaxRegions = 15;
    static constexpr int MaxPolygonPoints = 15;

    explicit ImageMapModel(double twipsPerPixel = 15.0);

    double twipsPerPixel() const { return m_twipsPerPixel; }
    int RegionCount() const { return int(m_regions.size()); }
    bool isFull() const { return RegionCount() == MaxRegions; }
    // Regions are numbered from 1.
    const MapRegion &region(int number) const { return m_regions.at(number - 1); }
    MapRegion &region(int number) { return m_regions[number - 1]; }
    const QList<MapRegion> &regions() const { return m_regions; }

    // Adds a region (its box normalised to a positive width and height, a
    // polygon's box taken from its points) and returns its number; 0 when
    // the map is full.
    int addRegion(MapRegion region);
    // Removes region `number`; the later ones move down by one.
    bool deleteRegion(int number);
    void clear();
    // Moves region `number` by (dx, dy) twips, points and all.
    void moveRegion(int number, int dx, int dy);

    // The first region, counted from 1, that holds the point (twips); -1
    // when none does. Rectangles hold their top and left edges but not the
    // bottom and right ones; circles are the ellipse of their box;
    // polygons are filled by the winding rule, so the middle of a star
    // drawn in one stroke is inside.
    int HitTestRegion(QPoint twips) const;

    // Twips to pixels: horizontally for axis 0, vertically otherwise;
    // halves go to the even neighbour.
    int TwipsToPixels(double value, int axis) const;

    MapValues values;
    QString imagePath;
    bool mapChanged = false;

    // The <IMG> element and the <MAP> block, with CR LF line ends.
    // `imageReference` is the picture as the page refers to it.
    QString WriteMapMarkup(const QString &imageReference) const;

private:
    double m_twipsPerPixel;
    QList<MapRegion> m_regions;
};

// Puts a region's bounding box around its polygon points.
void fitPolygonBox(MapRegion &region);

} // namespace qly::generators
