#include "images/OptimizerRun.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "images/GifReader.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace qly::images {

namespace {

bool refuse(const QString &text, const QString &title)
{
    platform::MsgBox(text, platform::Buttons::Ok, platform::Icon::Exclamation, title);
    return false;
}

QString canonicalFolder(const QString &dir)
{
    const QString c = QFileInfo(dir).canonicalFilePath();
    return c.isEmpty() ? QDir::cleanPath(QDir(dir).absolutePath()) : c;
}

// The nearest folder of `dir` that exists, so the drive of a folder still to
// be made can be looked at.
QString existingAncestor(QString dir)
{
    dir = QDir::cleanPath(QDir(dir).absolutePath());
    while (!QFileInfo(dir).isDir()) {
        const QString up = core::DirectoryOf(dir);
        if (up.isEmpty() || up == dir)
            return {};
        dir = up;
    }
    return dir;
}

bool copyFile(const QString &from, const QString &to)
{
    return QDir().mkpath(core::DirectoryOf(to)) && core::copyFileAtomically(from, to).ok();
}

bool isImage(const Resource &r)
{
    return r.kind == QLatin1String("gif/jpg");
}

// Pages, the images' new files and the files the saved site needs: what
// both runs do once the images are done. `done` holds the images that
// already have their new file.
void finishSite(const SiteWalk &walk, const RunOptions &options, const QSet<QString> &done, const Progress &progress,
                RunResult &result)
{
    QSet<QString> originals;
    for (const Resource &r : walk.resources)
        originals.insert(r.path);
    const BustMode mode = options.mode.value_or(BustMode::Replace);
    QStringList steps;
    for (const Resource &r : walk.resources)
        if (InSiteFolder(walk, r.path) && (r.kind != QLatin1String("html") || walk.pages.contains(r.path)))
            steps << r.path;
    int step = 0;
    for (const Resource &r : walk.resources) {
        if (!steps.contains(r.path))
            continue;
        if (progress && !progress(step++, int(steps.size()), r.path)) {
            result.cancelled = true;
            return;
        }
        if (r.kind == QLatin1String("html")) {
            const QString target = SaveTarget(walk, r.path, options);
            if (!options.overwrite && originals.contains(target))
                continue;
            const core::IoResult io = options.removeImages
                ? SaveNewHTML(r.path, RemoveAllImages, options.overwrite, core::DirectoryOf(target))
                : SaveNewHTML(
                    r.path,
                    [&](const QString &text) {
                        // An image outside the site has no new file: its tag keeps pointing at the old one.
                        return AlterHTML(text, r.path, mode, options.toJpeg(),
                                         [&](const QString &image) { return !InSiteFolder(walk, image); });
                    },
                    options.overwrite, core::DirectoryOf(target));
            if (io.ok())
                result.written << target;
            else
                platform::MsgBox(io.message, platform::Buttons::Ok, platform::Icon::Exclamation, QStringLiteral("Page Optimizer"));
            continue;
        }
        // An image without a smaller form still needs its new name, which the pages will use.
        if (isImage(r) && !done.contains(r.path) && !options.removeImages) {
            const QString target = NewImageTarget(walk, r.path, options);
            if (!originals.contains(target) && copyFile(r.path, target))
                result.written << target;
        }
        // CopyFilesToNewDir: the saved site takes its files along.
        if (!options.overwrite) {
            const QString target = SaveTarget(walk, r.path, options);
            if (!originals.contains(target) && copyFile(r.path, target))
                result.written << target;
        }
    }
    // The site's size in its new form: what a browser loads after the change.
    for (const Resource &r : walk.resources) {
        QString now = r.kind == QLatin1String("html") ? SaveTarget(walk, r.path, options) : r.path;
        if (isImage(r) && InSiteFolder(walk, r.path) && mode != BustMode::LowSrc)
            now = NewImageTarget(walk, r.path, options);
        const QFileInfo info(now);
        result.newTotal += info.isFile() ? info.size() : r.bytes;
    }
    platform::MsgBox(CompressReport(result.newTotal, result.notOptimized), platform::Buttons::Ok, platform::Icon::Information,
                     platform::programTitle() + QStringLiteral(" Site Optimized!"));
}

} // namespace

bool CheckRunOptions(const RunOptions &options, const SiteWalk &walk, bool manual)
{
    const QString program = platform::programTitle();
    if (!manual && !options.removeImages && Val(options.level) <= 0)
        return refuse(QStringLiteral("Please choose a level of compression"), program + QStringLiteral("Compression Level"));
    if (!options.mode && !(options.removeImages && !manual))
        return manual ? refuse(QStringLiteral("Please Select an Image replacement option"), QStringLiteral("Missing Image Option"))
                      : refuse(QStringLiteral("Please Select an Image Replacement Option"), program + QStringLiteral("Image Replacement"));
    if (!options.overwrite) {
        if (options.saveDir.trimmed().isEmpty())
            return refuse(QStringLiteral("Please enter a directory to save the altered HTML in"), program + QStringLiteral("Save Directory"));
        const QString base = existingAncestor(options.saveDir);
        const QStorageInfo drive(base);
        if (base.isEmpty() || !drive.isValid() || !drive.isReady() || drive.isReadOnly())
            return refuse(QStringLiteral("The drive you have entered does not exist, or is not capable of saving and entire site onto it."),
                          program + QStringLiteral(" Invalid Save Drive"));
        if (canonicalFolder(options.saveDir) == canonicalFolder(walk.siteFolder()))
            return refuse(QStringLiteral("The save directory is the folder of the site itself.  Please choose another "
                                         "directory, or Overwrite Original HTML."),
                          program + QStringLiteral("Save Directory"));
    }
    if (!walk.absolute.isEmpty()) {
        FinishAsAbsoluteFound(walk.absolute);
        return false;
    }
    if (options.removeImages)
        return CheckForExistingBBFiles(walk, options);
    if (ImagesToOptimize(walk).isEmpty())
        return refuse(QStringLiteral("No Images to optimize."), QStringLiteral("Page Optimizer"));
    return CheckForExistingBBFiles(walk, options);
}

