#include "generators/ImageMapRules.h"

#include "core/Feedback.h"
#include "markup/Links.h"
#include "platform/Prompts.h"

namespace qly::generators {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

bool MayStartRegion(const ImageMapModel &model)
{
    if (model.RegionCount() != ImageMapModel::MaxRegions)
        return true;
    platform::MsgBox(QStringLiteral("Sorry. Quillery only allows you to create 15 hotspot regions."), Buttons::Ok,
                     Icon::Exclamation, QStringLiteral("ImageMap"));
    return false;
}

void PolygonDraft::start(QPoint twips)
{
    m_points = {twips};
}

bool PolygonDraft::addPoint(QPoint twips)
{
    if (m_points.size() >= ImageMapModel::MaxPolygonPoints) {
        platform::MsgBox(QStringLiteral("Sorry. Quillery only allows polygons with up to 15 sides. "
                                        "Please right click to finish this polygon."),
                         Buttons::Ok, Icon::Exclamation, QStringLiteral("Drawing Polygon"));
        return false;
    }
    m_points << twips;
    return true;
}

std::optional<MapRegion> PolygonDraft::finish()
{
    const QList<QPoint> points = m_points;
    m_points.clear();
    if (points.size() < 2) {
        if (!points.isEmpty())
            core::ShowStatus(QStringLiteral("A polygon of one point has no area; it was dropped."));
        return std::nullopt;
    }
    MapRegion region;
    region.shape = RegionShape::Polygon;
    region.points = points;
    fitPolygonBox(region);
    return region;
}

bool ConfirmDeleteRegion()
{
    return platform::MsgBox(QStringLiteral("Are you sure you want to delete this region?"), Buttons::YesNo,
                            Icon::Question, QStringLiteral("Confirm Hotspot Delete"))
           == Answer::Yes;
}

CompileChoice ConfirmCompile(const ImageMapModel &model)
{
    if (!model.mapChanged)
        return CompileChoice::Discard;
    switch (platform::MsgBox(QStringLiteral("Do you want to compile this image map?"), Buttons::YesNoCancel,
                             Icon::Question, QStringLiteral("Compile..."))) {
    case Answer::Yes:
        return CompileChoice::Compile;
    case Answer::No:
        return CompileChoice::Discard;
    default:
        return CompileChoice::Stay;
    }
}

bool CheckCanCompile(const ImageMapModel &model)
{
    if (model.RegionCount() > 0)
        return true;
    platform::MsgBox(QStringLiteral("Please create a map to compile..."), Buttons::Ok, Icon::Exclamation,
                     QStringLiteral("No Map Defined"));
    return false;
}

bool CheckHotspotURL(const QString &url)
{
    if (!url.trimmed().isEmpty())
        return true;
    platform::MsgBox(QStringLiteral("Please enter a URL"), Buttons::Ok, Icon::Exclamation,
                     QStringLiteral("URL not entered"));
    return false;
}

bool CheckMapName(const QString &name)
{
    if (!name.trimmed().isEmpty())
        return true;
    platform::MsgBox(QStringLiteral("Please enter a Map Name"), Buttons::Ok, Icon::Exclamation,
                     QStringLiteral("Map Name"));
    return false;
}

void TellRegionsOutside(const QList<int> &numbers)
{
    if (numbers.isEmpty())
        return;
    QStringList names;
    for (int n : numbers)
        names << QString::number(n);
    platform::MsgBox(QStringLiteral("Hotspot %1 reaches outside the picture. It is kept as it is; "
                                    "move it onto the picture or delete it.")
                         .arg(names.join(QStringLiteral(", "))),
                     Buttons::Ok, Icon::Exclamation, QStringLiteral("ImageMap"));
}

QString ImageLocationText(const QString &path)
{
    if (path.isEmpty() || path.contains(QStringLiteral("://")))
        return path;
    QString url = markup::PathToFileUrl(path);
    if (url.startsWith(QStringLiteral("file:///")))
        url.replace(0, 8, QStringLiteral("File:///"));
    // An old drive path: "File:///C|/dir/map.gif".
    if (markup::hasDrive(path) && url.size() > 9 && url.at(9) == QLatin1Char(':'))
        url[9] = QLatin1Char('|');
    return url;
}

} // namespace qly::generators
