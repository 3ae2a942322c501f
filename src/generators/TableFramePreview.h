#pragma once

#include "core/FileIo.h"

#include <QString>

namespace qly::generators {

// The preview pages of the table and frame editors: a page is written beside
// the current document (so its relative links and images resolve) and shown
// in the dialog's browser.

// "<HTML><BODY><TITLE>Table Preview</TITLE>" CR LF, the table, "</BODY></HTML>".
QString TablePreviewPage(const QString &tableMarkup);

// The folder of the current document's file, else the current directory,
// with "~qly", the minutes and seconds of now, and ".htm".
QString PreviewPagePath();

// Writes the page as UTF-8 (with a byte order mark, so the browser reads it
// as such), replacing the file whole.
core::IoResult WritePreviewPage(const QString &path, const QString &html);

// Inserts the fixed template `number` (1 to 6) of "TableTemplate" or
// "FrameTemplate" from the program's "Templates" folder into the current
// document. A missing file is told: "Template file not found: " and the path.
// False when nothing was inserted.
bool InsertFixedTemplate(const QString &stem, int number);

} // namespace qly::generators
