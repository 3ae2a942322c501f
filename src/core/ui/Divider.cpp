#include "core/ui/Divider.h"

#include "core/ui/Twips.h"

#include <QResizeEvent>
#include <QShowEvent>

#include <algorithm>

namespace qly::core::ui {

Divider::Divider(QWidget *upper, QWidget *lower, QWidget *parent) : QSplitter(Qt::Vertical, parent)
{
    addWidget(upper);
    addWidget(lower);
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    setChildrenCollapsible(false);
    // Once the user has moved it, a position not yet applied is forgotten.
    connect(this, &QSplitter::splitterMoved, this, [this] { m_pending = 0; });
}

void Divider::setPosition(int pixels)
{
    if (pixels <= 0)
        return;
    m_pending = pixels;
    apply();
}

int Divider::position() const
{
    if (m_pending > 0)
        return m_pending;
    const QList<int> heights = sizes();
    return heights.isEmpty() ? 0 : heights.first();
}

void Divider::setPositionTwips(int twips)
{
    setPosition(twips > 0 ? fromTwips(twips, this) : 0);
}

int Divider::positionTwips() const
{
    return toTwips(position(), this);
}

void Divider::resizeEvent(QResizeEvent *event)
{
    QSplitter::resizeEvent(event);
    apply();
}

void Divider::showEvent(QShowEvent *event)
{
    QSplitter::showEvent(event);
    apply();
}

void Divider::apply()
{
    const int total = height() - handleWidth();
    if (m_pending <= 0 || !isVisible() || total <= 0)
        return;
    // The lower pane keeps a little room however far the divider went.
    const int upper = std::min(m_pending, std::max(total - 40, total / 2));
    setSizes({upper, total - upper});
    // While the panes are too small for it (the window is still being laid
    // out), the position waits for the next size.
    if (upper == m_pending)
        m_pending = 0;
}

} // namespace qly::core::ui
