#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "platform/HTMLEdit.h"
#include "websites/WebsiteList.h"
#include "websites/ProjectFile.h"
#include "websites/WebsitePublish.h"
#include "websites/Websites.h"
#include "websites/ui/WebsitePane.h"
#include "websites/ui/WebsiteTree.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QProcess>
#include <QTextBrowser>
#include <QtTest>

using namespace qly;
using namespace qly::websites;
using ui::WebsiteTree;

namespace {

// The link entries of the tree as "kind<TAB>page<TAB>line<TAB>link".
QStringList linkLines(const WebsiteTree &tree, const QString &kind = {})
{
    QStringList out;
    for (QTreeWidgetItem *item : tree.linkItems(kind))
        out << QStringLiteral("%1\t%2\t%3\t%4")
                   .arg(item->data(0, WebsiteTree::LinkRole).toString(), item->data(0, WebsiteTree::PathRole).toString())
                   .arg(item->data(0, WebsiteTree::LineRole).toInt())
                   .arg(item->text(0));
    return out;
}

} // namespace

class tst_WebsiteTree : public QObject
{
    Q_OBJECT
private slots:
    void checkedWebsiteShowsItsBrokenLinksAsTheCommandLineDoes();
    void openDocumentsAreCheckedFromTheirText();
    void webAddressesWhenAskedFor();
    void filesBeyondTheLimitAreToldAndStayInTheProject();
    void refreshRereadsTheProjectAndMarksMissingFiles();
    void publishWritesTheSiteThroughThePasses();
};

