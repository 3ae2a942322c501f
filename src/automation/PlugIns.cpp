#include "automation/PlugIns.h"

#include "core/Paths.h"

#include <QFileInfo>
#include <QLibrary>

namespace qly::automation {

const std::array<PlugInSlot, PlugInCount> &PlugInSlots()
{
    static const std::array<PlugInSlot, PlugInCount> table = {{
        {"QuillChan.so", "Threadcrawl Jr.", "ThreadcrawlJR"},
        {"QuillChan.so", "CDF Wizard...", "ChannelWizard"},
        {"RealWiz.so", "Real Media Wizard...", "RealPlugIn"},
        {"Adult.so", "Adult Check...", "RunAdultCheck"},
        {"WebForms.so", "Safe Surf Wizard...", "RunSafeSurf"},
        {"LinkExch.so", "Link Exchange ...", "RunLinkExchange"},
        {"FrontBot.so", "FrontPage Components ...", "RunLinkExchange"},
        {"PlugIn8.so", "Plug-In 8...", "RunPlugIn"},
        {"PlugIn9.so", "Plug-In 9...", "RunPlugIn"},
        {"PlugIn10.so", "Auto-Download...", "RunPlugIn"},
    }};
    return table;
}

QString PlugInPath(int index)
{
    if (index < 1 || index > PlugInCount)
        return {};
    return core::JoinPath(core::ProgramDirectory(), QString::fromLatin1(PlugInSlots()[index - 1].file));
}

bool PlugInPresent(int index)
{
    const QString path = PlugInPath(index);
    return !path.isEmpty() && QFileInfo(path).isFile();
}

bool CallPlugIn(int index)
{
    const QString path = PlugInPath(index);
    if (path.isEmpty())
        return false;
    // QLibrary keeps an object loaded once; one whose file went away since
    // the start fails to load here and the click does nothing.
    QLibrary library(path);
    using Entry = void (*)();
    const auto entry = reinterpret_cast<Entry>(library.resolve(PlugInSlots()[index - 1].entry));
    if (!entry)
        return false;
    entry();
    return true;
}

} // namespace qly::automation
