#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

namespace qly::transfer {

class FtpClient;

// What the site download dialog holds.
struct SiteDownloadFields {
    QString host;
    QString remoteDirectory;
    QString login;
    QString password;
    QString indexUrl;
    QString saveDirectory;
    QString projectName;
    bool fetchImages = true;
    bool overwrite = false;
};

// Whether a site can be saved under `directory`: its nearest existing
// folder is writable and lies on a mounted, writable file system. (The
// drive-type test of drive-letter systems has no meaning here; this is the
// question it asked.)
bool CheckDrive(const QString &directory);

// The dialog's checks before a download, in order, each with its message;
// a missing save directory is offered to be made. Returns the name of the
// field at fault ("cmbHost", "txtsavedirectory", ...), empty when all is
// well. A relative save directory is taken as relative to the program's
// directory and made absolute in `fields`.
QString validateSiteDownload(SiteDownloadFields &fields);

// Fetches a site over FTP from its index page: each page is read for what
// it links to, pages are queued and fetched once, images and applet files
// are fetched as they are found, every page goes into a new project file,
// and what could not be fetched is written to "Autodownload.log".
class SiteDownload final : public QObject
{
    Q_OBJECT
public:
    SiteDownload(FtpClient &ftp, const SiteDownloadFields &fields);

    // Writes one value into the new project file. By default the profile
    // writer of the configuration store; the website part may put its own.
    using ProjectWriter =
        std::function<void(const QString &projectFile, const QString &section, const QString &key, const QString &value)>;
    static ProjectWriter &projectWriter();

    // The whole run; returns when it has ended or was cancelled.
    void run();
    // Stops the run at its next step (Escape, Close).
    void cancel() { m_cancel = true; }
    bool cancelled() const { return m_cancel; }

    QString projectFile() const;
    QString logFile() const;
    QStringList pages() const { return m_urls; }
    QStringList files() const { return m_files; }
    int failures() const { return m_failures; }

signals:
    void status(const QString &text);
    void progress(int pagesDone, int pagesKnown, int filesFetched);

private:
    void InitialiseProject();
    void GetRestOfSite();
    void AutoDownParseFile(const QString &url);
    void AutoDownParse(const QString &file, const QString &pageUrl, const QString &attribute);
    void AutoJavaParse(const QString &file, const QString &pageUrl);
    void takeFile(const QString &pageUrl, const QString &value);
    bool CheckWeHaveURL(const QString &url) const;
    bool CheckWeHaveFile(const QString &link) const;
    bool FetchdaFile(const QString &relativePath);
    void PutInProject(const QString &relativePath);
    void MakeErrorReport(const QString &name);
    QString resolve(const QString &pageUrl, const QString &link) const;
    QString remoteRoot() const;

    FtpClient &m_ftp;
    SiteDownloadFields m_fields;
    QString m_sessionDir;
    QStringList m_urls;
    QStringList m_files;
    int m_next = 0;
    int m_fileCounter = 0;
    int m_fetched = 0;
    int m_failures = 0;
    bool m_cancel = false;
};

} // namespace qly::transfer
