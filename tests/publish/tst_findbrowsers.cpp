// Finding browsers on a machine made for the test (a PATH of small scripts,
// $BROWSER, a desktop default), and the browser menu's captions.
#include "core/Settings.h"
#include "publish/FindBrowsers.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QtTest>

using namespace qly;

namespace {

QString makeProgram(const test::TestEnv &env, const QString &name, const QByteArray &body = "exit 0\n")
{
    const QString path = env.write(name, "#!/bin/sh\n" + body);
    QFile(path).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return path;
}

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
    void menuCaptions();
};

void tst_FindBrowsers::findsInOrderOnce()
{
    test::TestEnv env;
    const QString firefox = makeProgram(env, QStringLiteral("bin/firefox"));
    const QString chromium = makeProgram(env, QStringLiteral("bin/chromium"));
    QFile::link(chromium, env.path(QStringLiteral("bin/chromium-browser")));   // the same program again
    env.write(QStringLiteral("bin/epiphany"), "#!/bin/sh\n");                  // does not run
    const QString mine = makeProgram(env, QStringLiteral("opt/mybrowser"));
    const QString web = makeProgram(env, QStringLiteral("opt/fakeweb"));
    makeProgram(env, QStringLiteral("bin/xdg-settings"),
                "[ \"$1 $2\" = \"get default-web-browser\" ] && echo fakeweb.desktop\n");
    env.write(QStringLiteral("share/applications/fakeweb.desktop"),
              "[Desktop Action new]\nExec=/bin/false\n[Desktop Entry]\nName=Web\nExec=env A=1 \"" + web.toUtf8()
                  + "\" %u\n");
    qputenv("PATH", env.path(QStringLiteral("bin")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", env.path(QStringLiteral("share")).toLocal8Bit());
    qputenv("XDG_DATA_DIRS", env.path(QStringLiteral("none")).toLocal8Bit());
    qputenv("BROWSER", (mine + QStringLiteral(" %s:firefox:no-such-program")).toLocal8Bit());

    // $BROWSER's commands in order, the desktop's default, then PATH.
    core::WriteSetting(QStringLiteral("Browsers"), QStringLiteral("1"), QStringLiteral("/opt/old"));
    core::WriteSetting(QStringLiteral("Browsers"), QStringLiteral("2"), chromium);
    publish::FindBrowsers();
    QCOMPARE(browsersSection(), (QStringList{QStringLiteral("1=/opt/old"), QStringLiteral("2=") + chromium,
                                             QStringLiteral("3=") + mine, QStringLiteral("4=") + firefox,
                                             QStringLiteral("5=") + web}));
    QCOMPARE(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser")), mine);

    // A chosen default stays.
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"), chromium);
    publish::FindBrowsers();
    QCOMPARE(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser")), chromium);
    QCOMPARE(browsersSection().size(), 5);
}

void tst_FindBrowsers::menuCaptions()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"),
              "[Browsers]\r\n1=/usr/bin/firefox-esr\r\n2=C:\\Program Files\\Plus!\\IEXPLORE.EXE\r\n3=  \r\n"
              "4=C:\\Netscape\\Program\\netscape.exe\r\n5=/home/me/bin/webthing\r\n6=/usr/bin/chromium\r\n");
    QStringList captions;
    for (const publish::BrowserEntry &e : publish::BrowserMenuEntries())
        captions << e.caption + u'=' + e.path;
    QCOMPARE(captions, (QStringList{QStringLiteral("Firefox ESR=/usr/bin/firefox-esr"),
                                    QStringLiteral("Internet Explorer=C:\\Program Files\\Plus!\\IEXPLORE.EXE"),
                                    QStringLiteral("Netscape Navigator=C:\\Netscape\\Program\\netscape.exe"),
                                    QStringLiteral("webthing=/home/me/bin/webthing")}));
}

QTEST_GUILESS_MAIN(tst_FindBrowsers)
#include "tst_findbrowsers.moc"
