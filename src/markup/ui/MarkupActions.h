#pragma once

#include <QString>

class QWidget;

namespace qly::markup::ui {

// The window side of the markup commands.

// Removes links ("LINK") or all tags ("ALL"); Escape cancels.
void RemoveMarkupWithEscape(const QString &mode);

// Find Duplicate Links, asking through frmDuplicate over `parent`.
void FindDuplicateLinks(QWidget *parent);

} // namespace qly::markup::ui
