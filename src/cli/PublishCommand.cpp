#include "cli/Commands.h"

#include "core/Paths.h"
#include "platform/Prompts.h"
#include "publish/Publish.h"

#include <cstdio>

namespace qly::cli {

// publish SOURCE TARGET: the editor's publishing of a file, without a window.
int publishCommand(const QStringList &arguments)
{
    if (arguments.size() != 2) {
        std::fputs("Usage: quillery-cli [--ini FILE] publish SOURCE TARGET\n", stderr);
        return ExitUsage;
    }
    const QString &source = arguments.at(0);
    const QString &target = arguments.at(1);
    // A missing source is refused before anything is written, so the target
    // stays as it was.
    if (!core::FileExists(source)) {
        platform::MsgBox(source + QStringLiteral(": File not found."), platform::Buttons::Ok,
                         platform::Icon::Exclamation, QStringLiteral("quillery-cli"));
        return ExitFailed;
    }
    return publish::PublishFile(source, target) ? ExitOk : ExitFailed;
}

} // namespace qly::cli
