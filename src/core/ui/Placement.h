#pragma once

#include <QRect>

class QWidget;

namespace qly::core::ui {

// The window's rectangle moved, and shrunk where it must be, so that all of
// it lies inside the area; a window that fits is left where it is.
QRect keepInside(const QRect &window, const QRect &area);

// Where a tool window goes beside the widget it serves: to the right of it
// when there is room on that screen, otherwise to its left, otherwise over
// its right edge; always on the screen, below its top edge.
QRect besideWidget(const QSize &size, const QWidget *widget);

// Whether a stored window rectangle lies mostly on one of the screens.
bool onSomeScreen(const QRect &window);

} // namespace qly::core::ui
