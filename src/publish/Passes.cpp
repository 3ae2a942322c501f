#include "publish/Passes.h"

#include "core/Feedback.h"
#include "core/Settings.h"
#include "markup/CharacterCodes.h"
#include "publish/Aliases.h"

namespace qly::publish {

namespace {

bool publishing(const char *key)
{
    return core::ReadSettingFlag(QStringLiteral("Publishing"), QString::fromLatin1(key));
}

} // namespace

PassSettings readPassSettings()
{
    PassSettings s;
    s.convertLineEnds = publishing("Convert CRLF");
    s.stripLineEnds = publishing("Strip CRLF");
    s.unixText = publishing("Publish as UNIX Text");
    s.translateCharacters = publishing("Translate Extended Characters");
    s.useAliases = publishing("Use Aliases");
    s.unixSlashes = publishing("Use UNIX Slashes");
    return s;
}

void runPasses(const PassSettings &settings, PassTarget &target)
{
    core::ShowStatus(QStringLiteral("Processing Carriage Returns..."));
    if (settings.convertLineEnds)
        target.replaceLineEnds("<BR>");
    if (settings.stripLineEnds)
        target.replaceLineEnds("");
    core::ShowStatus(QStringLiteral("Processing Carriage Returns - DOS To Unix"));
    if (settings.unixText)
        target.replaceLineEnds("\n");
    core::ShowStatus(QStringLiteral("Translating extended characters..."));
    if (settings.translateCharacters) {
        markup::EnsureCharacterCodes();
        target.translateCharacters();
    }
    if (settings.useAliases) {
        core::ShowStatus(QStringLiteral("Translating aliases..."));
        if (settings.unixText)
            aliasesToUnixLineEnds();
        target.applyAliases();
    }
    if (settings.unixSlashes) {
        core::ShowStatus(QStringLiteral("Translating UNIX slashes..."));
        target.convertSlashesToUnix();
    }
}

} // namespace qly::publish
