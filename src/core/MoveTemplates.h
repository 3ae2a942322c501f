#pragma once

#include <QString>

namespace qly::core {

// The templates directory of the Options dialog changed to `newDir`. When
// the old directory holds templates, the user may have them moved; each
// template that would replace a file of the same name asks first. On a
// move, [File Locations] "Templates" is written at once.
void MoveTemplates(const QString &newDir);

} // namespace qly::core
