// Publishes a large page with every pass on and reports the time:
//   bench_publish_speed generate FILE [MB]    writes the page and its aliases.inf beside it
//   bench_publish_speed publish FILE TARGET   publishes with the program data of FILE's directory
#include "core/Globals.h"
#include "core/Paths.h"
#include "platform/ConsolePrompts.h"
#include "publish/Publish.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include "BenchPage.h"

#include <cstdio>

namespace {

int generate(const QString &path, int megabytes)
{
    const QByteArray row =
        "<P CLASS=\"row\">Caf\xc3\xa9 cr\xc3\xa8me, %%NAME%% wrote <A HREF=\"docs\\page.html#a\">a link</A> "
        "\xc2\xa9 2024 <IMG SRC=\"images\\pic.gif\" WIDTH=10 ALT=\"x\"> C:\\dir</P>\r\n";
    if (!qly::bench::writeGeneratedPage(path, megabytes, {row}))
        return 1;
    QFile aliases(QFileInfo(path).dir().filePath(QStringLiteral("aliases.inf")));
    if (!aliases.open(QIODevice::WriteOnly))
        return 1;
    aliases.write("%%NAME%%\x02Jane Doe\x02yes\x02no\r\n");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s generate FILE [MB] | publish FILE TARGET\n", argv[0]);
        return 2;
    }
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString file = QString::fromLocal8Bit(argv[2]);
    if (mode == QLatin1String("generate"))
        return generate(file, argc > 3 ? std::atoi(argv[3]) : 20);
    if (argc < 4)
        return 2;
    qly::platform::ConsolePrompts prompts;
    qly::platform::setPrompts(&prompts);
    const QString dir = QFileInfo(file).absolutePath();
    qly::core::setProgramDirectory(dir);
    qly::core::gIniFile = QDir(dir).filePath(QStringLiteral("bench.ini"));
    QFile ini(qly::core::gIniFile);
    if (!ini.open(QIODevice::WriteOnly))
        return 1;
    ini.write("[Publishing]\r\nTranslate Extended Characters=Yes\r\nUse Aliases=Yes\r\nUse UNIX Slashes=Yes\r\n"
              "Publish as UNIX Text=Yes\r\n[General]\r\nCreate BAK Files=Yes\r\n");
    ini.close();
    QElapsedTimer timer;
    timer.start();
    const bool ok = qly::publish::PublishFile(file, QString::fromLocal8Bit(argv[3]));
    std::printf("quillery  publish %6lld ms  bytes %lld\n", timer.elapsed(), QFileInfo(file).size());
    return ok ? 0 : 1;
}
