#pragma once

#include <QRect>

class QWidget;

namespace qly::core::ui {

// Stored geometry is in twips: 1440 to the logical inch, so 15 to a pixel
// at 96 dpi.
double twipsPerPixel(const QWidget *widget = nullptr);
QRect toTwips(const QRect &pixels, const QWidget *widget = nullptr);
QRect fromTwips(const QRect &twips, const QWidget *widget = nullptr);
int toTwips(int pixels, const QWidget *widget = nullptr);
int fromTwips(int twips, const QWidget *widget = nullptr);

} // namespace qly::core::ui
