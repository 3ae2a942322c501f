#pragma once

#include <QSize>
#include <QString>
#include <functional>

namespace qly::images {

// The size of a picture file in pixels, invalid when it is no picture. The
// image side fills it in (decoding needs more than Qt Core); until then
// PictureSize gives an invalid size.
std::function<QSize(const QString &)> &pictureSizeHook();
QSize PictureSize(const QString &file);

} // namespace qly::images
