#include "images/PictureSize.h"

namespace qly::images {

std::function<QSize(const QString &)> &pictureSizeHook()
{
    static std::function<QSize(const QString &)> hook;
    return hook;
}

QSize PictureSize(const QString &file)
{
    return pictureSizeHook() ? pictureSizeHook()(file) : QSize();
}

} // namespace qly::images
