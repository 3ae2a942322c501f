#pragma once

#include "generators/ImageMapModel.h"

#include <QList>
#include <QPoint>
#include <QString>
#include <optional>

namespace qly::generators {

// The image map editor's rules that ask or tell the user something; the
// canvas calls them, tests drive them with scripted answers.

// True when another hotspot may be drawn; with 15 drawn, says so and is false.
bool MayStartRegion(const ImageMapModel &model);

// A polygon being drawn: left clicks add vertices, a right click closes it.
class PolygonDraft
{
public:
    bool active() const { return !m_points.isEmpty(); }
    const QList<QPoint> &points() const { return m_points; }
    void start(QPoint twips);
    // Adds a vertex; at the fifteenth it says so and adds nothing.
    bool addPoint(QPoint twips);
    // Ends the drawing. A polygon of one point has no area: it is dropped
    // (told in the status bar) and nothing comes back.
    std::optional<MapRegion> finish();
    void cancel() { m_points.clear(); }

private:
    QList<QPoint> m_points;
};

// "Are you sure you want to delete this region?"
bool ConfirmDeleteRegion();
// With unwritten hotspots asks whether to compile: Yes, No or Cancel. With
// none, No without asking.
enum class CompileChoice { Compile, Discard, Stay };
CompileChoice ConfirmCompile(const ImageMapModel &model);
// False, after the message, when there is no hotspot to compile.
bool CheckCanCompile(const ImageMapModel &model);
// False, after the message, for an empty URL or map name.
bool CheckHotspotURL(const QString &url);
bool CheckMapName(const QString &name);
// Regions reaching outside the picture: told once, kept as they are.
void TellRegionsOutside(const QList<int> &numbers);
// The picture's location as the dialog shows it: a local path as a
// "File:///" URL, anything else as it is.
QString ImageLocationText(const QString &path);

} // namespace qly::generators
