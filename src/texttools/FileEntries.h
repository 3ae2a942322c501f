#pragma once

#include <QString>
#include <QStringList>

namespace qly::texttools {

// The files that one entry of the "Files to Search" list stands for. An
// entry is a path whose name may be a pattern ("site/*.htm"). A file counts
// only when its extension is as long as the entry's, unless the entry's
// extension is "*": so "*.htm" never takes "a.html". "*.*" takes every file.
// Sorted by name; directories are not taken.
QStringList ExpandEntry(const QString &entry);

// The entry a dropped or chosen directory becomes: the directory + "*.*".
QString DirectoryEntry(const QString &directory);

} // namespace qly::texttools
