#pragma once

#include <QString>

namespace qly::documents {

// The filter of every document file dialog: web pages (with the default
// extension of [Editing]), text files, CGI files, all files.
QString FileFilter();

// The masks of web pages, "*.htm;*.html;...", with the default document
// extension of [Editing] ("Default Extension" when that is empty) when it is
// another one.
QString WebPageMasks();

} // namespace qly::documents
