#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace qly::core {

// The configuration store: one INI-style file, read and written key by key
// at the point of use. `file` empty means gIniFile.

// The value, cut at 249 characters; "" for a missing key or file.
QString ReadSetting(const QString &section, const QString &key, const QString &file = {});
// True exactly when the value, lower-cased, is "yes".
bool ReadSettingFlag(const QString &section, const QString &key);
// An empty value removes the key. Failures are not reported.
void WriteSetting(const QString &section, const QString &key, const QString &value,
                  const QString &file = {});
void DeleteSetting(const QString &section, const QString &key, const QString &file = {});
// "key=value" strings of a whole section.
QStringList ReadSection(const QString &section, const QString &file = {});
// Replaces a whole section with "key=value" entries, separated by NUL
// characters or line breaks; nothing at all removes the section. A failure
// is told to the user. Returns false on failure.
bool WriteSection(const QString &section, const QString &text, const QString &file = {});

// "Yes" or "No", as check boxes are stored.
QString YesNo(bool on);

// The directory for one kind of file: [File Locations] key, or the current
// directory when asked and [General] "Always Use Current Directory" is on;
// when that is no directory, the active document's directory, else the
// program directory.
QString GetFileLocation(const QString &key, bool useCurrent = false);
// Where GetFileLocation finds the active document's directory; set by the
// documents, empty until there are any.
void setActiveDocumentFolder(std::function<QString()> folder);

} // namespace qly::core
