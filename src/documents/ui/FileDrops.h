#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace qly::documents::ui {

// Lets `target` take local files dropped from the desktop; `onFile` runs for
// each, in the order given. Other drags (text, non-local URLs) pass through
// to the widget's own handling.
void AcceptFileDrops(QWidget *target, std::function<void(const QString &path)> onFile);

} // namespace qly::documents::ui
