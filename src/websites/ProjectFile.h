#pragma once

#include <QString>
#include <QStringList>

namespace qly::websites {

// A website project file (".prj"): the configuration store's profile format
// with the sections [Details], [Directories] and [Files]. Reads cut values
// at 249 characters; an empty value removes the key; every write replaces
// the file atomically.
QString ReadProjectValue(const QString &path, const QString &section, const QString &key);
void WriteProjectValue(const QString &section, const QString &key, const QString &value, const QString &path);

// True for an existing file whose [Details] "Name" is not empty.
bool IsWebsiteFile(const QString &path);

// What is wrong with a project file that should open, as a sentence naming
// the file; empty when it reads well. Finds: a file that cannot be read,
// binary data, a line that is no setting (a file cut short), a key given
// twice in a section, a missing [Details] "Name", a damaged stored password.
QString ProjectFileProblem(const QString &path);

// The paths of [Files] from key 0 on, stopping at the first empty key;
// a missing key 0 alone is passed over, as closing a website can leave one.
QStringList ReadProjectFiles(const QString &path);

// How a website's files go back to [Files] when it closes: key 0 is deleted
// again and again while it reads a value (keys above it stay as they are),
// then each file is written at its index, 0 to 500.
void WriteProjectFiles(const QString &path, const QStringList &files);

inline constexpr int MaxProjectFileIndex = 500;

} // namespace qly::websites
