#include "cli/Commands.h"

#include "texttools/GrepModel.h"

#include <QFile>

#include <cstdio>

namespace qly::cli {

namespace {

// Found files go to standard output, one a line; nothing else does.
class PrintFound final : public texttools::GrepProgress
{
public:
    void processing(const QString &, int, int) override {}
    void addToFoundList(const QString &line) override
    {
        if (!line.isEmpty() && !line.startsWith(u'-'))
            std::printf("%s\n", line.toLocal8Bit().constData());
    }
};

// Terms from a file, one a line; when replacing, the find text and its
// replacement are parted by a tab. Empty lines are skipped. False when the
// file cannot be read.
bool readTermsFile(const QString &path, bool replacing, QList<texttools::Term> &terms)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "quillery-cli: cannot read the terms file %s\n", path.toLocal8Bit().constData());
        return false;
    }
    const QStringList lines = QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'));
    for (QString line : lines) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (line.isEmpty())
            continue;
        texttools::Term t;
        const qsizetype tab = replacing ? line.indexOf(QLatin1Char('\t')) : -1;
        t.find = tab < 0 ? line : line.left(tab);
        if (tab >= 0)
            t.replacement = line.mid(tab + 1);
        terms << t;
    }
    return true;
}

enum class Parsed { Ok, Usage, Error };

// Reads the options shared by "find" and "replace".
Parsed parse(const QStringList &arguments, bool replacing, texttools::GrepModel &m)
{
    using namespace texttools;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        const qsizetype left = arguments.size() - i - 1;
        if (a == QLatin1String("-e") && left >= (replacing ? 2 : 1)) {
            Term t{arguments.at(++i), {}};
            if (replacing)
                t.replacement = arguments.at(++i);
            m.terms << t;
        } else if (a == QLatin1String("-f") && left >= 1) {
            if (!readTermsFile(arguments.at(++i), replacing, m.terms))
                return Parsed::Error;
        } else if (replacing && a == QLatin1String("--backup")) {
            m.options.backup = true;
        } else if (replacing && a == QLatin1String("--dos-to-unix")) {
            m.options.conversion = LineEndConversion::DosToUnix;
        } else if (replacing && a == QLatin1String("--unix-to-dos")) {
            m.options.conversion = LineEndConversion::UnixToDos;
        } else if (replacing && a == QLatin1String("--htm-to-html")) {
            m.options.htmToHtml = true;
        } else if (replacing && a == QLatin1String("--lower-case")) {
            m.options.nameCase = NameCase::Lower;
        } else if (replacing && a == QLatin1String("--mixed-case")) {
            m.options.nameCase = NameCase::Mixed;
        } else if (a.startsWith(QLatin1String("-")) && a.size() > 1) {
            return Parsed::Usage;
        } else {
            m.entries << a;
        }
    }
    return m.entries.isEmpty() ? Parsed::Usage : Parsed::Ok;
}

} // namespace

// find [-f TERMS] -e TERM... ENTRY...: the files that hold a term, without
// regard to case, one a line; the count on standard error. 0 with hits, 1
// with none, 2 when a file could not be read or the command was wrong.
int findCommand(const QStringList &arguments)
{
    texttools::GrepModel m;
    const Parsed parsed = parse(arguments, false, m);
    if (parsed != Parsed::Ok) {
        if (parsed == Parsed::Usage)
            std::fputs("Usage: quillery-cli find [-f TERMS-FILE] [-e TERM]... FILE|PATTERN...\n", stderr);
        return ExitUsage;
    }
    PrintFound found;
    const texttools::GrepSummary s = m.FindAndPresentFiles(found);
    std::fprintf(stderr, "%d files found\n", s.files);
    if (!s.failures.isEmpty() || !m.hasTerms())
        return ExitUsage;
    return s.files > 0 ? ExitOk : ExitFailed;
}

// replace [options] [-f TERMS] -e FIND REPLACEMENT... ENTRY...: the
// multi-file replacement. 0 when something was replaced or converted, 1 when
// nothing was, 2 when a file failed or the command was wrong.
int replaceCommand(const QStringList &arguments)
{
    texttools::GrepModel m;
    const Parsed parsed = parse(arguments, true, m);
    if (parsed != Parsed::Ok) {
        if (parsed == Parsed::Usage)
            std::fputs("Usage: quillery-cli replace [--backup] [--dos-to-unix|--unix-to-dos] [--htm-to-html]\n"
                       "       [--lower-case|--mixed-case] [-f TERMS-FILE] [-e FIND REPLACEMENT]... FILE|PATTERN...\n",
                       stderr);
        return ExitUsage;
    }
    texttools::GrepProgress quiet;
    const texttools::GrepSummary s = m.NewReplace(quiet);
    const bool conversion = m.options.conversion != texttools::LineEndConversion::None;
    if ((!m.hasTerms() && !conversion) || !s.failures.isEmpty() || s.cancelled)
        return ExitUsage;
    return s.replacements > 0 || (conversion && s.files > 0) ? ExitOk : ExitFailed;
}

} // namespace qly::cli
