// Finding browsers on a machine made for the test (a PATH of small scripts,
// $BROWSER, a desktop default), the captions of the browser menu, and the
// browser chooser's list.
#include "core/OptionsHooks.h"
#include "core/Settings.h"
#include "publish/BrowserModel.h"
#include "publish/FindBrowsers.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace qly;

namespace {

QString makeProgram(const QString &dir, const QString &name, const QByteArray &body = "exit 0\n")
{
    QDir().mkpath(dir);
    const QString path = dir + u'/' + name;
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write("#!/bin/sh\n" + body);
    f.close();
    f.setPermissions(f.permissions() | QFileDevice::ExeOwner | QFileDevice::ExeUser);
    return path;
}

// Sets environment variables for one test and puts them back afterwards.
class ScopedEnv
{
public:
    void set(const char *name, const QString &value)
    {
        m_old.append({name, qgetenv(name), qEnvironmentVariableIsSet(name)});
        qputenv(name, value.toLocal8Bit());
    }
    ~ScopedEnv()
    {
        for (auto it = m_old.crbegin(); it != m_old.crend(); ++it) {
            if (it->wasSet)
                qputenv(it->name, it->value);
            else
                qunsetenv(it->name);
        }
    }

private:
    struct Old {
        const char *name;
        QByteArray value;
        bool wasSet;
    };
    QList<Old> m_old;
};

QStringList browsersSection()
{
    return core::ReadSection(QStringLiteral("Browsers"));
}

} // namespace

class tst_FindBrowsers : public QObject
{
    Q_OBJECT
private slots:
    void findsInOrderOnce();
    void keepsTheListAndDefault();
    void desktopEntry_data();
    void desktopEntry();
    void menuCaptions();
    void chooserList();
};

