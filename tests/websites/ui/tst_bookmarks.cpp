#include "core/Settings.h"
#include "documents/Document.h"
#include "platform/HTMLEdit.h"
#include "websites/Bookmarks.h"
#include "websites/ui/BookmarksView.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QListWidget>
#include <QMimeData>
#include <QtTest>

using namespace qly;
using namespace qly::websites;

class tst_Bookmarks : public QObject
{
    Q_OBJECT
private slots:
    void readsBookmarkFileAndFavorites();
    void listInsertsLinks();
};

void tst_Bookmarks::readsBookmarkFileAndFavorites()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    // As a browser exports it: attributes after HREF, a folder heading.
    const QString file = env.write(QStringLiteral("bookmarks.html"),
        "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n<TITLE>Bookmarks</TITLE>\n<DL><p>\n"
        "    <DT><H3 ADD_DATE=\"1\">Tools</H3>\n    <DL><p>\n"
        "        <DT><A HREF=\"https://example.org/a?x=1&amp;y=2\" ADD_DATE=\"1700000000\" ICON=\"data:image/png;base64,AAA\">Example &amp; Co</A>\n"
        "    </DL><p>\n    <DT><a href=\"http://w3.org/\">Two\nlines</a>\n</DL>\n");
    const QList<Bookmark> b = ReadNetscapeBookmarks(file);
    QCOMPARE(b.size(), 2);
    QCOMPARE(b.at(0).address, QStringLiteral("https://example.org/a?x=1&amp;y=2"));
    QCOMPARE(b.at(0).title, QStringLiteral("Example &amp; Co"));
    QCOMPARE(b.at(1).title, QStringLiteral("TwoNL_lines"));
    QCOMPARE(BookmarkMarkup(b.at(1)), QStringLiteral("<A HREF=\"http://w3.org/\">Two\r\nlines</A>"));
    QCOMPARE(BookmarkMarkup(b.at(1), QStringLiteral("W3C")), QStringLiteral("<A HREF=\"http://w3.org/\">W3C</A>"));

    env.write(QStringLiteral("Favorites/Qt.url"), "[InternetShortcut]\r\nURL=https://www.qt.io/\r\n");
    env.write(QStringLiteral("Favorites/Links/Debian.url"), "[InternetShortcut]\nURL=https://www.debian.org/\n");
    env.write(QStringLiteral("Favorites/readme.txt"), "no address");
    const QList<Bookmark> f = ReadFavorites(env.path(QStringLiteral("Favorites")));
    QCOMPARE(f.size(), 2);
    QCOMPARE(f.at(0).title, QStringLiteral("Debian"));
    QCOMPARE(f.at(1).address, QStringLiteral("https://www.qt.io/"));

    // The bookmark file: asked for once; a cancel is remembered as "None".
    prompts.chooseNothing();
    QCOMPARE(NetscapeBookmarkFile(), QString());
    QCOMPARE(core::ReadSetting(QStringLiteral("General"), QStringLiteral("Netscape Bookmark")), QStringLiteral("None"));
    QCOMPARE(NetscapeBookmarkFile(), QString());
    QCOMPARE(prompts.fileRequests.size(), 1);
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Netscape Bookmark"), file);
    QCOMPARE(NetscapeBookmarkFile(), file);
}

void tst_Bookmarks::listInsertsLinks()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    const QString file = env.write(QStringLiteral("b.html"), "<DT><A HREF=\"http://a.example/\">Site A</A>\n");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Netscape Bookmark"), file);
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Netscape Bookmarks"), QStringLiteral("Yes"));
    ui::BookmarksView view;
    view.UpdateBookmarks();
    QCOMPARE(view.list()->count(), 1);
    documents::Document *doc = workspace.makeDocumentWindow(true);
    doc->txtDoc().setText(QStringLiteral("see here"));
    doc->txtDoc().SetSel(4, 8);
    view.lstFaves_DblClick(0);
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("see <A HREF=\"http://a.example/\">here</A>"));
    // A dragged row carries the same link as text.
    QListWidget *list = view.list();
    std::unique_ptr<QMimeData> mime(list->model()->mimeData({list->model()->index(0, 0)}));
    QCOMPARE(mime->text(), QStringLiteral("<A HREF=\"http://a.example/\">Site A</A>"));
}

QTEST_MAIN(tst_Bookmarks)
#include "tst_bookmarks.moc"
