#include "websites/Websites.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/FileFilter.h"
#include "documents/RecentFiles.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"
#include "websites/ExternalCheck.h"
#include "websites/LinkScanner.h"
#include "websites/Password.h"
#include "websites/ProjectFile.h"
#include "websites/WebsiteList.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace qly::websites {

namespace {

const QString Details = QStringLiteral("Details");

QString read(const QString &path, const char *key)
{
    return ReadProjectValue(path, Details, QString::fromLatin1(key));
}

// The tree's copy of the details in the website's project file.
void readDetails(WebsiteList::Website &w)
{
    const QString &path = w.projectFile;
    w.name = read(path, "Name");
    w.localDirectory = read(path, "Local Directory");
    w.host = read(path, "Host");
    w.remoteDirectory = read(path, "Directory");
    w.login = read(path, "Login As");
    w.password = ProjectPassword(path);
}

void StampLastOpened(const QString &path)
{
    WriteProjectValue(Details, QStringLiteral("Last Opened"),
                      QLocale::system().toString(QDateTime::currentDateTime(), QLocale::ShortFormat), path);
}

struct Wait {
    Wait() { core::BeginWait(); }
    ~Wait() { core::EndWait(); }
};

documents::Document *documentOf(qint16 filenum)
{
    for (documents::Document *d : documents::AllDocuments()) {
        if (d->filenum == filenum)
            return d;
    }
    return nullptr;
}

void checkDocument(documents::Document &doc, bool clear)
{
    doc.activate();
    WebsiteList &list = WebsiteList::instance();
    const LinkRecords result = CheckLinks(doc.txtDoc().Text(), doc.LocalFileName);
    if (CheckWebAddresses())
        CheckAddressesOf(result);
    if (clear)
        list.ClearLinkResults(doc.filenum);
    list.PutLinkResults(doc.filenum, result);
    list.ShowLinkResults(result);
}

} // namespace

WebsiteHooks &websiteHooks()
{
    static WebsiteHooks hooks;
    return hooks;
}

void WebsiteMan_WSUpload(int id)
{
    if (websiteHooks().showWebsiteUpload)
        websiteHooks().showWebsiteUpload(id);
}

bool OpenWebsite(const QString &pathIn)
{
    Wait wait;
    QString path = pathIn;
    if (path.isEmpty()) {
        if (websiteHooks().chooseWebsiteFile)
            path = websiteHooks().chooseWebsiteFile();
        if (path.isEmpty())
            return false;
    }
    if (!core::FileExists(path))
        return false;
    const QString problem = ProjectFileProblem(path);
    if (!problem.isEmpty()) {
        core::ErrorBox(problem);
        return false;
    }
    WebsiteList &list = WebsiteList::instance();
    // A project open already is selected, not listed twice: two entries
    // would write the same file list over each other when they close.
    for (int i = 0; i < list.WebsiteCount(); ++i) {
        const int open = list.WebsiteIdAt(i);
        if (QFileInfo(list.website(open)->projectFile) == QFileInfo(path)) {
            list.setCurrentWebsite(open);
            list.detailsChanged();
            return list.WebsiteFileCount(open) > 0;
        }
    }
    const QString name = read(path, "Name");
    const int id = list.AddWebsite(name);
    WebsiteList::Website &w = *list.website(id);
    w.projectFile = path;
    readDetails(w);
    list.detailsChanged();
    if (!w.localDirectory.isEmpty() && !core::DirExists(w.localDirectory))
        platform::MsgBox(QStringLiteral("The folder %1 of the website project %2 does not exist.")
                             .arg(w.localDirectory, path),
                         platform::Buttons::Ok, platform::Icon::Exclamation);

    const bool openAll = core::ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Open All Proj Files"));
    const QStringList files = ReadProjectFiles(path);
    int leftOut = 0;
    for (const QString &file : files) {
        if (!list.AddWebsiteFile(id, file)) {
            ++leftOut;
            continue;
        }
        if (openAll)
            documents::OpenDocumentFile(file);
    }
    if (leftOut > 0) {
        list.website(id)->leftOut = leftOut;
        list.detailsChanged();
        platform::MsgBox(QStringLiteral("The website \"%1\" lists %2 files, but a website holds %3 at most. "
                                        "The last %4 are not shown in the Website tab and are not opened; "
                                        "they stay in the project file %5 as they are.")
                             .arg(name).arg(files.size()).arg(MaxProjectFileIndex + 1).arg(leftOut).arg(path),
                         platform::Buttons::Ok, platform::Icon::Exclamation);
    }
    if (files.isEmpty())
        return false;
    StampLastOpened(path);
    documents::AddRecentFile(path);
    return true;
}

