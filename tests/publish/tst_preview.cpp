// Previews in external browsers: the temporary page, its directory, the
// applet classes beside it, the browser start-up machine, and Preview in All
// with real programs (small shell scripts that note their arguments).
#include "core/Settings.h"
#include "core/StatusText.h"
#include "core/TextCodec.h"
#include "publish/Preview.h"
#include "publish/Publish.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QRegularExpression>
#include <QUrl>
#include <QtTest>

using namespace qly;

namespace {

// A link that answers like a running browser, noting what it was told.
struct AnsweringLink final : publish::BrowserLink {
    bool requestWorks = true;
    QStringList opened;
    bool open(const QString &topic, const QString &item) override { return opened << topic + u' ' + item, true; }
    bool request(QString &r) override { return r = requestWorks ? QString(QChar(5)) : QString(), requestWorks; }
    void activateTask(const QString &) override {}
    void close() override {}
};

QString makeScript(const test::TestEnv &env, const QString &name)
{
    const QString path = env.write(name, "#!/bin/sh\nprintf '%s\\n' \"$@\" >> \"$0.args\"\n");
    QFile(path).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return path;
}

QStringList argsOf(const test::TestEnv &env, const QString &script)
{
    return QString::fromUtf8(env.read(script + QStringLiteral(".args"))).split(u'\n', Qt::SkipEmptyParts);
}

QString fileText(const test::TestEnv &env, const QString &path)
{
    return core::decodeFile(env.read(path)).text;
}

void set(const char *section, const char *key, const QString &value)
{
    core::WriteSetting(QString::fromLatin1(section), QString::fromLatin1(key), value);
}

QString status()
{
    return core::StatusText::instance().text();
}

} // namespace

class tst_Preview : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void previewDirectory_data();
    void previewDirectory();
    void temporaryNames();
    void appletClasses_data();
    void appletClasses();
    void startedBrowsers();
    void answeringBrowser();
    void previewInAll();
    void failuresTold();
    void soundsAskFirst();
};

void tst_Preview::init()
{
    publish::previewRun() = {};
    publish::setBrowserLink(nullptr);
}

void tst_Preview::previewDirectory_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("publishFirst");
    QTest::addColumn<QString>("existing");   // which of "pub" and "docs" exist
    QTest::addColumn<QString>("expected");
    QTest::newRow("beside the document") << "site/a.htm" << false << "pub docs" << "site";
    QTest::newRow("untitled: Documents") << "Untitled-1" << false << "pub docs" << "docs";
    QTest::newRow("untitled: program") << "Untitled-1" << false << "" << "";
    QTest::newRow("publish first") << "site/a.htm" << true << "pub" << "pub";
    QTest::newRow("no Publish: document's") << "site/a.htm" << true << "docs" << "site";
    QTest::newRow("no Publish, untitled") << "Untitled-1" << true << "docs"
                                          << "ERROR:Cannot find 'Publish' directory to allow 'Publish Before Preview' "
                                             "option to work correctly.";
}

void tst_Preview::previewDirectory()
{
    QFETCH(QString, caption);
    QFETCH(bool, publishFirst);
    QFETCH(QString, existing);
    QFETCH(QString, expected);
    test::TestEnv env;
    test::FakeWorkspace ws;
    QDir().mkpath(env.path(QStringLiteral("site")));
    for (const QString &d : existing.split(u' ', Qt::SkipEmptyParts))
        QDir().mkpath(env.path(d));
    set("File Locations", "Publish", env.path(QStringLiteral("pub")));
    set("File Locations", "Documents", env.path(QStringLiteral("docs")));
    set("General", "Publish Previews", core::YesNo(publishFirst));
    ws.addDocument(caption.startsWith(u'U') ? caption : env.path(caption), QStringLiteral("x"));
    QCOMPARE(publish::GetPreviewDirectory(), expected.startsWith(QLatin1String("ERROR")) ? expected : env.path(expected));
}

void tst_Preview::temporaryNames()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    auto *doc = ws.addDocument(env.path(QStringLiteral("page.htm")), QStringLiteral("<P>one</P>"));
    const QString stale = env.write(QStringLiteral("~qly0000.htm"), "old");
    const QString keep = env.write(QStringLiteral("~qzkeep.htm"), "mine");
    publish::PreviewDocument(QString());
    const QStringList made = QDir(env.dir()).entryList({QStringLiteral("~qly*")});
    QCOMPARE(made.size(), 1);
    QVERIFY(QRegularExpression(QStringLiteral("^~qly\\d{4}\\.htm$")).match(made[0]).hasMatch());
    QVERIFY(!QFile::exists(stale) && QFile::exists(keep));

    // The fixed name: each preview replaces the page.
    set("General", "Fixed Temp File Name", QStringLiteral("Yes"));
    publish::PreviewDocument(QString());
    doc->edit.setText(QStringLiteral("<P>two</P>"));
    publish::PreviewDocument(QString());
    QCOMPARE(QDir(env.dir()).entryList({QStringLiteral("~qly*")}), QStringList{QStringLiteral("~qlytemp.htm")});
    QCOMPARE(fileText(env, env.path(QStringLiteral("~qlytemp.htm"))), QStringLiteral("<P>two</P>"));
    QVERIFY(prompts.shown.isEmpty());
}

