#include "transfer/SiteDownload.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "markup/Attributes.h"
#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"

#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QStorageInfo>

namespace qly::transfer {

namespace {

bool isPage(const QString &value)
{
    const QString v = value.toLower();
    return v.contains(QLatin1String(".htm")) || v.contains(QLatin1String(".html"))
           || (v.contains(QLatin1String("http://")) && !v.contains(QLatin1String("mailto:")));
}

// "a/b/../c.htm" as "a/c.htm"; no leading "/".
QString cleanRelative(const QString &path)
{
    return absoluteRemote(QStringLiteral("/"), path).mid(1);
}

QString withoutAnchor(const QString &link)
{
    const qsizetype hash = link.indexOf(u'#');
    return hash >= 0 ? link.left(hash) : link;
}

QString directoryOf(const QString &relative)
{
    const qsizetype slash = relative.lastIndexOf(u'/');
    return slash >= 0 ? relative.left(slash + 1) : QString();
}

} // namespace

bool CheckDrive(const QString &directory)
{
    QFileInfo at(QDir::cleanPath(QDir(directory).absolutePath()));
    while (!at.exists() && !at.isRoot())
        at = QFileInfo(at.absolutePath());
    if (!at.isDir() || !at.isWritable())
        return false;
    const QStorageInfo storage(at.absoluteFilePath());
    return storage.isValid() && storage.isReady() && !storage.isReadOnly();
}

QString validateSiteDownload(SiteDownloadFields &f)
{
    using platform::Buttons;
    using platform::Icon;
    const auto refuse = [](const QString &title, const QString &text) {
        platform::MsgBox(text, Buttons::Ok, Icon::Exclamation, title);
    };
    if (f.host.trimmed().isEmpty()) {
        refuse(QStringLiteral("No Host Name"), QStringLiteral("Please enter a host name for the site"));
        return QStringLiteral("cmbHost");
    }
    // Drive letters are gone: a relative directory hangs below the program's
    // directory, and every directory gets the writable-place test.
    if (!f.saveDirectory.trimmed().isEmpty() && QDir::isRelativePath(f.saveDirectory))
        f.saveDirectory = core::JoinPath(core::ProgramDirectory(), f.saveDirectory);
    if (f.saveDirectory.trimmed().isEmpty() || !CheckDrive(f.saveDirectory)) {
        refuse(platform::programTitle() + QStringLiteral(" Drive Is Not Valid"),
               QStringLiteral("The drive you wish to download your site to does not exist, or is not capable of "
                              "saving the site.  Please select one that can."));
        return QStringLiteral("txtsavedirectory");
    }
    if (!core::DirExists(f.saveDirectory)) {
        const platform::Answer make = platform::MsgBox(
            QStringLiteral("Save directory does not exist.  Create it now ?"), Buttons::YesNo, Icon::Question,
            QStringLiteral("Cannot find ") + f.saveDirectory);
        if (make != platform::Answer::Yes || !QDir().mkpath(f.saveDirectory))
            return QStringLiteral("txtsavedirectory");
    }
    if (f.projectName.trimmed().isEmpty()) {
        refuse(QStringLiteral("No Project Name"), QStringLiteral("Please enter a project name"));
        return QStringLiteral("txtprojectname");
    }
    if (f.login.isEmpty()) {
        refuse(QStringLiteral("No Login Name"), QStringLiteral("Please enter a login name on the host site"));
        return QStringLiteral("txtLoginAs");
    }
    if (f.password.isEmpty()) {
        refuse(QStringLiteral("No Login Name"), QStringLiteral("Please enter a password for '") + f.login + u'\'');
        return QStringLiteral("txtPassword");
    }
    if (f.indexUrl.trimmed().isEmpty()) {
        refuse(QStringLiteral("No URL Was Specified"), QStringLiteral("No URL for index HTML page"));
        return QStringLiteral("txtIndexURL");
    }
    return QString();
}

SiteDownload::SiteDownload(FtpClient &ftp, const SiteDownloadFields &fields) : m_ftp(ftp), m_fields(fields)
{
}

SiteDownload::ProjectWriter &SiteDownload::projectWriter()
{
    static ProjectWriter writer = [](const QString &file, const QString &section, const QString &key,
                                     const QString &value) { core::WriteSetting(section, key, value, file); };
    return writer;
}

QString SiteDownload::projectFile() const
{
    return core::JoinPath(m_fields.saveDirectory, m_fields.projectName + QStringLiteral(".prj"));
}

QString SiteDownload::logFile() const
{
    return core::JoinPath(m_fields.saveDirectory, QStringLiteral("Autodownload.log"));
}

QString SiteDownload::remoteRoot() const
{
    // The index page's directory on the server: everything is relative to it.
    return m_fields.remoteDirectory.isEmpty() ? m_sessionDir : absoluteRemote(m_sessionDir, m_fields.remoteDirectory);
}

void SiteDownload::run()
{
    m_cancel = false;
    if (!m_ftp.Connected()) {
        emit status(QStringLiteral("Connecting..."));
        m_ftp.HostName = m_fields.host;
        m_ftp.UserName = m_fields.login;
        m_ftp.password = m_fields.password;
        m_ftp.LastError = 0;
        m_ftp.Blocking = false;
        m_ftp.setAction(FtpClient::Connect);
        waitForConnection(m_ftp);
        if (m_ftp.LastError > 0) {
            platform::MsgBox(QStringLiteral("An error occurred while trying to log in."), platform::Buttons::Ok,
                             platform::Icon::Exclamation, QStringLiteral("Error ") + QString::number(m_ftp.LastError));
            return;
        }
    }
    m_sessionDir = m_ftp.RemoteDir;
    if (!m_fields.remoteDirectory.isEmpty()) {
        emit status(QStringLiteral("Changing Directory..."));
        m_ftp.ChangeDirectory(m_fields.remoteDirectory);
        if (m_ftp.LastError > 0) {
            platform::MsgBox(QStringLiteral("Could not change to ") + m_fields.remoteDirectory);
            m_ftp.LastError = 0;
        }
    }
    emit status(QStringLiteral("Connected"));
    InitialiseProject();
    emit status(QStringLiteral("Fetching Site..."));
    const bool blocking = m_ftp.Blocking;
    m_ftp.Blocking = true;
    AutoDownParseFile(cleanRelative(m_fields.indexUrl));
    GetRestOfSite();
    m_ftp.Blocking = blocking;
    emit status(m_cancel ? QStringLiteral("Cancelled") : QStringLiteral("Finished"));
    m_ftp.Close();
    if (QFile::exists(core::JoinPath(m_fields.saveDirectory, QStringLiteral("Fetch.log"))))
        platform::MsgBox(QStringLiteral("Some files could not be downloaded, see Fetch.log for details"),
                         platform::Buttons::Ok, platform::Icon::None, QStringLiteral("Fetch Error"));
}

void SiteDownload::InitialiseProject()
{
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("dd/MM/yyyy HH:mm:ss"));
    const QString prj = projectFile();
    const ProjectWriter &write = projectWriter();
    write(prj, QStringLiteral("Details"), QStringLiteral("Name"), m_fields.projectName);
    write(prj, QStringLiteral("Details"), QStringLiteral("Local Directory"), m_fields.saveDirectory);
    write(prj, QStringLiteral("Details"), QStringLiteral("Created"), now);
    write(prj, QStringLiteral("Details"), QStringLiteral("Last Opened"), now);
    write(prj, QStringLiteral("Details"), QStringLiteral("Time Spent"), QStringLiteral("0"));
}

