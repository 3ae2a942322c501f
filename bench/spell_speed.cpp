// Spell checking a large page: every word the dictionary does not know, in
// order, as the checker's session finds them.
//   bench_spell_speed generate FILE MB   writes a page of about MB megabytes:
//                                        English prose from the dictionary's
//                                        own words, one in forty misspelt,
//                                        with markup, attributes and entities
//   bench_spell_speed run PAGE LIST      lists the unknown words of PAGE
#include "BenchPage.h"

#include "core/FileIo.h"
#include "core/TextCodec.h"
#include "platform/ConsolePrompts.h"
#include "texttools/SpellCheck.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>

#include <cstdio>

using namespace qly;

namespace {

// Plain lower-case words of the installed en_US dictionary.
QByteArrayList dictionaryWords()
{
    QFile f(QStringLiteral("/usr/share/hunspell/en_US.dic"));
    QByteArrayList words;
    if (!f.open(QIODevice::ReadOnly))
        return words;
    f.readLine();
    while (!f.atEnd()) {
        const QByteArray w = f.readLine().split('/').first().trimmed();
        if (w.size() >= 3 && w.size() <= 10 && w.at(0) >= 'a' && w.at(0) <= 'z' && !w.contains('\''))
            words << w;
    }
    return words;
}

bool generate(const QString &path, int megabytes)
{
    const QByteArrayList words = dictionaryWords();
    if (words.isEmpty()) {
        std::fputs("the en_US dictionary is not installed (apt-get install hunspell-en-us)\n", stderr);
        return false;
    }
    // Prose draws from a working vocabulary, as real pages do.
    QRandomGenerator rng(1);
    QByteArrayList vocabulary;
    for (int i = 0; i < 3000; ++i)
        vocabulary << words.at(rng.bounded(int(words.size())));
    QByteArray page = "<HTML>\r\n<HEAD><TITLE>Generated page</TITLE>\r\n<STYLE>P { color: navy }</STYLE></HEAD>\r\n<BODY>\r\n";
    const qint64 target = qint64(megabytes) * 1024 * 1024;
    while (page.size() < target) {
        page += "<P CLASS=\"notez\">";
        for (int i = 0; i < 60; ++i) {
            QByteArray w = vocabulary.at(rng.bounded(int(vocabulary.size())));
            if (rng.bounded(40) == 0)
                std::swap(w[1], w[2]);   // a typing slip
            if (i == 10)
                page += "<A HREF=\"pagez.html\">" + w + "</A> ";
            else if (i == 30)
                page += w + "&nbsp;";
            else
                page += w + ' ';
        }
        page += "</P>\r\n";
    }
    page += "</BODY>\r\n</HTML>\r\n";
    return core::writeFileAtomically(path, page).ok();
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
        std::fputs("usage: bench_spell_speed generate FILE MB | run PAGE LIST\n", stderr);
        return 2;
    }
    QElapsedTimer timer;
    timer.start();
    QByteArray bytes;
    if (!core::readWholeFile(a.at(2), bytes).ok())
        return 1;
    QString error;
    auto checker = texttools::SpellChecker::open(texttools::MainDictionary(), error);
    if (!checker) {
        std::fprintf(stderr, "%s\n", error.toLocal8Bit().constData());
        return 1;
    }
    const double loadMs = double(timer.nsecsElapsed()) / 1e6;
    texttools::SpellSession session(core::decodeFile(bytes).text, std::move(checker), nullptr);
    QByteArray list;
    int count = 0;
    while (session.next()) {
        list += session.word().toUtf8() + '\n';
        ++count;
        session.act(texttools::SpellAction::Ignore);
    }
    const double ms = double(timer.nsecsElapsed()) / 1e6;
    core::writeFileAtomically(a.at(3), list);
    std::printf("%-26s %6.1f MB %8.0f ms (dictionary %.0f ms), %d unknown words, peak %ld MiB\n",
                "Quillery spell session", double(bytes.size()) / 1048576.0, ms, loadMs, count,
                bench::peakKiB() / 1024);
    return 0;
}
