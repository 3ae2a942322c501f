#pragma once

#include <QString>

class QComboBox;

namespace qly::core::ui {

// Fills an editable combo box with a stored history, keeping the text it
// shows.
void FillHistoryCombo(QComboBox *box, const QString &historyName);
// Puts the combo box's current text at the top of the stored history and
// refills the list from it.
void StoreHistoryCombo(QComboBox *box, const QString &historyName);

} // namespace qly::core::ui
