#pragma once

#include <QImage>
#include <QLabel>

namespace qly::images::ui {

// A picture shown at its own size on a chequered ground (so a transparent
// colour shows), telling the picture's pixel under a click.
class PicturePane final : public QLabel
{
    Q_OBJECT
public:
    explicit PicturePane(QWidget *parent = nullptr);
    void setImage(const QImage &image);
    const QImage &image() const { return m_image; }

signals:
    // A click on the picture, in the picture's own pixels.
    void picked(const QPoint &pixel);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QImage m_image;
};

} // namespace qly::images::ui
