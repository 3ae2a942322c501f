#pragma once

#include <QString>

namespace qly::images::ui {

// The page optimizer's work on one image: `file` written to `target` as a
// JPEG of `quality` (a JPEG source, or any with `toJpeg`) or as a GIF, a
// GIF's transparent colour kept. A result larger than the original is
// dropped and the original copied instead. False, told, when the file is
// no picture.
bool SquishImage(const QString &file, const QString &target, int quality, bool toJpeg);

} // namespace qly::images::ui
