#pragma once

#include <QString>

namespace qly::documents {

class Document;

// Saves the document as a custom template: the program's "Custom Templates"
// directory and `name` (the default document extension added when the name
// has none). The document is that file afterwards. False when the name is
// empty or the save failed (the user is told).
bool SaveAsTemplate(Document &document, const QString &name);

} // namespace qly::documents
