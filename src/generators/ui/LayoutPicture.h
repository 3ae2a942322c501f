#pragma once

#include <QIcon>
#include <QList>
#include <QRectF>

namespace qly::generators::ui {

// A small picture of a frame layout: each rectangle is given in fractions
// of the screen (0 to 1) and drawn as a frame on it.
QIcon LayoutPicture(const QList<QRectF> &frames);

} // namespace qly::generators::ui
