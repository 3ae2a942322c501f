#pragma once

#include <QString>

namespace qly::core {

// The status text, cleared 4000 ms later.
void ShowStatus(const QString &text);
// The hourglass for long work, and back. They do not nest.
void BeginWait();
void EndWait();
// An exclamation box captioned "Quillery 4.01 - Error", shown with the
// ordinary pointer whatever the pointer was.
void ErrorBox(const QString &text);
// Lets the event loop run, so the window stays live during long work.
void DoEvents();
// A step that failed and was passed over. With [Debug] "Trap Errors" on, the
// developer is shown it; otherwise it is only logged.
void StepFailed(const QString &what);

} // namespace qly::core
