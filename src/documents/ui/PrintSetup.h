#pragma once

class QPrinter;
class QWidget;

namespace qly::documents::ui {

// The printer and page chosen in File > Print Setup, kept for the session.
// Every print starts from them.
void ApplyPrintSetup(QPrinter &printer);
// Remembers the printer and page of a print or a setup.
void KeepPrintSetup(const QPrinter &printer);
// Shows the page setup dialog; true when the user confirmed it.
bool ShowPrintSetup(QWidget *parent);

} // namespace qly::documents::ui
