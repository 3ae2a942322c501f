// Opens a large HTML page into an edit control and reports the time and the
// process's peak memory. Run once per mode, each in its own process:
//   bench_open_large quillery FILE   the editor's control (bytes kept as on disk)
//   bench_open_large plain FILE      a plain QScintilla load of the decoded text
//   bench_open_large generate FILE [MB]
#include "BenchPage.h"
#include "documents/ui/ScintillaEdit.h"

#include <Qsci/qsciscintilla.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

#include <cstdio>

namespace {

int generate(const QString &path, int megabytes)
{
    const QByteArray row =
        "<P CLASS=\"row\">Row text with <A HREF=\"page.html#a\">a link</A>, <B>bold</B> and caf\xc3\xa9 "
        "<IMG SRC=\"images/pic.gif\" WIDTH=10 HEIGHT=10 ALT=\"x\"></P>\r\n";
    return qly::bench::writeGeneratedPage(path, megabytes, {row}) ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s quillery|plain|generate FILE [MB]\n", argv[0]);
        return 2;
    }
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString file = QString::fromLocal8Bit(argv[2]);
    if (mode == QLatin1String("generate"))
        return generate(file, argc > 3 ? std::atoi(argv[3]) : 50);

    QApplication app(argc, argv);
    const long before = qly::bench::peakKiB();
    QElapsedTimer timer;
    long bytes = 0;
    if (mode == QLatin1String("quillery")) {
        qly::documents::ui::ScintillaEdit edit;
        timer.start();
        if (!edit.LoadFile(1, file).ok())
            return 1;
        bytes = edit.GetTextLength();
        const qint64 ms = timer.elapsed();
        std::printf("quillery  load %6lld ms  chars %ld  peak %ld MiB (start %ld MiB)\n", ms, bytes,
                    qly::bench::peakKiB() / 1024, before / 1024);
    } else {
        QsciScintilla sci;
        timer.start();
        QFile in(file);
        if (!in.open(QIODevice::ReadOnly))
            return 1;
        sci.setUtf8(true);
        sci.setText(QString::fromUtf8(in.readAll()));
        bytes = sci.length();
        const qint64 ms = timer.elapsed();
        std::printf("plain     load %6lld ms  bytes %ld  peak %ld MiB (start %ld MiB)\n", ms, bytes,
                    qly::bench::peakKiB() / 1024, before / 1024);
    }
    return 0;
}