bool CheckForExistingBBFiles(const SiteWalk &walk, const RunOptions &options)
{
    QStringList found;
    for (const Resource &r : walk.resources) {
        QString earlier;
        if (isImage(r) && !options.removeImages)
            earlier = NewImageTarget(walk, r.path, options);
        else if (options.overwrite && r.kind == QLatin1String("html"))
            earlier = core::StripExtension(r.path) + QStringLiteral(".bak");
        if (!earlier.isEmpty() && QFileInfo::exists(earlier))
            found << earlier;
    }
    if (found.isEmpty())
        return true;
    return platform::MsgBox(QStringLiteral("These files of an earlier run are there already and would be replaced:\r\n")
                                + found.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n\r\nReplace them?"),
                            platform::Buttons::YesNo, platform::Icon::Question, QStringLiteral("Page Optimizer"))
        == platform::Answer::Yes;
}

QString SaveTarget(const SiteWalk &walk, const QString &file, const RunOptions &options)
{
    if (options.overwrite)
        return file;
    return QDir::cleanPath(core::JoinPath(options.saveDir, QDir(walk.siteFolder()).relativeFilePath(file)));
}

QString NewImageTarget(const SiteWalk &walk, const QString &image, const RunOptions &options)
{
    const BustMode mode = options.mode.value_or(BustMode::Replace);
    return core::JoinPath(core::DirectoryOf(SaveTarget(walk, image, options)), GetNewFileName(image, mode, options.toJpeg()));
}

QStringList ImagesToOptimize(const SiteWalk &walk)
{
    QStringList marked, all;
    for (const Resource &r : walk.resources) {
        if (!isImage(r))
            continue;
        all << r.path;
        if (r.marked)
            marked << r.path;
    }
    return marked.isEmpty() ? all : marked;
}

RunResult RunAuto(const SiteWalk &walk, const RunOptions &options, const Squisher &squish, const Progress &progress)
{
    RunResult result;
    QSet<QString> originals, done;
    for (const Resource &r : walk.resources)
        originals.insert(r.path);
    const QStringList images = options.removeImages ? QStringList() : ImagesToOptimize(walk);
    const int quality = int(Val(options.level));
    // DoImageCompression
    for (qsizetype i = 0; i < images.size(); ++i) {
        const QString &image = images.at(i);
        if (progress && !progress(int(i), int(images.size()), image)) {
            result.cancelled = true;
            return result;
        }
        if (!InSiteFolder(walk, image)) {
            result.notOptimized << image;
            continue;
        }
        const QString target = NewImageTarget(walk, image, options);
        if (originals.contains(target) || !QDir().mkpath(core::DirectoryOf(target)))
            continue;
        if (squish(image, target, quality, options.toJpeg())) {
            result.written << target;
            done.insert(image);
        }
    }
    finishSite(walk, options, done, progress, result);
    return result;
}

ManualRun::ManualRun(const SiteWalk &walk, const RunOptions &options) : m_walk(walk), m_options(options)
{
    for (const QString &image : ImagesToOptimize(walk)) {
        if (InSiteFolder(walk, image))
            m_images << image;
        else
            m_result.notOptimized << image;
    }
}

QString ManualRun::next()
{
    if (m_index >= m_images.size()) {
        m_current.clear();
        platform::MsgBox(QStringLiteral("No images left to optimize!"), platform::Buttons::Ok, platform::Icon::Information,
                         QStringLiteral("No Images Left"));
        return {};
    }
    m_current = m_images.at(m_index++);
    return m_current;
}

QString ManualRun::workingCopy(const QString &folder) const
{
    QString ext = core::GetFileExt(m_current);
    if (m_options.toJpeg())
        ext = QStringLiteral("jpg");
    return core::JoinPath(folder, QStringLiteral("BBTemp.") + ext);
}

bool ManualRun::saveCurrent(const QString &workingCopy)
{
    if (m_current.isEmpty())
        return false;
    const QString target = NewImageTarget(m_walk, m_current, m_options);
    bool original = false;
    for (const Resource &r : m_walk.resources)
        original |= r.path == target;
    const QString from = QFileInfo(workingCopy).isFile() ? workingCopy : m_current;
    if (original || !copyFile(from, target))
        return false;
    m_result.written << target;
    return true;
}

RunResult ManualRun::finish(const Progress &progress)
{
    QSet<QString> done;
    for (const QString &image : m_images)
        if (m_result.written.contains(NewImageTarget(m_walk, image, m_options)))
            done.insert(image);
    finishSite(m_walk, m_options, done, progress, m_result);
    return m_result;
}

} // namespace qly::images
