// Opens a large HTML page into a shown edit control with word wrap off or
// on, as a document window does (wrap set, then the file loaded), and
// reports the time until the first screen is painted, then the time of
// Ctrl+End until the last screen is painted; "later" opens with wrap off
// and then turns it on (as the Options dialog does), timing that too. One
// mode per process:
//   bench_open_wrapped off|on|later FILE [colour]
// The page comes from bench_open_large's generator (run_open_wrapped.sh).
#include "BenchPage.h"
#include "documents/ui/ScintillaEdit.h"
#include "platform/HTMLEdit.h"

#include <Qsci/qsciscintilla.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWidget>

#include <cstdio>

namespace {

// Paints what is on screen now and runs what the paint queued.
void paintNow(QsciScintilla &view)
{
    view.viewport()->repaint();
    QCoreApplication::processEvents();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s off|on|later FILE [colour]\n", argv[0]);
        return 2;
    }
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const bool wrap = mode == QLatin1String("on");
    const bool later = mode == QLatin1String("later");
    const QString file = QString::fromLocal8Bit(argv[2]);
    const bool colour = argc > 3;

    QApplication app(argc, argv);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    qly::documents::ui::ScintillaEdit edit(&window);
    layout->addWidget(edit.view());
    window.resize(1000, 700);
    window.show();
    QCoreApplication::processEvents();
    edit.setColorMode(colour ? qly::platform::ColorTagSyntax : qly::platform::ColorOff);

    QElapsedTimer timer;
    timer.start();
    edit.setWordWrap(wrap);
    if (!edit.LoadFile(1, file).ok())
        return 1;
    paintNow(*edit.view());
    const qint64 openMs = timer.elapsed();
    qint64 laterMs = -1;
    if (later) {
        timer.restart();
        edit.setWordWrap(true);
        paintNow(*edit.view());
        laterMs = timer.elapsed();
    }

    timer.restart();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_End, Qt::ControlModifier);
    QCoreApplication::sendEvent(edit.view(), &press);
    paintNow(*edit.view());
    const qint64 endMs = timer.elapsed();
    const long line = edit.view()->SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION,
                                                 edit.view()->SendScintilla(QsciScintillaBase::SCI_GETCURRENTPOS));

    std::printf("wrap %-5s  open %6lld ms  Ctrl+End %6lld ms (to line %ld)  peak %ld MiB", qPrintable(mode), openMs,
                endMs, line + 1, qly::bench::peakKiB() / 1024);
    if (later)
        std::printf("  wrap turned on %lld ms", laterMs);
    std::printf("\n");
    return 0;
}
