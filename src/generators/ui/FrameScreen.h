#pragma once

#include "generators/FrameModel.h"

#include <QPointF>
#include <QWidget>

namespace qly::generators::ui {

// The miniature screen of the frame editor: every frame of the model drawn
// to scale with its number, name and percentages. A click selects a frame;
// dragging near one of its inner edges moves that divider.
class FrameScreen final : public QWidget
{
    Q_OBJECT
public:
    explicit FrameScreen(FrameModel &model, QWidget *parent = nullptr);

    QSize sizeHint() const override { return {400, 300}; }
    // The screen's rectangle in the widget and the conversion of points.
    QRectF screenRect() const;
    QPointF toTwips(const QPointF &point) const;
    QPointF toWidget(const QPointF &twips) const;
    // The frame under a point of the widget, or -1.
    int frameAt(const QPointF &point) const;

signals:
    // A frame was clicked; the model has selected it.
    void frameSelected(int index);
    // The layout changed under the pointer.
    void layoutChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Qt::CursorShape shapeFor(int edges) const;

    FrameModel &m_model;
    int m_dragEdges = FrameModel::NoEdge;
    QPointF m_dragFrom;
};

} // namespace qly::generators::ui
