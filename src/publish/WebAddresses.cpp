#include "publish/WebAddresses.h"

#include "core/Paths.h"

#include <utility>

namespace qly::publish {

namespace {

const std::pair<const char *, const char *> kAddresses[] = {
    {"HelpHTML", "https://quillery.example.org/reference/html/"},
    {"HelpInternet", "https://quillery.example.org/links/"},
    {"HelpLumenfold", "https://quillery.example.org/"},
    {"HelpSupport", "https://quillery.example.org/support/"},
    {"HelpLumenserve", "https://quillery.example.org/hosting/"},
    {"ToolsDNS", "https://quillery.example.org/tools/domain-lookup/"},
};

} // namespace

QString webAddress(const QString &command)
{
    for (const auto &[name, url] : kAddresses) {
        if (command == QLatin1String(name))
            return QString::fromLatin1(url);
    }
    return {};
}

QStringList webAddressCommands()
{
    QStringList names;
    for (const auto &entry : kAddresses)
        names << QString::fromLatin1(entry.first);
    return names;
}

QString cornucopiaPage()
{
    return core::JoinPath(core::JoinPath(core::ProgramDirectory(), QStringLiteral("Web Cornucopia")),
                          QStringLiteral("Start.htm"));
}

} // namespace qly::publish
