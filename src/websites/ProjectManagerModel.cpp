#include "websites/ProjectManagerModel.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "platform/Prompts.h"
#include "websites/Password.h"
#include "websites/ProjectFile.h"
#include "websites/TimeSpent.h"
#include "websites/WebsiteList.h"
#include "websites/Websites.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace qly::websites {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

namespace {
const QString Details = QStringLiteral("Details");
const QString Directories = QStringLiteral("Directories");
}

void ProjectManagerModel::setWebsite(int id)
{
    const WebsiteList::Website *w = WebsiteList::instance().website(id);
    m_id = w ? id : NoWebsite;
    m_projectFile = w ? w->projectFile : QString();
}

void ProjectManagerModel::setProjectFile(const QString &path)
{
    WebsiteList &list = WebsiteList::instance();
    for (int i = 0; i < list.WebsiteCount(); ++i) {
        const int id = list.WebsiteIdAt(i);
        if (list.website(id)->projectFile == path)
            return setWebsite(id);
    }
    OpenWebsite(path);
    for (int i = 0; i < list.WebsiteCount(); ++i) {
        const int id = list.WebsiteIdAt(i);
        if (list.website(id)->projectFile == path)
            return setWebsite(id);
    }
}

void ProjectManagerModel::LoadWebsiteForm()
{
    const bool known = m_id < NoWebsite && core::FileExists(m_projectFile);
    auto value = [&](const QString &section, const char *key) {
        return known ? ReadProjectValue(m_projectFile, section, QString::fromLatin1(key)) : QString();
    };
    txtName = value(Details, "Name");
    txtProjectDirectory = value(Details, "Local Directory");
    if (txtProjectDirectory.isEmpty())
        txtProjectDirectory = core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"));
    txtWebServer = value(Details, "Host");
    txtWebDirectory = value(Details, "Directory");
    if (txtWebServer.isEmpty()) {
        txtWebServer = core::ReadSetting(QStringLiteral("General"), QStringLiteral("Default Web Server"));
        txtWebDirectory = core::ReadSetting(QStringLiteral("General"), QStringLiteral("Default Directory"));
    }
    txtLoginAs = value(Details, "Login As");
    txtPassword = known ? ProjectPassword(m_projectFile) : QString();
    keepInKeyring = known && PasswordInKeyring(m_projectFile);
    txtDocuments = value(Directories, "Documents");
    txtGraphics = value(Directories, "Graphics");
    lblProjectCreated = value(Details, "Created");
    lblLastOpened = value(Details, "Last Opened");
    lblTimeSpent = known ? ProjectTimeSpent(m_projectFile) : QString();
    showFacts();
    changed = false;
}

void ProjectManagerModel::showFacts()
{
    const QFileInfo info(m_projectFile);
    lblProjFile = m_projectFile;
    lblNumberOfFiles = m_id < NoWebsite ? QString::number(WebsiteList::instance().WebsiteFileCount(m_id)) : QString();
    lblSize = info.exists() ? QLocale::system().formattedDataSize(info.size()) : QString();
    lblDateModified = info.exists() ? QLocale::system().toString(info.lastModified(), QLocale::ShortFormat) : QString();
}

void ProjectManagerModel::WriteProjINI(const QString &section, const QString &key, const QString &value)
{
    if (m_id >= NoWebsite) {
        platform::MsgBox(QStringLiteral("That project setting will cannot be saved. Sorry"));
        return;
    }
    WriteProjectValue(section, key, value, m_projectFile);
}

bool ProjectManagerModel::SaveWebsiteForm()
{
    if (txtName.isEmpty()) {
        platform::MsgBox(QStringLiteral("Please enter a name for this website"), Buttons::Ok, Icon::Exclamation,
                         QStringLiteral("Website Name Missing"));
        return false;
    }
    core::BeginWait();
    WebsiteList &list = WebsiteList::instance();
    if (m_id >= NoWebsite) {
        platform::FileRequest request;
        request.title = QStringLiteral("Save Website");
        request.fileName = txtName;
        request.filter = QStringLiteral("Websites (*.prj)|*.prj|All Files|*.*");
        request.defaultSuffix = QStringLiteral("prj");
        request.promptOverwrite = true;
        request.directory = txtWebDirectory;   // as the dialog always has
        const platform::FileAnswer answer = platform::prompts().saveFile(request);
        if (!answer.accepted()) {
            core::EndWait();
            return true;
        }
        m_id = list.AddWebsite(txtName);
        m_projectFile = answer.files.first();
        list.website(m_id)->projectFile = m_projectFile;
    }
    WebsiteList::Website *w = list.website(m_id);
    WriteProjINI(Details, QStringLiteral("Name"), txtName.trimmed());
    WriteProjINI(Details, QStringLiteral("Local Directory"), txtProjectDirectory.trimmed());
    WriteProjINI(Details, QStringLiteral("Host"), txtWebServer);
    WriteProjINI(Details, QStringLiteral("Directory"), txtWebDirectory);
    WriteProjINI(Details, QStringLiteral("Login As"), txtLoginAs);
    if (m_id < NoWebsite)
        keepInKeyring = StoreProjectPassword(m_projectFile, txtPassword, keepInKeyring);
    if (w) {
        w->localDirectory = txtProjectDirectory.trimmed();
        w->host = txtWebServer;
        w->remoteDirectory = txtWebDirectory;
        w->login = txtLoginAs;
        w->password = txtPassword;
    }
    if (lblProjectCreated.isEmpty())
        WriteProjINI(Details, QStringLiteral("Created"),
                     QLocale::system().toString(QDateTime::currentDateTime(), QLocale::ShortFormat));
    WriteProjINI(Directories, QStringLiteral("Documents"), txtDocuments);
    WriteProjINI(Directories, QStringLiteral("Graphics"), txtGraphics);
    list.detailsChanged();
    changed = false;
    showFacts();
    core::EndWait();
    return true;
}

void ProjectManagerModel::ResetTimer()
{
    if (platform::MsgBox(QStringLiteral("Are you sure you want to set the time spent on this project to zero ?"),
                         Buttons::YesNo, Icon::Question) != Answer::Yes)
        return;
    WriteProjINI(Details, QStringLiteral("Time Spent"), QStringLiteral("0"));
    lblTimeSpent = ProjectTimeSpent(m_projectFile);
}

void ProjectManagerModel::CloseQuery()
{
    if (changed && platform::MsgBox(QStringLiteral("Project details have changed.  Save them now ?"), Buttons::YesNo)
                       == Answer::Yes)
        SaveWebsiteForm();
}

} // namespace qly::websites
