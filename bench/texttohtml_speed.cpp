// Text to HTML on a large text file.
//   bench_texttohtml_speed generate FILE MB   writes a text of MB megabytes
//   bench_texttohtml_speed run IN OUT         converts IN with every rule on
#include "BenchPage.h"

#include "platform/ConsolePrompts.h"
#include "texttools/TextToHtmlFile.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

using namespace qly;

namespace {

bool generate(const QString &path, int megabytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    const QByteArray block =
        "Chapter heading\r\n\r\n"
        "Plain text of a paragraph that runs over two lines of the file, as notes\r\n"
        "and read-me files do, with a caf\xc3\xa9 and <angle> brackets in it.\r\n\r\n\r\n"
        "* first item of a list\r\n* second item of a list\r\n* third item\r\n\r\n"
        "A closing line.\r\n\r\n";
    const qint64 target = qint64(megabytes) * 1024 * 1024;
    for (qint64 n = 0; n < target; n += block.size())
        f.write(block);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    platform::ConsolePrompts prompts;
    platform::setPrompts(&prompts);
    const QStringList a = app.arguments();
    if (a.size() == 4 && a.at(1) == QLatin1String("generate"))
        return generate(a.at(2), a.at(3).toInt()) ? 0 : 1;
    if (a.size() != 4 || a.at(1) != QLatin1String("run")) {
        std::fputs("usage: bench_texttohtml_speed generate FILE MB | run IN OUT\n", stderr);
        return 2;
    }
    texttools::ConvertOptions o;
    o.makePara = o.makeList = o.makeBreak = o.firstHead = o.otherHead = true;
    o.bullet = QStringLiteral("*");
    o.firstTag = QStringLiteral("<H1>");
    o.otherTag = QStringLiteral("<H2>");
    QElapsedTimer timer;
    timer.start();
    if (!texttools::ConvertTextFile(a.at(2), a.at(3), o))
        return 1;
    const double ms = double(timer.nsecsElapsed()) / 1e6;
    const double mb = double(QFileInfo(a.at(2)).size()) / 1048576.0;
    std::printf("%-26s %7.1f MB %8.0f ms %8.1f MB/s, peak %ld MiB\n", "Quillery ConvertTextFile", mb, ms,
                mb / (ms / 1000.0), bench::peakKiB() / 1024);
    return 0;
}
