#pragma once

#include "websites/Bookmarks.h"

#include <QWidget>

class QCheckBox;
class QListWidget;

namespace qly::websites::ui {

// The "Bookmarks" tab: the browser's bookmarks (bookmarks.html) and a
// favourites folder of ".url" files, as switched on by its two boxes
// ([Display] "Netscape Bookmarks" and "IE Favorites"). A double-click puts
// a link to the bookmark into the document; a row can be dragged there too.
class BookmarksView : public QWidget
{
    Q_OBJECT
public:
    explicit BookmarksView(QWidget *parent = nullptr);
    // Reads the lists again.
    void UpdateBookmarks();
    QListWidget *list() const { return m_lstFaves; }
    // The bookmark of a row.
    Bookmark bookmarkAt(int row) const;
    // Inserts the row's link into the current document.
    void lstFaves_DblClick(int row);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QCheckBox *m_netscape = nullptr;
    QCheckBox *m_favorites = nullptr;
    QListWidget *m_lstFaves = nullptr;
    bool m_read = false;
};

} // namespace qly::websites::ui
