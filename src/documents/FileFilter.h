#pragma once

#include <QString>

namespace qly::documents {

// The filter of every document file dialog: web pages (with the default
// extension of [Editing]), text files, CGI files, all files.
QString FileFilter();

} // namespace qly::documents
