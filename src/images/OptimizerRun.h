#pragma once

#include "images/SiteWalk.h"

#include <QSet>
#include <functional>
#include <optional>

namespace qly::images {

// The choices of a run, as the dialog holds them.
struct RunOptions {
    std::optional<BustMode> mode;   // no image option chosen when empty
    QString level;                  // the quality factor, "80" by default
    bool overwrite = false;         // over the original pages, each kept first in its ".bak"
    QString saveDir;                // where the altered site goes otherwise
    bool removeImages = false;      // the pages lose their images instead
    bool toJpeg() const { return mode == BustMode::GifToJpeg; }
};

// One image made smaller: file, target, quality, to JPEG. The picture work
// lives on the image side; the run is handed it.
using Squisher = std::function<bool(const QString &, const QString &, int, bool)>;
// Told before each step: done, total, the file. False cancels the run.
using Progress = std::function<bool(int, int, const QString &)>;

// The tests before a run: compression level, image option, save folder and
// its drive, and a save folder that is not the site's own. Each failure is
// told, with its title, and gives false.
bool CheckRunOptions(const RunOptions &options, const SiteWalk &walk, bool manual = false);

// The new images, and in overwrite mode the pages' ".bak" copies, that an
// earlier run left: told, and replaced only when the user agrees.
bool CheckForExistingBBFiles(const SiteWalk &walk, const RunOptions &options);

struct RunResult {
    bool cancelled = false;
    QStringList written;       // images and pages written
    QStringList notOptimized;  // images outside the index page's folder, left
    qint64 newTotal = 0;       // the site's size afterwards
};

// Where the new form of a site file goes: beside it under its new name
// when the pages are overwritten, else at the same place below the save folder.
QString SaveTarget(const SiteWalk &walk, const QString &file, const RunOptions &options);
QString NewImageTarget(const SiteWalk &walk, const QString &image, const RunOptions &options);

// The images a run works on: the marked ones, or every image when none is marked.
QStringList ImagesToOptimize(const SiteWalk &walk);

// The automatic run: every image squeezed (DoImageCompression), the files
// the saved site needs copied along (CopyFilesToNewDir), every page altered
// and written (SaveNewHTML), then the report. Originals are never written
// over, except the pages when overwriting was chosen, and those after
// their ".bak" copy.
RunResult RunAuto(const SiteWalk &walk, const RunOptions &options, const Squisher &squish, const Progress &progress);

// The manual run, one image at a time.
class ManualRun
{
public:
    ManualRun(const SiteWalk &walk, const RunOptions &options);
    // GetNextManualFile: the next image, or empty with "No images left to optimize!".
    QString next();
    QString current() const { return m_current; }
    // The working copy of the current image: "BBTemp." and its extension, in `folder`.
    QString workingCopy(const QString &folder) const;
    // Keeps the working copy as the image's new file; without one (the image
    // skipped) the original is copied under the new name, so the pages
    // still find it.
    bool saveCurrent(const QString &workingCopy);
    // The pages written and the report, once every image is done.
    RunResult finish(const Progress &progress);
    int remaining() const { return int(m_images.size() - m_index); }

private:
    SiteWalk m_walk;
    RunOptions m_options;
    QStringList m_images;
    qsizetype m_index = 0;
    QString m_current;
    RunResult m_result;
};

} // namespace qly::images
