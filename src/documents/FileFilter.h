#pragma once

#include <QString>

namespace qly::documents {

// The filter of every document file dialog: web pages (with the default
// extension of [Editing]), text files, CGI files, all files.
QString FileFilter();

// The masks of web pages, "*.htm;*.html;...", with the default extension of
// [Editing] when it is another one.
QString WebPageMasks();

} // namespace qly::documents