void SiteDownload::GetRestOfSite()
{
    while (m_next < m_urls.size() && !m_cancel) {
        const QString url = m_urls.at(m_next);
        if (!url.isEmpty() && !url.contains(QLatin1String("http"), Qt::CaseInsensitive))
            AutoDownParseFile(url);
        ++m_next;
        emit progress(m_next, int(m_urls.size()), m_fetched);
    }
}

void SiteDownload::AutoDownParseFile(const QString &url)
{
    if (m_cancel)
        return;
    const int failuresBefore = m_failures;
    FetchdaFile(url);
    const QString file = core::JoinPath(m_fields.saveDirectory, url);
    if (!QFile::exists(file)) {
        // Logged once: by the fetch when it failed there.
        if (m_failures == failuresBefore)
            MakeErrorReport(url);
        return;
    }
    for (const char *attribute : {"src", "background", "lowsrc", "a href"})
        AutoDownParse(file, url, QString::fromLatin1(attribute));
    AutoJavaParse(file, url);
}

QString SiteDownload::resolve(const QString &pageUrl, const QString &link) const
{
    QString v = withoutAnchor(link);
    v.replace(u'\\', u'/');
    // "/x" is from the site's root; anything else from the page's directory.
    if (v.startsWith(u'/'))
        return cleanRelative(v);
    return cleanRelative(directoryOf(pageUrl) + v);
}

