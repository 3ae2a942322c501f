#pragma once

class QWidget;

namespace qly::core::ui {
class Shell;
}

namespace qly::websites::ui {

class WebsiteTree;

// The resource manager's tabs that the websites fill.
struct WebsiteViews {
    QWidget *website = nullptr;       // "Website": the WebsitePane with the WebsiteTree
    QWidget *bookmarks = nullptr;     // "Bookmarks"
};

// Binds the website commands (New Website, Open Website, Add Files), makes
// ".prj" files open as websites, closes the open websites when the main
// window closes, and makes the views for the resource manager.
WebsiteViews registerWebsiteCommands(core::ui::Shell &shell);

} // namespace qly::websites::ui