void RefreshWebsite(int id)
{
    WebsiteList &list = WebsiteList::instance();
    WebsiteList::Website *w = list.website(id);
    if (!w)
        return;
    Wait wait;
    const QString path = w->projectFile;
    if (!core::FileExists(path)) {
        core::ShowStatus(QStringLiteral("The project file ") + path + QStringLiteral(" could not be found"));
    } else if (const QString problem = ProjectFileProblem(path); !problem.isEmpty()) {
        core::ErrorBox(problem);
    } else {
        readDetails(*w);
    }
    // Files checked before are checked again, as they now stand on disk.
    const QStringList files = w->files;
    for (const QString &file : files) {
        if (list.hasFileLinkResults(file))
            ScanNodeLinks(file);
    }
    list.detailsChanged();
}

void CloseWebsite(int id)
{
    WebsiteList &list = WebsiteList::instance();
    const WebsiteList::Website *w = list.website(id);
    if (!w)
        return;
    // A project file removed meanwhile is not made again with the list alone.
    if (core::FileExists(w->projectFile))
        WriteProjectFiles(w->projectFile, w->files);
    list.RemoveWebsite(id);
}

void CloseAllWebsites()
{
    WebsiteList &list = WebsiteList::instance();
    while (list.WebsiteCount() > 0)
        CloseWebsite(list.WebsiteIdAt(0));
}

bool AddFiletoList(const QString &path, int id)
{
    return WebsiteList::instance().AddWebsiteFile(id, path);
}

void WebsiteAddFiles(int id)
{
    const WebsiteList::Website *w = WebsiteList::instance().website(id);
    if (!w)
        return;
    platform::FileRequest request;
    request.title = core::versionCaption() + QStringLiteral(" - Open File");
    if (core::DirExists(w->localDirectory))
        request.directory = w->localDirectory;
    request.filter = documents::FileFilter();
    request.defaultSuffix = core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"));
    request.multiple = true;
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    int refused = 0;
    for (const QString &file : answer.files)
        refused += AddFiletoList(file, id) ? 0 : 1;
    if (refused > 0)
        platform::MsgBox(QStringLiteral("The website \"%1\" holds %2 files, the most a website can hold. "
                                        "%3 of the chosen files were not added.")
                             .arg(w->name).arg(MaxProjectFileIndex + 1).arg(refused),
                         platform::Buttons::Ok, platform::Icon::Exclamation);
}

void FileAddFiles()
{
    const int id = WebsiteList::instance().CurrentWebsite();
    if (id >= 0)
        WebsiteAddFiles(id);
    else
        platform::MsgBox(QStringLiteral("Please select a Website before adding files to it."));
}

bool CheckWebAddresses()
{
    return core::ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Check Web Addresses"));
}

void CheckAddressesOf(const LinkRecords &records)
{
    QStringList addresses;
    for (const LinkRecord &r : records) {
        if (IsCheckableAddress(r.link.trimmed()))
            addresses << r.link.trimmed();
    }
    if (addresses.isEmpty())
        return;
    ExternalCheckOptions options;
    options.progress = [](int done, int total) {
        core::ShowStatus(QStringLiteral("Checking web addresses: %1 of %2").arg(done).arg(total));
        return false;
    };
    options.idle = [] { core::DoEvents(); };
    WebsiteList::instance().PutAddressResults(CheckExternalLinks(addresses, options));
    core::ShowStatus(QString());
}

LinkRecords ScanNodeLinks(const QString &file)
{
    LinkClassifier classifier;
    LinkRecords records;
    ScanFileLinks(file, ParseForAttributes(), records, classifier);
    WebsiteList::instance().PutFileLinkResults(file, records);
    if (CheckWebAddresses())
        CheckAddressesOf(records);
    return records;
}

int CheckWebsiteLinks(int id)
{
    Wait wait;
    WebsiteList &list = WebsiteList::instance();
    int broken = 0;
    for (int i = 0; i < list.WebsiteFileCount(id); ++i) {
        const QString file = list.WebsiteFileName(id, i);
        core::ShowStatus(QStringLiteral("Checking ") + file);
        for (const LinkRecord &r : ScanNodeLinks(file))
            broken += IsBroken(r.kind) ? 1 : 0;
    }
    core::ShowStatus(QString());
    return broken;
}

void FileCheck(qint16 filenum)
{
    if (documents::Document *doc = documentOf(filenum))
        checkDocument(*doc, true);
}

void FileCheckAllLinks()
{
    for (documents::Document *doc : documents::AllDocuments())
        checkDocument(*doc, false);
}

} // namespace qly::websites
