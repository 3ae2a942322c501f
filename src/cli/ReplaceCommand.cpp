#include "cli/Commands.h"

#include "texttools/GrepModel.h"

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

// Reads the options shared by "grep" and "replace"; false on a usage error.
bool parse(const QStringList &arguments, bool replacing, texttools::GrepModel &m)
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
            return false;
        } else {
            m.entries << a;
        }
    }
    return !m.entries.isEmpty();
}

} // namespace

// grep -e TERM... ENTRY...: the files that hold a term, without regard to case.
int grepCommand(const QStringList &arguments)
{
    texttools::GrepModel m;
    if (!parse(arguments, false, m)) {
        std::fputs("Usage: quillery-cli grep -e TERM [-e TERM]... FILE|PATTERN...\n", stderr);
        return ExitUsage;
    }
    PrintFound found;
    const texttools::GrepSummary s = m.FindAndPresentFiles(found);
    return s.files > 0 ? ExitOk : ExitFailed;
}

// replace [options] -e FIND REPLACEMENT... ENTRY...: the multi-file replacement.
int replaceCommand(const QStringList &arguments)
{
    texttools::GrepModel m;
    if (!parse(arguments, true, m)) {
        std::fputs("Usage: quillery-cli replace [--backup] [--dos-to-unix|--unix-to-dos] [--htm-to-html]\n"
                   "       [--lower-case|--mixed-case] -e FIND REPLACEMENT [-e ...] FILE|PATTERN...\n",
                   stderr);
        return ExitUsage;
    }
    texttools::GrepProgress quiet;
    const texttools::GrepSummary s = m.NewReplace(quiet);
    const bool work = m.hasTerms() || m.options.conversion != texttools::LineEndConversion::None;
    return work && s.failures.isEmpty() && !s.cancelled ? ExitOk : ExitFailed;
}

} // namespace qly::cli