void tst_FindBrowsers::findsInOrderOnce()
{
    test::TestEnv env;
    ScopedEnv vars;
    const QString bin = env.path(QStringLiteral("bin"));
    const QString firefox = makeProgram(bin, QStringLiteral("firefox"));
    const QString chromium = makeProgram(bin, QStringLiteral("chromium"));
    // Another name of the same program is listed once.
    QFile::link(chromium, bin + QStringLiteral("/chromium-browser"));
    // Not executable: no browser.
    env.write(QStringLiteral("bin/epiphany"), "#!/bin/sh\n");
    const QString mine = makeProgram(env.path(QStringLiteral("opt")), QStringLiteral("mybrowser"));
    const QString web = makeProgram(env.path(QStringLiteral("opt")), QStringLiteral("fakeweb"));
    makeProgram(bin, QStringLiteral("xdg-settings"),
                "[ \"$1 $2\" = \"get default-web-browser\" ] && echo fakeweb.desktop\n");
    env.write(QStringLiteral("share/applications/fakeweb.desktop"),
              "[Desktop Entry]\nName=Fake Web\nExec=env MOZ_X=1 " + web.toUtf8() + " %u\n"
              "[Desktop Action new]\nExec=/bin/false\n");
    vars.set("PATH", bin);
    vars.set("XDG_DATA_HOME", env.path(QStringLiteral("share")));
    vars.set("XDG_DATA_DIRS", env.path(QStringLiteral("nothing")));
    vars.set("BROWSER", mine + QStringLiteral(" %s:firefox:no-such-program"));

    // $BROWSER's commands in their order, then the desktop's default, then PATH.
    QCOMPARE(publish::DiscoverBrowsers(), (QStringList{mine, firefox, web, chromium}));

    publish::FindBrowsers();
    QCOMPARE(browsersSection(), (QStringList{QStringLiteral("1=") + mine, QStringLiteral("2=") + firefox,
                                             QStringLiteral("3=") + web, QStringLiteral("4=") + chromium}));
    QCOMPARE(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser")), mine);

    // Without $BROWSER and a desktop default, the programs on PATH alone.
    vars.set("BROWSER", QString());
    QFile::remove(bin + QStringLiteral("/xdg-settings"));
    QCOMPARE(publish::DiscoverBrowsers(), (QStringList{firefox, chromium}));
}

void tst_FindBrowsers::keepsTheListAndDefault()
{
    test::TestEnv env;
    ScopedEnv vars;
    const QString bin = env.path(QStringLiteral("bin"));
    const QString firefox = makeProgram(bin, QStringLiteral("firefox"));
    const QString falkon = makeProgram(bin, QStringLiteral("falkon"));
    vars.set("PATH", bin);
    vars.set("BROWSER", QString());
    vars.set("XDG_DATA_HOME", env.path(QStringLiteral("share")));
    core::WriteSetting(QStringLiteral("Browsers"), QStringLiteral("1"), QStringLiteral("/opt/old/browser"));
    core::WriteSetting(QStringLiteral("Browsers"), QStringLiteral("2"), falkon);
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"), falkon);
    publish::FindBrowsers();
    QCOMPARE(browsersSection(), (QStringList{QStringLiteral("1=/opt/old/browser"), QStringLiteral("2=") + falkon,
                                             QStringLiteral("3=") + firefox}));
    QCOMPARE(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser")), falkon);
}

void tst_FindBrowsers::desktopEntry_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("found");
    QTest::newRow("plain") << QByteArray("[Desktop Entry]\nExec=PROG %u\n") << true;
    QTest::newRow("quoted, after other keys") << QByteArray("[Desktop Entry]\nName=x\nExec=\"PROG\" --new %U\n") << true;
    QTest::newRow("only in an action") << QByteArray("[Desktop Action x]\nExec=PROG\n") << false;
    QTest::newRow("missing program") << QByteArray("[Desktop Entry]\nExec=/no/such/prog %u\n") << false;
}

void tst_FindBrowsers::desktopEntry()
{
    QFETCH(QByteArray, entry);
    QFETCH(bool, found);
    test::TestEnv env;
    const QString prog = makeProgram(env.path(QStringLiteral("bin")), QStringLiteral("prog"));
    const QString file = env.write(QStringLiteral("a.desktop"), QByteArray(entry).replace("PROG", prog.toUtf8()));
    QCOMPARE(publish::DesktopEntryExecutable(file), found ? prog : QString());
}

void tst_FindBrowsers::menuCaptions()
{
    test::TestEnv env;
    const char *values[][2] = {
        {"1", "/usr/bin/firefox-esr"},     {"2", "C:\\Program Files\\Plus!\\IEXPLORE.EXE"},
        {"3", "  "},                       {"4", "C:\\Netscape\\Program\\netscape.exe"},
        {"5", "/home/me/bin/webthing"},    {"6", "/usr/bin/chromium"},
    };
    for (const auto &v : values)
        core::WriteSetting(QStringLiteral("Browsers"), QLatin1String(v[0]), QLatin1String(v[1]));
    const std::vector<publish::BrowserEntry> entries = publish::BrowserMenuEntries();
    QStringList captions;
    for (const publish::BrowserEntry &e : entries)
        captions << e.caption;
    // Empty values take no entry; four at most.
    QCOMPARE(captions, (QStringList{QStringLiteral("Firefox ESR"), QStringLiteral("Internet Explorer"),
                                    QStringLiteral("Netscape Navigator"), QStringLiteral("webthing")}));
    QCOMPARE(entries[3].path, QStringLiteral("/home/me/bin/webthing"));
}

void tst_FindBrowsers::chooserList()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    int menuRebuilt = 0;
    core::optionsHooks().loadBrowserMenu = [&] { ++menuRebuilt; };
    core::WriteSetting(QStringLiteral("Browsers"), QStringLiteral("1"), QStringLiteral("/usr/bin/a"));
    core::WriteSetting(QStringLiteral("Browsers"), QStringLiteral("2"), QStringLiteral("/usr/bin/b"));
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"), QStringLiteral("/usr/bin/b"));
    publish::BrowserModel model;
    QCOMPARE(model.rows(), (QStringList{QStringLiteral("/usr/bin/a"), QStringLiteral("*/usr/bin/b")}));
    QCOMPARE(model.defaultRow(), 1);

    prompts.chooseFiles({QStringLiteral("/opt/c")});
    QCOMPARE(model.btnAdd_Click(), 2);
    QCOMPARE(prompts.fileRequests[0].filter, QStringLiteral("Program Files  (*.exe)|*.exe|All Files (*.*)|*.*"));
    model.btnSetDefault_Click(2);
    QCOMPARE(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser")), QStringLiteral("/opt/c"));
    model.btnremove_Click(0);
    QCOMPARE(model.rows(), (QStringList{QStringLiteral("/usr/bin/b"), QStringLiteral("*/opt/c")}));

    // OK with "don't ask" and no row: the list is kept, nothing previewed.
    model.confirm(-1, true, false);
    QCOMPARE(core::ReadSetting(QStringLiteral("General"), QStringLiteral("Choose Browser Before Preview")),
             QStringLiteral("No"));
    QCOMPARE(browsersSection(), (QStringList{QStringLiteral("1=/usr/bin/b"), QStringLiteral("2=/opt/c")}));
    QCOMPARE(menuRebuilt, 1);
    core::optionsHooks().loadBrowserMenu = nullptr;
}

QTEST_GUILESS_MAIN(tst_FindBrowsers)
#include "tst_findbrowsers.moc"
