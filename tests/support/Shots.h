#pragma once

#include <QString>

class QWidget;

namespace qly::test {

// Saves a picture of `widget`'s window as NAME.png into the folder named by
// QLY_SHOT_DIR, for a person to look at; does nothing when it is unset.
void saveShot(QWidget *widget, const QString &name);

} // namespace qly::test
