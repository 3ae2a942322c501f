#pragma once

#include <QList>
#include <QString>

namespace qly::websites {

struct Bookmark {
    QString title;     // the row; a line break in it stands as "NL_"
    QString address;
};

// The bookmarks of a file in the Netscape bookmark format (what browsers
// export as bookmarks.html): for each "<a href=" up to its ">", the text
// before "</a>" and the value of href.
QList<Bookmark> ReadNetscapeBookmarks(const QString &file);

// A favourites folder, walked recursively: each file is read as a profile
// file with the key "URL" of [InternetShortcut]; the row is the file's name
// without its extension. Files without an address are left out.
QList<Bookmark> ReadFavorites(const QString &folder);

// The bookmark file to read: [General] "Netscape Bookmark" when it names a
// file; "None" means the user declined. Otherwise the user is asked for
// the file; a cancel stores "None", a chosen file is stored. Empty: none.
QString NetscapeBookmarkFile();
// The favourites folder: [General] "Favorites Folder", else "Favorites" in
// the home folder.
QString FavoritesFolder();

// The link a bookmark inserts: "<A HREF="address">" + text + "</A>", the
// text being `selection` when there is one, else the row with "NL_" put
// back as a line break.
QString BookmarkMarkup(const Bookmark &bookmark, const QString &selection = {});

} // namespace qly::websites