void tst_Preview::appletClasses_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("helper");
    QTest::addColumn<QString>("expected");
    QTest::newRow("effect applet and support") << "<APPLET CODE=wavy WIDTH=5>" << "lfledhelp.class"
                                               << "createcolor.class myfont.class ver.class wavy.class";
    QTest::newRow("the page's capitals") << "<applet code=\"Bounce.class\">" << "lfledhelp.class"
                                         << "Bounce.class createcolor.class myfont.class ver.class";
    QTest::newRow("LED sign") << "<APPLET code=lfled.class>" << "lfledhelp.class" << "lfled.class lfledhelp.class";
    QTest::newRow("LED sign, preview tab") << "<APPLET code=lfled>" << "lfledhelper.class"
                                           << "lfled.class lfledhelper.class";
    QTest::newRow("class the program lacks") << "<APPLET CODE=other.class>" << "lfledhelp.class" << "";
    QTest::newRow("no applet tag") << "<P>applet code=wavy</P>" << "lfledhelp.class" << "";
}

void tst_Preview::appletClasses()
{
    QFETCH(QString, page);
    QFETCH(QString, helper);
    QFETCH(QString, expected);
    test::TestEnv env;
    for (const char *name : {"wavy", "bounce", "ver", "myfont", "createcolor", "lfled", "lfledhelp"})
        env.write(QStringLiteral("classes/%1.class").arg(QLatin1String(name)), name);
    env.write(QStringLiteral("out/ver.class"), "the author's own");
    publish::CopyNeededApplets(page, env.path(QStringLiteral("out")), helper);
    QStringList copied = QDir(env.path(QStringLiteral("out"))).entryList(QDir::Files);
    copied.removeOne(QStringLiteral("ver.class"));
    copied.sort(Qt::CaseInsensitive);
    expected.remove(QStringLiteral("ver.class"));
    QCOMPARE(copied, expected.split(u' ', Qt::SkipEmptyParts));
    QCOMPARE(env.read(QStringLiteral("out/ver.class")), QByteArray("the author's own"));
}

void tst_Preview::startedBrowsers()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString browser = makeScript(env, QStringLiteral("webview"));
    // Nobody answers: the browser starts with the file URL, twice on the run's first sending.
    QVERIFY(!publish::OpenInBrowser(browser, QStringLiteral("/srv/my page.htm")));
    QTRY_COMPARE(argsOf(env, browser), QStringList(2, QStringLiteral("file:///srv/my%20page.htm")));
    QVERIFY(publish::previewRun().task.toLongLong() > 0);
    QVERIFY(!publish::OpenInBrowser(browser, QStringLiteral("http://example.com/")));
    QTRY_COMPARE(argsOf(env, browser).size(), 3);
    QCOMPARE(argsOf(env, browser).last(), QStringLiteral("http://example.com/"));
    QVERIFY(prompts.shown.isEmpty());

    // A program that does not start is told.
    const QString broken = env.write(QStringLiteral("notaprogram"), "not executable");
    QVERIFY(!publish::OpenInBrowser(broken, QStringLiteral("/srv/page.htm")));
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("Couldn't start browser : ") + broken});
    QVERIFY(prompts.shown[0].title.startsWith(QStringLiteral("Error : ")) && prompts.shown[0].title.size() > 8);
}

void tst_Preview::answeringBrowser()
{
    test::TestEnv env;
    AnsweringLink link;
    publish::setBrowserLink(&link);
    publish::previewRun().secondSendDone = true;
    const QString browser = makeScript(env, QStringLiteral("ie20.exe"));
    QVERIFY(publish::OpenInBrowser(browser, QStringLiteral("/web/a.htm")));
    QCOMPARE(link.opened, (QStringList{QStringLiteral("IEXPLORE|WWW_OpenURL \"file:///web/a.htm\",,-1,0,,\"text/html\",,"),
                                       QStringLiteral("IEXPLORE|WWW_Activate 5,0")}));
    QCOMPARE(status(), QStringLiteral("Connecting browser to /web/a.htm"));

    link.opened.clear();
    link.requestWorks = false;
    QVERIFY(!publish::OpenInBrowser(browser, QStringLiteral("/web/a.htm")));
    QCOMPARE(link.opened.size(), 1);
    QCOMPARE(status(), QStringLiteral("Communication with browser failed.  Please try again."));
    QVERIFY(argsOf(env, browser).isEmpty());
    publish::setBrowserLink(nullptr);
}

