#pragma once

#include "generators/ImageMapModel.h"
#include "generators/ImageMapRules.h"

#include <QColor>
#include <QImage>
#include <QWidget>

namespace qly::generators::ui {

// The picture of the image map editor with its hotspots drawn over it. It
// draws, selects, moves and resizes regions with the mouse; what needs a
// question (a URL for a new region, the right-click information) goes out
// as a signal. Geometry is kept in the model as twips of the picture: one
// picture pixel is 15 twips, whatever the zoom.
class ImageMapCanvas final : public QWidget
{
    Q_OBJECT
public:
    enum Tool { Select = 1, Rectangle = 2, Circle = 3, Polygon = 4 };

    explicit ImageMapCanvas(ImageMapModel &model, QWidget *parent = nullptr);

    void setImage(const QImage &image);
    const QImage &image() const { return m_image; }
    void setZoom(double zoom);
    double zoom() const { return m_zoom; }
    void setTool(Tool tool);
    Tool tool() const { return m_tool; }
    void setColours(const QColor &standard, const QColor &selected);
    int currentRegion() const { return m_current; }
    void setCurrentRegion(int number);
    bool drawingPolygon() const { return m_draft.active(); }

    // Widget position <-> twips on the picture (clamped to the picture).
    QPoint toTwips(const QPointF &pos) const;
    QPointF toWidget(const QPoint &twips) const;

    QSize sizeHint() const override;

signals:
    // A rectangle, circle or closed polygon was drawn; the receiver asks for
    // its URL and adds it to the model, or drops it.
    void regionDrawn(const qly::generators::MapRegion &region);
    void currentChanged(int number);
    // A right click with the select tool: on region `number`, or -1.
    void rightClicked(int number);
    void pointerMoved(const QPoint &pixels);
    void polygonStateChanged(bool drawing);
    void regionChanged(int number);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    enum class Drag { None, Draw, Move, Resize };
    void paintRegion(QPainter &p, const MapRegion &r, const QColor &colour) const;
    int cornerAt(const QPointF &pos) const;
    void pressSelect(QMouseEvent *event);
    void pressPolygon(QMouseEvent *event);

    ImageMapModel &m_model;
    QImage m_image;
    double m_zoom = 1.0;
    Tool m_tool = Select;
    QColor m_standard = Qt::black;
    QColor m_selected = Qt::yellow;
    int m_current = -1;
    PolygonDraft m_draft;
    Drag m_drag = Drag::None;
    QPoint m_anchor;      // twips where the drag began
    QPoint m_pointer;     // twips under the pointer
    int m_corner = -1;    // 0 top-left, 1 top-right, 2 bottom-right, 3 bottom-left
    MapRegion m_before;   // the region as it was when a move began
};

} // namespace qly::generators::ui
