#pragma once

#include <QString>
#include <QStringList>

namespace qly::websites {

// What publishing a website did.
struct WebsitePublishReport {
    QString refused;        // why nothing was done; empty when it ran
    int published = 0;      // pages through the publish passes
    int copied = 0;         // other files, byte for byte
    QStringList failed;     // files that could not be read or written
    QStringList outside;    // linked files outside the website's folder, left out
};

// Publishes every file of the website into `directory`, keeping each file's
// place below the website's folder ("Local Directory"; a file elsewhere
// goes to the top by its name). Web pages go through the publish passes
// (publish::PublishFile, with its ".bak" rule for a target that exists);
// other files, and the files that the pages take along (images, style
// sheets: CollectLinkedFiles) when they lie in the website's folder, are
// copied unchanged. The website's own files are never written: a
// `directory` that is the website's folder is refused.
WebsitePublishReport PublishWebsite(int id, const QString &directory);

// The website tree's Publish: asks for the folder, starting at [File
// Locations] "Publish", publishes, and says what was done.
void ShowWebsitePublish(int id);

} // namespace qly::websites
