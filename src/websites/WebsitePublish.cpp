#include "websites/WebsitePublish.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/FileFilter.h"
#include "platform/Prompts.h"
#include "publish/Publish.h"
#include "websites/LinkedFiles.h"
#include "websites/WebsiteList.h"

#include <QDir>
#include <QFileInfo>

namespace qly::websites {

namespace {

bool isPage(const QString &path)
{
    return QDir::match(documents::WebPageMasks().split(u';', Qt::SkipEmptyParts), core::FileNameOf(path));
}

// The place of `file` below the website's folder; empty when it lies elsewhere.
QString placeInSite(const QString &file, const QString &siteDir)
{
    if (siteDir.isEmpty())
        return QString();
    const QString relative = QDir(siteDir).relativeFilePath(QFileInfo(file).absoluteFilePath());
    return (relative.startsWith(QLatin1String("..")) || QDir::isAbsolutePath(relative)) ? QString() : relative;
}


} // namespace

WebsitePublishReport PublishWebsite(int id, const QString &directory)
{
    WebsitePublishReport report;
    const WebsiteList::Website *w = WebsiteList::instance().website(id);
    if (!w)
        return report;
    const QString siteDir = w->localDirectory.trimmed();
    if (directory.isEmpty() || !QDir().mkpath(directory)) {
        report.refused = QStringLiteral("The folder ") + directory + QStringLiteral(" cannot be made.");
        return report;
    }
    if (!siteDir.isEmpty() && QFileInfo(directory) == QFileInfo(siteDir)) {
        report.refused = QStringLiteral("The website's own folder cannot take its published files: "
                                        "they would replace the files they are made from. Please choose another folder.");
        return report;
    }
    QStringList done;
    auto target = [&](const QString &file) {
        const QString place = placeInSite(file, siteDir);
        const QString path = QDir(directory).filePath(place.isEmpty() ? core::FileNameOf(file) : place);
        QDir().mkpath(QFileInfo(path).absolutePath());
        return path;
    };
    // A target that is the file itself is never written.
    auto writable = [&](const QString &file, const QString &to) { return QFileInfo(to) != QFileInfo(file); };
    auto copy = [&](const QString &file) {
        const QString to = target(file);
        if (writable(file, to) && core::copyFileAtomically(file, to).ok())
            ++report.copied;
        else
            report.failed << file;
    };
    QStringList linked;
    for (const QString &file : w->files) {
        if (done.contains(file))
            continue;
        done << file;
        core::ShowStatus(QStringLiteral("Publishing ") + file);
        if (!isPage(file)) {
            copy(file);
            continue;
        }
        const QString to = target(file);
        if (!core::FileExists(file) || !writable(file, to) || !publish::PublishFile(file, to)) {
            report.failed << file;
            continue;
        }
        ++report.published;
        for (const QString &l : CollectLinkedFiles(file)) {
            if (!linked.contains(l))
                linked << l;
        }
    }
    for (const QString &file : linked) {
        if (done.contains(file) || !core::FileExists(file))
            continue;
        done << file;
        if (placeInSite(file, siteDir).isEmpty())
            report.outside << file;
        else
            copy(file);
    }
    core::ShowStatus(QString());
    return report;
}

void ShowWebsitePublish(int id)
{
    const WebsiteList::Website *w = WebsiteList::instance().website(id);
    if (!w)
        return;
    const QString name = w->name;
    const QString directory = platform::prompts().chooseDirectory(
        QStringLiteral("Publish Website ") + name,
        core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Publish")));
    if (directory.isEmpty())
        return;
    const WebsitePublishReport r = PublishWebsite(id, directory);
    if (!r.refused.isEmpty()) {
        platform::MsgBox(r.refused, platform::Buttons::Ok, platform::Icon::Exclamation);
        return;
    }
    QString text = QStringLiteral("The website \"%1\" was published to %2: %3 pages published, %4 other files copied.")
                       .arg(name, directory).arg(r.published).arg(r.copied);
    if (!r.failed.isEmpty())
        text += QStringLiteral("\n\nThese files could not be published:\n") + r.failed.join(u'\n');
    if (!r.outside.isEmpty())
        text += QStringLiteral("\n\nThese files that pages link to lie outside the website's folder and were left out:\n")
                + r.outside.join(u'\n');
    platform::MsgBox(text, platform::Buttons::Ok,
                     r.failed.isEmpty() ? platform::Icon::Information : platform::Icon::Exclamation);
}

} // namespace qly::websites
