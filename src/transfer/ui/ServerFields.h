#pragma once

#include <QString>

class QComboBox;
class QLineEdit;
class QWidget;

namespace qly::transfer::ui {

// The history of the servers typed into the transfer windows.
QString serversHistory();

// An editable host box filled from that history.
QComboBox *serverCombo(QWidget *parent);

// A line edit with the object name `name`.
QLineEdit *namedField(QWidget *parent, const char *name);

} // namespace qly::transfer::ui