void SiteDownload::AutoDownParse(const QString &file, const QString &pageUrl, const QString &attribute)
{
    QByteArray bytes;
    if (!core::readWholeFile(file, bytes).ok()) {
        platform::MsgBox(QStringLiteral("Error: the file cannot be read"), platform::Buttons::Ok,
                         platform::Icon::Exclamation, file);
        return;
    }
    const QString text = QString::fromUtf8(bytes);
    for (QString line : text.split(u'\n')) {
        while (!m_cancel) {
            const qsizetype pos = line.indexOf(attribute, 0, Qt::CaseInsensitive);
            if (pos < 0)
                break;
            const QString value = markup::GetAttributeValue(static_cast<const QString &>(line), attribute);
            if (value.isEmpty())
                break;
            const bool mail = value.contains(QLatin1String("mailto:"), Qt::CaseInsensitive);
            if (isPage(value)) {
                if (!mail) {
                    const bool remote = value.contains(QLatin1String("http"), Qt::CaseInsensitive);
                    const QString url = remote ? value : resolve(pageUrl, value);
                    if (!CheckWeHaveURL(url))
                        m_urls << url;
                }
            } else {
                takeFile(pageUrl, value);
            }
            const qsizetype at = line.indexOf(value, pos);
            line = line.mid(at >= 0 ? at + value.size() : pos + attribute.size());
        }
    }
}

void SiteDownload::takeFile(const QString &pageUrl, const QString &value)
{
    const QString v = value.toLower();
    if (v.contains(QLatin1String("mailto:")) || v.contains(QLatin1String("http://"))
        || v.contains(QLatin1String("ftp://")) || v.contains(QLatin1String("https://")))
        return;
    const QString file = resolve(pageUrl, value);
    if (file.isEmpty() || CheckWeHaveFile(file))
        return;
    m_files << file;
    FetchdaFile(file);
}

