#pragma once

#include <QIcon>

namespace qly::generators::ui {

// The pictures of the image map editor's tools, drawn in the ink and blue
// of the other tool pictures: 1 select, 2 rectangle, 3 circle, 4 polygon,
// 5 delete.
QIcon regionToolIcon(int tool);

} // namespace qly::generators::ui
