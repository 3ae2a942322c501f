// Speed of the markup text operations on a large page, in memory:
//   bench_markup_speed generate FILE [MB]     writes a generated page
//   bench_markup_speed run FILE FIND REPLACE [OUT]
// "run" times LowerCaseTags and ReplaceAll (exact and without regard to
// case) and prints MB/s of input; with OUT it writes the exact replacement's
// result there, so it can be compared byte for byte with another tool's.
#include "core/TextCodec.h"
#include "markup/TextOps.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include "BenchPage.h"

#include <cstdio>

namespace {

int generate(const QString &path, int megabytes)
{
    const QByteArrayList rows = {
        "<P CLASS=\"Row\">The quick fox jumps over the lazy dog, and the <A HREF=\"Page.html#Top\">link to "
        "the page</A> is <B>bold</B>.\r\n",
        "<TABLE BORDER=1 WIDTH=\"100%\"><TR><TD ALIGN=Center>Caf\xc3\xa9 of the town</TD><TD>"
        "<IMG SRC=\"Images/Pic.GIF\" WIDTH=10 HEIGHT=10 ALT=\"The picture\"></TD></TR></TABLE>\r\n",
        "<UL><LI>Other text without that word, <EM>emphasised</EM> here</LI><LI>THE end</LI></UL>\r\n",
    };
    return qly::bench::writeGeneratedPage(path, megabytes, rows, "<BODY BGCOLOR=\"#FFFFFF\">") ? 0 : 1;
}

void report(const char *what, qint64 bytes, qint64 ns, long hits = -1)
{
    const double mb = double(bytes) / (1024.0 * 1024.0);
    const double s = double(ns) / 1e9;
    std::printf("%-26s %7.1f MB %8.0f ms %8.1f MB/s", what, mb, s * 1000.0, mb / s);
    if (hits >= 0)
        std::printf("  hits %ld", hits);
    std::printf("\n");
}

int run(const QString &path, const QString &find, const QString &replacement, const QString &outPath)
{
    QFile in(path);
    if (!in.open(QIODevice::ReadOnly))
        return 1;
    const QByteArray bytes = in.readAll();
    QElapsedTimer timer;
    timer.start();
    const QString text = QString::fromUtf8(bytes);
    report("decode UTF-8", bytes.size(), timer.nsecsElapsed());

    timer.start();
    const QString lowered = qly::markup::LowerCaseTags(text);
    report("LowerCaseTags", bytes.size(), timer.nsecsElapsed());

    QString exact = text;
    timer.start();
    const long exactHits = qly::markup::ReplaceAll(exact, find, replacement, qly::markup::BinaryCompare);
    report("ReplaceAll exact", bytes.size(), timer.nsecsElapsed(), exactHits);

    QString anyCase = text;
    timer.start();
    const long caseHits = qly::markup::ReplaceAll(anyCase, find, replacement, qly::markup::TextCompare);
    report("ReplaceAll ignoring case", bytes.size(), timer.nsecsElapsed(), caseHits);

    if (!outPath.isEmpty()) {
        QFile out(outPath);
        if (!out.open(QIODevice::WriteOnly) || out.write(exact.toUtf8()) < 0)
            return 1;
    }
    return lowered.size() == text.size() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() >= 3 && args.at(1) == QLatin1String("generate"))
        return generate(args.at(2), args.size() > 3 ? args.at(3).toInt() : 20);
    if (args.size() >= 5 && args.at(1) == QLatin1String("run"))
        return run(args.at(2), args.at(3), args.at(4), args.value(5));
    std::fprintf(stderr, "usage: %s generate FILE [MB] | run FILE FIND REPLACE [OUT]\n", argv[0]);
    return 2;
}