void SiteDownload::AutoJavaParse(const QString &file, const QString &pageUrl)
{
    QByteArray bytes;
    if (!core::readWholeFile(file, bytes).ok())
        return;
    const QString text = QString::fromUtf8(bytes);
    qsizetype from = 0;
    while (!m_cancel) {
        const qsizetype open = text.indexOf(QLatin1String("APPLET"), from, Qt::CaseInsensitive);
        const qsizetype close = text.indexOf(QLatin1String("</APPLET>"), from, Qt::CaseInsensitive);
        if (open < 0 || close < 0)
            break;
        const QString section = text.mid(open, close - open);
        const QString code = markup::GetAttributeValue(section, QStringLiteral("Code"));
        const QString codeBase = markup::GetAttributeValue(section, QStringLiteral("Codebase"));
        const QString dir = codeBase.isEmpty() ? QString() : codeBase + u'/';
        if (!code.isEmpty())
            takeFile(pageUrl, dir + (code.endsWith(QLatin1String(".class"), Qt::CaseInsensitive)
                                         ? code
                                         : code + QStringLiteral(".class")));
        // Parameters that name files: classes, pictures, sounds, one or a list.
        qsizetype p = 0;
        while ((p = section.indexOf(QLatin1String("value="), p, Qt::CaseInsensitive)) >= 0) {
            const QString value = markup::GetAttributeValue(section.mid(p), QStringLiteral("value"));
            p += 6;
            const QString lower = value.toLower();
            static const QStringList kinds = {QStringLiteral(".class"), QStringLiteral(".gif"), QStringLiteral(".jpg"),
                                              QStringLiteral(".peg"), QStringLiteral(".au")};
            if (!std::any_of(kinds.begin(), kinds.end(), [&](const QString &k) { return lower.endsWith(k); }))
                continue;
            for (const QString &piece : value.split(u',')) {
                if (!piece.isEmpty())
                    takeFile(pageUrl, dir + piece.trimmed());
            }
        }
        from = close + 8;
    }
}

bool SiteDownload::CheckWeHaveURL(const QString &url) const
{
    QString u = withoutAnchor(url);
    while (u.startsWith(u'.') || u.startsWith(u'/'))
        u.remove(0, 1);
    if (u.compare(cleanRelative(m_fields.indexUrl), Qt::CaseInsensitive) == 0)
        return true;
    return m_urls.contains(u, Qt::CaseInsensitive);
}

bool SiteDownload::CheckWeHaveFile(const QString &link) const
{
    return m_files.contains(link, Qt::CaseInsensitive);
}

bool SiteDownload::FetchdaFile(const QString &relative)
{
    if (m_cancel)
        return false;
    const QString local = core::JoinPath(m_fields.saveDirectory, relative);
    QDir().mkpath(QFileInfo(local).absolutePath());
    if (!m_fields.overwrite && QFile::exists(local))
        return true;
    const QString lower = relative.toLower();
    if (!m_fields.fetchImages
        && (lower.contains(QLatin1String(".gif")) || lower.contains(QLatin1String(".jpg"))
            || lower.contains(QLatin1String(".jpeg"))))
        return false;
    QString name = remoteFileName(relative);
    if (!name.isEmpty() && name.at(0).unicode() < 32)
        name.remove(0, 1);
    if (name.isEmpty())
        return false;
    // Text mode for the kinds of text the server may keep in its own line ends.
    static const QStringList text = {QStringLiteral("html"), QStringLiteral("htm"), QStringLiteral("txt"),
                                     QStringLiteral("doc")};
    m_ftp.Tag = text.contains(core::GetFileExt(name).toLower()) ? QStringLiteral("A") : QStringLiteral("I");
    m_ftp.Binary = m_ftp.Tag == QLatin1String("I");
    emit status(QStringLiteral("Fetching ") + relative);
    m_ftp.LastError = 0;
    m_ftp.GetFile(absoluteRemote(remoteRoot(), relative), local);
    if (m_ftp.LastError > 0) {
        MakeErrorReport(relative);
        if (m_ftp.LastError == ErrTimedOut)
            m_cancel = true;
        return false;
    }
    ++m_fetched;
    if (lower.contains(QLatin1String(".htm")))
        PutInProject(relative);
    return true;
}

void SiteDownload::PutInProject(const QString &relative)
{
    projectWriter()(projectFile(), QStringLiteral("Files"), QString::number(m_fileCounter++),
                    core::JoinPath(m_fields.saveDirectory, relative));
}

void SiteDownload::MakeErrorReport(const QString &name)
{
    ++m_failures;
    QByteArray log;
    if (QFile::exists(logFile()))
        core::readWholeFile(logFile(), log);
    log += "Couldn't get: " + name.toUtf8() + "\r\n";
    core::writeFileAtomically(logFile(), log);
}

} // namespace qly::transfer
