// The colouring's speed on large pages, in a shown edit control:
//   bench_colour_speed generate FILE MB [oneline]   a page of rows, or one line
//   bench_colour_speed open FILE                     load, colour all, report
//   bench_colour_speed type FILE end|middle N        N keys typed, time per key
//   QLY_BENCH_PLAIN=1 types with colouring off, QLY_BENCH_WRAP=1 with word wrap on.
// The tag catalogue's HTML 4 tags and script words are the known words.
#include "BenchPage.h"
#include "documents/KnownWords.h"
#include "documents/ui/HtmlColouring.h"
#include "documents/ui/ScintillaEdit.h"

#include <Qsci/qsciscintilla.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace qly;

namespace {

QByteArrayList rows(bool oneLine)
{
    QByteArrayList list = {
        "<P CLASS=\"row\">Row text with <A HREF=\"page.html#a\">a link</A>, <B>bold</B> and caf\xc3\xa9 "
        "<IMG SRC=\"images/pic.gif\" WIDTH=10 HEIGHT=10 ALT=\"x\"></P>\r\n",
        "<!-- a comment between rows --><DIV ALIGN=center><FONT SIZE=\"+1\">Heading</FONT></DIV>\r\n",
        "<SCRIPT>if (document.images) { window.alert(\"x\" + document.title.length); } // note\r\n</SCRIPT>\r\n",
    };
    if (oneLine) {
        for (QByteArray &row : list)
            row.replace("\r\n", " ");
    }
    return list;
}

void knowHtml4()
{
    documents::KnownWords words;
    for (const char *t : {"html", "head", "title", "body", "p", "a", "b", "img", "div", "font", "script"})
        words.tags.insert(t);
    for (const char *w : {"if", "var", "for"})
        words.scriptWords.insert(w, documents::ScriptWordClass::Statement);
    for (const char *w : {"document", "window"})
        words.scriptWords.insert(w, documents::ScriptWordClass::Object);
    words.scriptWords.insert("alert", documents::ScriptWordClass::Method);
    for (const char *w : {"images", "title", "length"})
        words.scriptWords.insert(w, documents::ScriptWordClass::Property);
    documents::setKnownWords(words);
}

struct Shown {
    QWidget host;
    documents::ui::ScintillaEdit *edit;
    Shown() : edit(new documents::ui::ScintillaEdit(&host))
    {
        edit->view()->resize(1000, 700);
        host.resize(1000, 700);
        edit->SetFontAndSize(QStringLiteral("Monospace"), 10);
        edit->setColorMode(qEnvironmentVariableIsSet("QLY_BENCH_PLAIN") ? platform::ColorOff : platform::ColorTagSyntax);
        if (qEnvironmentVariableIsSet("QLY_BENCH_WRAP"))
            edit->setWordWrap(true);
        // What the main window does on each caret move: the position panel.
        if (!qEnvironmentVariableIsSet("QLY_BENCH_NOPANEL")) QObject::connect(edit, &documents::ui::ScintillaEdit::caretMoved, edit, [e = edit] {
            int line = 0, column = 0;
            e->GetLineAndCol(line, column);
            (void)e->SelStart();
        });
        host.show();
    }
};

// Lets the program run until the page is coloured to its end.
void waitColoured(documents::ui::ScintillaEdit &edit)
{
    while (!edit.colouringComplete())
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
}

int open(const QString &file)
{
    const long before = bench::peakKiB();
    QElapsedTimer timer;
    timer.start();
    Shown shown;
    if (!shown.edit->LoadFile(1, file).ok())
        return 1;
    QApplication::processEvents();
    const qint64 shownMs = timer.elapsed();
    waitColoured(*shown.edit);
    std::printf("open %s: shown and coloured on screen %lld ms, coloured to the end %lld ms, peak %ld MiB "
                "(start %ld MiB)\n",
                qPrintable(file), shownMs, timer.elapsed(), bench::peakKiB() / 1024, before / 1024);
    return 0;
}

int type(const QString &file, bool middle, int keys)
{
    Shown shown;
    if (!shown.edit->LoadFile(1, file).ok())
        return 1;
    waitColoured(*shown.edit);
    QsciScintilla *sci = shown.edit->view();
    const long length = sci->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    sci->SendScintilla(QsciScintillaBase::SCI_GOTOPOS, middle ? length / 2 : length);
    sci->setFocus();
    QApplication::processEvents();
    std::vector<double> ms;
    QElapsedTimer timer;
    for (int k = 0; k < keys; ++k) {
        const char c = "<b>x</b> "[k % 9];
        timer.start();
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(c)));
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(QLatin1Char(c)));
        QApplication::sendEvent(sci, &press);
        QApplication::sendEvent(sci, &release);
        const double keyMs = double(timer.nsecsElapsed()) / 1e6;
        // The repaint of what changed, with the styling it asks for.
        QApplication::processEvents();
        const double paintMs = double(timer.nsecsElapsed()) / 1e6;
        ms.push_back(double(timer.nsecsElapsed()) / 1e6);
        if (qEnvironmentVariableIsSet("QLY_BENCH_DETAIL"))
            std::printf("key %.2f paint %.2f events %.2f\n", keyMs, paintMs, ms.back());
    }
    std::sort(ms.begin(), ms.end());
    std::printf("type %s at the %s: %d keys, median %.2f ms, 90%% %.2f ms, max %.2f ms\n", qPrintable(file),
                middle ? "middle" : "end", keys, ms[ms.size() / 2], ms[ms.size() * 9 / 10], ms.back());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s generate|open|type FILE ...\n", argv[0]);
        return 2;
    }
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString file = QString::fromLocal8Bit(argv[2]);
    if (mode == QLatin1String("generate")) {
        const bool oneLine = argc > 4 && QByteArray(argv[4]) == "oneline";
        return bench::writeGeneratedPage(file, argc > 3 ? std::atoi(argv[3]) : 50, rows(oneLine),
                                         oneLine ? "<BODY>" : "<BODY>\r\n")
                   ? 0
                   : 1;
    }
    QApplication app(argc, argv);
    knowHtml4();
    if (mode == QLatin1String("open"))
        return open(file);
    if (mode == QLatin1String("type") && argc > 4)
        return type(file, QByteArray(argv[3]) == "middle", std::atoi(argv[4]));
    return 2;
}
