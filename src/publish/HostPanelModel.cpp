#include "publish/HostPanelModel.h"

#include "core/Settings.h"

namespace qly::publish {

namespace {

const QString kSection = QStringLiteral("Lumenserve");

} // namespace

HostPanelModel HostPanelModel::load()
{
    return {core::ReadSetting(kSection, QStringLiteral("URL")), core::ReadSetting(kSection, QStringLiteral("UserName")),
            core::ReadSetting(kSection, QStringLiteral("Password"))};
}

void HostPanelModel::save() const
{
    core::WriteSetting(kSection, QStringLiteral("URL"), url.trimmed());
    core::WriteSetting(kSection, QStringLiteral("UserName"), userName);
    core::WriteSetting(kSection, QStringLiteral("Password"), password);
}

} // namespace qly::publish
