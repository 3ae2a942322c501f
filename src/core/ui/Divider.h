#pragma once

#include <QSplitter>

namespace qly::core::ui {

// Two panes, one above the other, with a divider the user drags. The upper
// pane keeps its height when the whole grows or shrinks. A position given
// before the panes have a size of their own (a hidden dock, a tab not yet
// shown) is kept and applied at the first layout, and is what position()
// answers until then, so a stored value survives a session in which the
// panes were never seen. A position too large for the present size waits
// for a larger one, until the user moves the divider.
class Divider : public QSplitter
{
    Q_OBJECT
public:
    explicit Divider(QWidget *upper, QWidget *lower, QWidget *parent = nullptr);

    // The height of the upper pane in pixels; 0 or less leaves the default.
    void setPosition(int pixels);
    int position() const;

    // The same in twips, the unit of stored geometry.
    void setPositionTwips(int twips);
    int positionTwips() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void apply();

    int m_pending = 0;
};

} // namespace qly::core::ui
