#pragma once

#include "generators/FormEditorModel.h"

class QWidget;

namespace qly::generators::ui {

// Shows the dialog of the element's kind filled with the element; on OK the
// element takes the dialog's values (its kind too: a text field may become
// hidden or a password). False on Cancel, with the element unchanged.
bool EditFormElement(QWidget *parent, FormElement &element);

// A new element of `kind` through its dialog, cleared first; for the hidden
// and password kinds the input dialog opens with that tick set.
bool NewFormElement(QWidget *parent, int kind, FormElement &element);

} // namespace qly::generators::ui
