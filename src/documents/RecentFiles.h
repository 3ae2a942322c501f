#pragma once

#include <QString>
#include <functional>

namespace qly::documents {

// The list of recent files: [Most Recent Files] keys "1" to "4", shown as
// the entries FileRecent(1) to FileRecent(4) of the File menu.

// Puts `path` in key "1" and refreshes the menu entries. Temporary files
// ("~qn..." and "*.tmp") are not listed. Keys 2 to 4 keep what they hold.
void AddRecentFile(const QString &path);

// Shows each key that is not empty in its menu entry, as "&n " and the
// shortened path. An entry whose key is empty is left as it is.
void LoadRecentFiles();

// Opens the file of entry `index` (1 to 4).
bool FileRecent_Click(int index);

// The path as a menu shows it: under 51 characters as it is; a longer
// path on a drive ("C:...") as its head through the first separator at or
// after the fourth character, "..", and the tail from the last separator
// but one (unless that is no shorter); any other long path as its last 50
// characters.
QString ShortenPath(const QString &path);

// The menu entries, filled by the main window: entry n gets `caption` and
// is made visible.
using RecentFileView = std::function<void(int n, const QString &caption)>;
RecentFileView &recentFileView();

} // namespace qly::documents