void tst_Preview::previewInAll()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString b1 = makeScript(env, QStringLiteral("one"));
    const QString b2 = makeScript(env, QStringLiteral("two"));
    const QString b4 = makeScript(env, QStringLiteral("four"));
    set("Browsers", "1", b1);
    set("Browsers", "2", b2);
    set("Browsers", "4", b4);
    const QString saved = env.write(QStringLiteral("site/index.htm"), "<P>saved</P>\r\n");
    auto *doc = ws.addDocument(saved, QStringLiteral("<IMG SRC=\"img\\a.gif\">\r\n<P>edited</P>\r\n"), saved);
    publish::PreviewDocument(QString(), QStringLiteral("ALL"));
    QTRY_COMPARE(argsOf(env, b1).size(), 2);
    QTRY_COMPARE(argsOf(env, b2).size(), 1);
    QTest::qWait(300);
    QVERIFY(argsOf(env, b4).isEmpty());   // the list ends at the missing key 3
    const QUrl url(argsOf(env, b2).first());
    QCOMPARE(QFileInfo(url.toLocalFile()).absolutePath(), env.path(QStringLiteral("site")));
    QVERIFY(url.fileName().startsWith(QStringLiteral("~qly")));
    QCOMPARE(fileText(env, url.toLocalFile()), doc->edit.Text());
    QCOMPARE(env.read(saved), QByteArray("<P>saved</P>\r\n"));

    // "Publish Previews": the page holds the published text.
    set("General", "Publish Previews", QStringLiteral("Yes"));
    set("Publishing", "Convert CRLF", QStringLiteral("Yes"));
    set("Publishing", "Use UNIX Slashes", QStringLiteral("Yes"));
    publish::PreviewDocument(b2);
    QTRY_COMPARE(argsOf(env, b2).size(), 2);
    QString expected = doc->edit.Text();
    publish::PublishText(expected);
    QVERIFY(expected.contains(QStringLiteral("img/a.gif")));
    QCOMPARE(fileText(env, QUrl(argsOf(env, b2).last()).toLocalFile()), expected);
    QVERIFY(prompts.shown.isEmpty());
}

void tst_Preview::failuresTold()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    publish::previewRun().secondSendDone = true;
    const QString b1 = makeScript(env, QStringLiteral("one"));
    auto *remote = ws.addDocument(QStringLiteral("ftp.example.com/a.htm"), QStringLiteral("x"));
    remote->bRemote = true;
    publish::PreviewDocument(b1);
    QCOMPARE(status(), QStringLiteral("Quillery cannot preview remote documents"));
    ws.unloadDocument(remote);

    // A missing browser is told and the list goes on.
    ws.addDocument(env.path(QStringLiteral("a.htm")), QStringLiteral("<P>x</P>"));
    set("Browsers", "1", env.path(QStringLiteral("gone")));
    set("Browsers", "2", b1);
    publish::PreviewDocument(QString(), QStringLiteral("ALL"));
    QTRY_COMPARE(argsOf(env, b1).size(), 1);

    ws.addDocument(QStringLiteral("Untitled-2"), QStringLiteral("<P>y</P>"));
    set("General", "Publish Previews", QStringLiteral("Yes"));
    publish::PreviewDocument(b1);

    core::DeleteSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"));
    publish::tlbPreview_Click([] { QFAIL("no browser to choose from"); });
    QCOMPARE(prompts.texts(),
             (QStringList{QStringLiteral("Cannot find ") + env.path(QStringLiteral("gone")),
                          QStringLiteral("Cannot find 'Publish' directory to allow 'Publish Before Preview' option to "
                                         "work correctly."),
                          QStringLiteral("Please choose a browser to preview with, use the triangle to the left of "
                                         "this button to get the menu.")}));
    QCOMPARE(prompts.shown[0].title, QStringLiteral("WWW Browser Not Found"));
    QVERIFY(!prompts.busyNow);
}

void tst_Preview::soundsAskFirst()
{
    test::ScriptedPrompts prompts;
    prompts.answer(platform::Answer::No);
    prompts.answer(platform::Answer::Yes);
    QVERIFY(publish::AllowPreviewNavigation(QStringLiteral("http://example.com/wav/page.htm")));
    QVERIFY(!publish::AllowPreviewNavigation(QStringLiteral("file:///web/ring.WAV")));
    QVERIFY(publish::AllowPreviewNavigation(QStringLiteral("http://example.com/clip.mov?x=1")));
    QCOMPARE(prompts.shown.size(), 2);
    QCOMPARE(prompts.shown[0].title, QStringLiteral("That's not such a great idea at the moment :("));
    QVERIFY(prompts.shown[0].text.endsWith(QStringLiteral("or when you start playing a second file.  Are you sure you "
                                                          "want to continue ?")));
    QCOMPARE(prompts.shown[0].icon, platform::Icon::Question);
}

QTEST_GUILESS_MAIN(tst_Preview)
#include "tst_preview.moc"
