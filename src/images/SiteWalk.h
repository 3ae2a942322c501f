#pragma once

#include "images/PageOptimizer.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace qly::images {

// What the optimizer found by walking a site from its index page.
struct SiteWalk {
    QString indexPage;
    QStringList pages;          // the index first, then each page once, in the order found
    QList<Resource> resources;  // pages, images and other files, each once, with size and kind
    QStringList missing;        // local files named by a link that are not there
    QStringList absolute;       // pages holding an absolute file reference
    qint64 totalBytes() const;
    QString siteFolder() const;
};

// The kind word of a resource: "gif/jpg" for an image, "html" for a page,
// else the lower-cased extension ("css", "class", ...; "file" without one).
QString ResourceKind(const QString &path);

// Reads one page and adds what it names: images and other files to the
// resource list, local pages to the pages to walk. Addresses on the net
// are left out. A page that is not there gives "Cannot Open" and false.
bool AutoParseFile(const QString &file, SiteWalk &walk);
// Walks every page found so far, and the pages they name in turn, until no
// new page turns up: the whole site reachable by local links, each page read once.
void ParseRestofProject(SiteWalk &walk);
// Both, from the index page.
SiteWalk WalkSite(const QString &indexPage);

// The resources above `markKb` kilobytes, as OverMarkSize marks them, and
// the site's size and download time at `speed` (one of SpeedRows()).
struct SiteFigures {
    QString size;   // "##0,000 Kb."
    QString time;   // "12.3 sec."
};
SiteFigures DisplayResources(const SiteWalk &walk, const QString &speed);

// True when `path` lies in the folder of the index page or below it.
bool InSiteFolder(const SiteWalk &walk, const QString &path);

// The absolute-reference message, naming the files.
void FinishAsAbsoluteFound(const QStringList &files);

} // namespace qly::images
