#pragma once

#include <QString>
#include <functional>

class QMimeData;
class QWidget;

namespace qly::documents::ui {

// Marks a drag of local files as coming from one of the editor's own views,
// named by `source` ("adcFiles" for the file view): a document takes such a
// drop as a reference to the files, not as files from the desktop.
void MarkResourceDrag(QMimeData *mime, const QString &source);

// Lets `target` take local files dropped onto it; for each, in the order
// given, `onResource` runs when the drag comes from one of the editor's
// views, `onFile` otherwise. Other drags (text,
// non-local URLs) pass through to the widget's own handling.
void AcceptFileDrops(QWidget *target, std::function<void(const QString &path)> onFile,
                     std::function<void(const QString &path)> onResource = {});

} // namespace qly::documents::ui
