#include "cli/Commands.h"

#include "core/Paths.h"
#include "platform/Prompts.h"
#include "texttools/TextToHtmlArguments.h"
#include "texttools/TextToHtmlFile.h"

#include <cstdio>

namespace qly::cli {

// convert IN OUT [options]: the Convert to HTML dialog's conversion of a
// text file, without a window.
int convertCommand(const QStringList &arguments)
{
    QStringList files;
    QStringList words;
    for (const QString &a : arguments)
        (a.startsWith(QLatin1String("--")) ? words : files) << a;
    texttools::ConvertOptions options;
    QString error;
    if (files.size() != 2 || !texttools::ParseConvertArguments(words, options, error)) {
        if (!error.isEmpty())
            std::fprintf(stderr, "quillery-cli: %s\n", error.toLocal8Bit().constData());
        std::fputs("Usage: quillery-cli [--ini FILE] convert IN.txt OUT.html [options]\n", stderr);
        std::fputs(texttools::ConvertArgumentsHelp().toLocal8Bit().constData(), stderr);
        return ExitUsage;
    }
    if (!core::FileExists(files.at(0))) {
        platform::MsgBox(files.at(0) + QStringLiteral(": File not found."), platform::Buttons::Ok,
                         platform::Icon::Exclamation, QStringLiteral("quillery-cli"));
        return ExitFailed;
    }
    return texttools::ConvertTextFile(files.at(0), files.at(1), options) ? ExitOk : ExitFailed;
}

} // namespace qly::cli