void tst_WebsiteTree::checkedWebsiteShowsItsBrokenLinksAsTheCommandLineDoes()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    WebsiteList::instance();
    env.write(QStringLiteral("site/img/logo.gif"), "GIF89a");
    const QString index = env.write(QStringLiteral("site/index.htm"),
                                    "<a href=\"about.htm\">About</a>\r\n<a href=\"missing.htm\">x</a>\r\n"
                                    "<img src=img/logo.gif><img src=\"img/gone.gif\"> <a href=\"http://example.com/\">\r\n"
                                    "<!-- <a href=\"old.htm#top\"> -->\r\n");
    const QString about = env.write(QStringLiteral("site/about.htm"), "<a href=index.htm><img src=photo.png>\n");
    const QString prj = env.write(QStringLiteral("site.prj"),
                                  "[Details]\r\nName=Test Site\r\n[Files]\r\n0=" + index.toUtf8() + "\r\n1=" + about.toUtf8() + "\r\n");
    WebsiteTree tree;
    QVERIFY(OpenWebsite(prj));
    const int id = WebsiteList::instance().CurrentWebsite();
    tree.WSCheckAll(id);
    QCOMPARE(tree.topLevelItem(0)->text(0), QStringLiteral("Test Site"));
    QCOMPARE(tree.topLevelItem(0)->childCount(), 2);
    QCOMPARE(linkLines(tree, QStringLiteral("brokenlocal")),
             QStringList({QStringLiteral("brokenlocal\t%1\t2\tmissing.htm").arg(index),
                          QStringLiteral("brokenlocal\t%1\t1\tphoto.png").arg(about)}));
    QCOMPARE(linkLines(tree, QStringLiteral("brokenimage")),
             QStringList{QStringLiteral("brokenimage\t%1\t3\timg/gone.gif").arg(index)});

    // The command line gives the same records for the same project.
    QProcess cli;
    cli.start(QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli"),
              {QStringLiteral("--ini"), env.ini(), QStringLiteral("check"), prj});
    QVERIFY(cli.waitForFinished(30000));
    QCOMPARE(cli.exitCode(), 1);
    const QStringList printed = QString::fromUtf8(cli.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(printed, linkLines(tree));
    QVERIFY(cli.readAllStandardError().contains("2 pages, 8 links, 3 broken"));
    // A damaged project is named and not checked; a usage error says how.
    const QString bad = env.write(QStringLiteral("bad.prj"), "[Details]\nName=X\n[Files\n");
    cli.start(QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli"), {QStringLiteral("check"), bad});
    QVERIFY(cli.waitForFinished(30000));
    QCOMPARE(cli.exitCode(), 2);
    QVERIFY(cli.readAllStandardOutput().isEmpty());
    QVERIFY(QString::fromUtf8(cli.readAllStandardError()).contains(bad));
    cli.start(QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli"), {QStringLiteral("check"), QStringLiteral("--format"), QStringLiteral("xml"), bad});
    QVERIFY(cli.waitForFinished(30000));
    QCOMPARE(cli.exitCode(), 2);

    // A double-click on a link opens its page with the link selected.
    QTreeWidgetItem *gone = tree.linkItems(QStringLiteral("brokenimage")).first();
    tree.FileOpenLink(gone);
    documents::Document *doc = workspace.activeDocument();
    QVERIFY(doc);
    QCOMPARE(doc->LocalFileName, index);
    QCOMPARE(doc->txtDoc().SelText(), QStringLiteral("img/gone.gif"));

    // Removing a file and closing writes the list back from key 0.
    WebsiteList::instance().RemoveWebsiteFile(id, 0);
    CloseWebsite(id);
    QCoreApplication::processEvents();
    QCOMPARE(tree.topLevelItemCount(), 1);   // the open document stays
    QCOMPARE(core::ReadSetting(QStringLiteral("Files"), QStringLiteral("0"), prj), about);
}

void tst_WebsiteTree::openDocumentsAreCheckedFromTheirText()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    WebsiteList::instance();
    const QString page = env.write(QStringLiteral("p.htm"), "<a href=\"p.htm\">\n");
    WebsiteTree tree;
    QVERIFY(documents::OpenDocumentFile(page));
    documents::Document *doc = workspace.activeDocument();
    // The check reads the edited text, not the file.
    doc->txtDoc().setText(QStringLiteral("<img src=nothing.gif>\n<a href=p.htm>"));
    FileCheck(doc->filenum);
    QCOMPARE(linkLines(tree), QStringList({QStringLiteral("loclink\t%1\t2\tp.htm").arg(page),
                                           QStringLiteral("brokenimage\t%1\t1\tnothing.gif").arg(page)}));
    // Check all keeps the earlier results; a single check replaces them.
    FileCheckAllLinks();
    QCOMPARE(linkLines(tree).size(), 4);
    FileCheck(doc->filenum);
    QCOMPARE(linkLines(tree).size(), 2);
}

void tst_WebsiteTree::webAddressesWhenAskedFor()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QProcess server;
    server.start(QStringLiteral("python3"), {QStringLiteral(TEST_DATA_DIR "/websites/check_server.py")});
    QVERIFY(server.waitForReadyRead(10000));
    const QString base = QStringLiteral("http://127.0.0.1:") + QString::fromLatin1(server.readLine().trimmed());
    const QByteArray b = base.toUtf8();
    const QString page = env.write(QStringLiteral("p.htm"),
                                   "<a href=\"" + b + "/ok\"> <a href=\"" + b + "/gone\"> <a href=\"" + b + "/error\">");
    OpenWebsite(env.write(QStringLiteral("web.prj"), "[Details]\nName=Web\n[Files]\n0=" + page.toUtf8() + "\n"));
    WebsiteTree tree;
    // Off by default: no server is asked.
    ScanNodeLinks(page);
    QCoreApplication::processEvents();
    for (QTreeWidgetItem *item : tree.linkItems())
        QVERIFY(item->data(0, WebsiteTree::AddressRole).isNull());
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Check Web Addresses"), QStringLiteral("Yes"));
    ScanNodeLinks(page);
    tree.refresh();
    QStringList statuses;
    for (QTreeWidgetItem *item : tree.linkItems())
        if (item->data(0, WebsiteTree::PathRole).toString() == page)
            statuses << item->data(0, WebsiteTree::AddressRole).toString();
    QCOMPARE(statuses, QStringList({QStringLiteral("ok"), QStringLiteral("broken"), QStringLiteral("unverified")}));

    QProcess cli;
    cli.start(QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli"), {QStringLiteral("check"), QStringLiteral("--external"), page});
    QVERIFY(cli.waitForFinished(30000));
    QCOMPARE(cli.exitCode(), 1);
    const QString out = QString::fromUtf8(cli.readAllStandardOutput());
    QVERIFY(out.contains(QStringLiteral("extlink/ok\t")) && out.contains(QStringLiteral("extlink/broken\t"))
            && out.contains(QStringLiteral("extlink/unverified\t")));
    server.kill();
    server.waitForFinished();
}

void tst_WebsiteTree::filesBeyondTheLimitAreToldAndStayInTheProject()
{
    CloseAllWebsites();   // what the tests before left open
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    WebsiteList::instance();
    QByteArray files;
    QStringList paths;
    for (int i = 0; i < 505; ++i) {
        paths << env.write(QStringLiteral("big/p%1.htm").arg(i), "x");
        files += QByteArray::number(i) + '=' + paths.last().toUtf8() + "\r\n";
    }
    const QString prj = env.write(QStringLiteral("big.prj"), "[Details]\r\nName=Big\r\n[Files]\r\n" + files);
    ui::WebsitePane pane;
    QVERIFY(OpenWebsite(prj));
    QCoreApplication::processEvents();
    const int id = WebsiteList::instance().CurrentWebsite();
    QCOMPARE(pane.tree()->topLevelItem(0)->childCount(), 501);
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY(prompts.shown.first().text.contains(QStringLiteral("lists 505 files")));
    QVERIFY(prompts.shown.first().text.contains(QStringLiteral("The last 4 are not shown")));
    pane.tree()->topLevelItem(0)->setSelected(true);
    QVERIFY(pane.details()->toPlainText().contains(QStringLiteral("4 more files of the project file are not listed")));

    // A full website says so when more files are added.
    prompts.chooseFiles({env.write(QStringLiteral("big/new.htm"), "y")});
    WebsiteAddFiles(id);
    QCOMPARE(WebsiteList::instance().WebsiteFileCount(id), 501);
    QCOMPARE(prompts.shown.size(), 2);
    QVERIFY(prompts.shown.last().text.contains(QStringLiteral("1 of the chosen files were not added")));

    // Closing writes the listed files and leaves the others in the file.
    CloseWebsite(id);
    QCOMPARE(ReadProjectFiles(prj), paths);
}

void tst_WebsiteTree::refreshRereadsTheProjectAndMarksMissingFiles()
{
    CloseAllWebsites();   // what the tests before left open
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    WebsiteList::instance();
    const QString index = env.write(QStringLiteral("site/index.htm"), "<a href=about.htm>\r\n");
    const QString about = env.write(QStringLiteral("site/about.htm"), "x");
    const QString prj = env.write(QStringLiteral("site.prj"), "[Details]\r\nName=Old Name\r\n[Files]\r\n0="
                                                                  + index.toUtf8() + "\r\n1=" + about.toUtf8() + "\r\n");
    WebsiteTree tree;
    QVERIFY(OpenWebsite(prj));
    const int id = WebsiteList::instance().CurrentWebsite();
    tree.WSCheckAll(id);
    QVERIFY(linkLines(tree, QStringLiteral("brokenlocal")).isEmpty());
    WebsiteList::instance().RemoveWebsiteFile(id, 1);

    // Changed on disk meanwhile: the name, the page's links, a file gone.
    WriteProjectValue(QStringLiteral("Details"), QStringLiteral("Name"), QStringLiteral("New Name"), prj);
    WriteProjectValue(QStringLiteral("Details"), QStringLiteral("Host"), QStringLiteral("ftp.example.org"), prj);
    env.write(QStringLiteral("site/index.htm"), "<a href=about.htm>\r\n<a href=gone.htm>\r\n");
    QVERIFY(QFile::remove(about));
    const QString extra = env.write(QStringLiteral("site/extra.htm"), "z");
    AddFiletoList(extra, id);
    QVERIFY(QFile::remove(extra));
    tree.WSRefresh(id);
    QTreeWidgetItem *site = tree.topLevelItem(0);
    QCOMPARE(site->text(0), QStringLiteral("New Name"));
    QCOMPARE(WebsiteList::instance().website(id)->host, QStringLiteral("ftp.example.org"));
    QCOMPARE(linkLines(tree, QStringLiteral("brokenlocal")),
             QStringList({QStringLiteral("brokenlocal\t%1\t1\tabout.htm").arg(index),
                          QStringLiteral("brokenlocal\t%1\t2\tgone.htm").arg(index)}));
    // The list stays the tree's own: the removed file does not come back.
    QCOMPARE(site->childCount(), 2);
    QVERIFY(site->child(1)->toolTip(0).endsWith(QStringLiteral("(missing)")));
    QVERIFY(tree.describe(site).contains(QStringLiteral("2 files, 1 missing on disk")));
    CloseWebsite(id);
}

void tst_WebsiteTree::publishWritesTheSiteThroughThePasses()
{
    CloseAllWebsites();   // what the tests before left open
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    WebsiteList::instance();
    core::WriteSetting(QStringLiteral("Publishing"), QStringLiteral("Use UNIX Slashes"), QStringLiteral("Yes"));
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Create BAK Files"), QStringLiteral("Yes"));
    const QByteArray gif("GIF89a\r\n\x01\x02", 10);
    env.write(QStringLiteral("site/img/logo.gif"), gif);
    env.write(QStringLiteral("shared.css"), "p {}");
    const QByteArray page = "<img src=img\\logo.gif> a\\b\r\n<link href=../shared.css>\r\n";
    const QString index = env.write(QStringLiteral("site/index.htm"), page);
    const QString about = env.write(QStringLiteral("site/sub/about.htm"), "<a href=..\\index.htm>");
    const QString notes = env.write(QStringLiteral("site/notes.txt"), "a\\b <c\\d>");
    const QString prj = env.write(QStringLiteral("site.prj"),
                                  "[Details]\r\nName=Pub\r\nLocal Directory=" + env.path(QStringLiteral("site")).toUtf8()
                                      + "\r\n[Files]\r\n0=" + index.toUtf8() + "\r\n1=" + about.toUtf8() + "\r\n2="
                                      + notes.toUtf8() + "\r\n");
    QVERIFY(OpenWebsite(prj));
    const int id = WebsiteList::instance().CurrentWebsite();
    WebsiteTree tree;

    // The website's own folder is refused: its files would be replaced.
    prompts.chooseFiles({env.path(QStringLiteral("site"))});
    tree.WSPublish(id);
    QVERIFY(prompts.shown.last().text.contains(QStringLiteral("cannot take its published files")));
    QCOMPARE(env.read(QStringLiteral("site/index.htm")), page);

    const QString out = env.path(QStringLiteral("out"));
    prompts.chooseFiles({out});
    tree.WSPublish(id);
    QCOMPARE(prompts.fileRequests.last().title, QStringLiteral("Publish Website Pub"));
    // Pages through the passes, in their places; other files as they are.
    QCOMPARE(env.read(QStringLiteral("out/index.htm")), QByteArray("<img src=img/logo.gif> a\\b\r\n<link href=../shared.css>\r\n"));
    QCOMPARE(env.read(QStringLiteral("out/sub/about.htm")), QByteArray("<a href=../index.htm>"));
    QCOMPARE(env.read(QStringLiteral("out/notes.txt")), QByteArray("a\\b <c\\d>"));
    QCOMPARE(env.read(QStringLiteral("out/img/logo.gif")), gif);
    QVERIFY(!QFile::exists(env.path(QStringLiteral("out/shared.css"))));
    QCOMPARE(env.read(QStringLiteral("site/index.htm")), page);
    const QString said = prompts.shown.last().text;
    QVERIFY2(said.contains(QStringLiteral("2 pages published, 2 other files copied")), qPrintable(said));
    QVERIFY(said.contains(env.path(QStringLiteral("shared.css"))));
    CloseWebsite(id);
}

QTEST_MAIN(tst_WebsiteTree)
#include "tst_websitetree.moc"
