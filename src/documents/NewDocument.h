#pragma once

#include <QString>

namespace qly::documents {

class Document;

// A new untitled document from a template file: "Untitled-" and the next
// number of gUntitledCount, which is never reused. With no template, the
// program's "Templates/HTML32.tpl"; when that is missing, the default text
// is written to the [Templates] "Normal" file ("NORMAL.tpl") in the current
// directory and used. With [Editing] "Lower Case Tags" on, tag names are
// lower-cased in the new text (the template file stays as it is).
// Null when a named template does not exist (the user is told) or no
// window could be made.
Document *NewDocument(const QString &templatePath);

// The text of a new page when the normal template is missing.
QString DefaultTemplateText();

// The program's fixed templates directory and custom templates directory.
QString TemplatesDirectory();
QString CustomTemplatesDirectory();

} // namespace qly::documents
