#pragma once

#include <QString>

namespace qly::documents {

// Deletes "~qly*.*" and "~ql*.htm" in an existing directory.
void CleanTempFiles(const QString &directory);

// A new, unique file "~qn..." in the temp directory, made empty. With an
// extension, the name less its extension plus the given one is returned
// (the made file stays behind under its first name).
QString GetTempName(const QString &extension = {});

} // namespace qly::documents
