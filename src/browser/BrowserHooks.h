#pragma once

#include <QString>
#include <QUrl>

#include <functional>

class QWidget;

namespace qly::browser {

// What the editor tells a page view, and hears from it. Empty hooks are
// left out (no allowNavigation: every page may be opened).
struct BrowserHooks {
    std::function<bool(const QUrl &)> allowNavigation;
    std::function<void(const QUrl &)> urlChanged;
    std::function<void(bool)> loadFinished;
    std::function<void(const QString &)> linkHovered;
};

// The one entry point of the browser library: a page view (Qt WebEngine's
// QWebEngineView) with the hooks in place.
using CreateBrowserFn = QWidget *(*)(QWidget *parent, const BrowserHooks &hooks);
inline constexpr char kCreateBrowserSymbol[] = "qlyCreateBrowser";
inline constexpr char kBrowserLibraryName[] = "libquillery-browser.so";

} // namespace qly::browser
