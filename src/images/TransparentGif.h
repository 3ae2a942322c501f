#pragma once

#include <QByteArray>
#include <QString>

namespace qly::images {

// The bytes of a GIF whose first image shows palette entry `index` as
// transparent: the blocks up to that image copied, its graphic control made
// or edited, the rest copied up to the first trailer byte, under a "GIF89a"
// header. Empty, with `error` set, for a file that is no sound GIF.
QByteArray TransparentGifBytes(const QByteArray &bytes, quint16 index, QString *error);

} // namespace qly::images
