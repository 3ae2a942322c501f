#pragma once

#include <QListWidget>
#include <QPointer>

namespace qly::images::ui {

// The animator's strip of frames: one picture a frame, in order. A picture
// dragged onto another takes its place; dragged onto the waste bin, it is
// deleted. The strip follows the pointer itself while the button is down,
// so the gesture never leaves the dialog.
class FrameStrip final : public QListWidget
{
    Q_OBJECT
public:
    explicit FrameStrip(QWidget *parent = nullptr);
    // Shows the pictures of these files, in this order.
    void setFrames(const QStringList &files);
    // The widget that deletes a frame dropped on it.
    void setTrash(QWidget *trash) { m_trash = trash; }

signals:
    // The frame shown at `from` was dropped at `to`.
    void frameMoved(int from, int to);
    void frameDeleted(int row);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QPointer<QWidget> m_trash;
    int m_pressedRow = -1;
    QPoint m_pressedAt;
    bool m_dragging = false;
};

} // namespace qly::images::ui
