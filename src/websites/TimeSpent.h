#pragma once

#include <QString>

namespace qly::websites {

// The display of [Details] "Time Spent" (minutes): "1 hours 1 minutes",
// "2 hours ", "59 minutes". Hours are rounded half to even, so 90 minutes
// shows as "2 hours " (the remainder of -30 is not shown); days are never
// shown; nothing at all for 0.
QString CalculateTimeSpent(const QString &minutesText);

// The same for the value stored in a project file.
QString ProjectTimeSpent(const QString &projectFile);

} // namespace qly::websites
