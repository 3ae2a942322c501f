#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qly::publish {

// Looks for web browsers on this machine: the command named by $BROWSER,
// the desktop's default browser (xdg-settings), and the usual browser
// programs on PATH. New ones are added to [Browsers] behind those listed
// already; with [File Locations] "Browser" empty, the first found becomes
// the default. Shows "Finding WWW Browsers" meanwhile. Gives how many
// browsers were found, listed before or not.
int FindBrowsers();

// The browsers found, in the order above, each once (by the file it
// resolves to). Paths are as found, not resolved through links.
QStringList DiscoverBrowsers();

// The executable a desktop entry starts: the first word of its Exec line,
// after "env" and its settings, found on PATH when it has no directory.
// Empty when the entry is missing or names nothing that runs.
QString DesktopEntryExecutable(const QString &desktopFile);

// One entry of the preview menu: the caption shown and the browser's path.
struct BrowserEntry {
    QString caption;
    QString path;
};

// The entries of the preview menu from [Browsers]: every key with a
// non-empty value, in file order, at most four.
std::vector<BrowserEntry> BrowserMenuEntries();

// The caption of a browser's menu entry, from the executable's name:
// "Internet Explorer", "Netscape Navigator", the browser's own name for the
// common ones, otherwise the file name.
QString BrowserCaption(const QString &path);

} // namespace qly::publish
