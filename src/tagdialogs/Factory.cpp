#include "tagdialogs/FontModels.h"
#include "tagdialogs/ImageModel.h"
#include "tagdialogs/LinkModels.h"
#include "tagdialogs/ListModel.h"
#include "tagdialogs/PropertiesModel.h"
#include "tagdialogs/SimpleModels.h"

namespace qly::tagdialogs {

std::unique_ptr<TagDialogModel> makeTagDialogModel(const QString &name)
{
    const auto is = [&name](const char *n) { return name == QLatin1String(n); };
    if (is("frmImage"))
        return std::make_unique<ImageModel>();
    if (is("frmLink"))
        return std::make_unique<LinkModel>();
    if (is("frmFTPLink"))
        return std::make_unique<SchemeLinkModel>(SchemeLinkModel::Ftp);
    if (is("frmNews"))
        return std::make_unique<SchemeLinkModel>(SchemeLinkModel::News);
    if (is("frmMail"))
        return std::make_unique<SchemeLinkModel>(SchemeLinkModel::Mail);
    if (is("frmAnchor"))
        return std::make_unique<AnchorModel>();
    if (is("frmHR"))
        return std::make_unique<RuleModel>();
    if (is("frmFont"))
        return std::make_unique<FontModel>();
    if (is("frmBaseFont"))
        return std::make_unique<BaseFontModel>();
    if (is("frmList"))
        return std::make_unique<ListModel>(0);
    if (is("frmBackSound"))
        return std::make_unique<BackSoundModel>();
    if (is("frmProperties"))
        return std::make_unique<PropertiesModel>();
    return nullptr;
}

} // namespace qly::tagdialogs
