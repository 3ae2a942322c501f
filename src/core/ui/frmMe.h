#pragma once

class QWidget;

namespace qly::core::ui {

// The About box: the program's name, version and credits.
void frmMe(QWidget *parent);

} // namespace qly::core::ui
