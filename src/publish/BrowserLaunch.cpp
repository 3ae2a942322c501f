#include "publish/Preview.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "markup/Links.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QProcess>
#include <QUrl>

namespace qly::publish {

using namespace qly::core;

namespace {

// This desktop has no conversation with running browsers: nobody answers.
class NoConversation final : public BrowserLink
{
public:
    bool open(const QString &, const QString &) override { return false; }
    bool request(QString &reply) override
    {
        reply.clear();
        return false;
    }
    void activateTask(const QString &) override {}
    void close() override {}
};

BrowserLink *g_link = nullptr;

// Starts `browser` with `url`; the process identifier, or 0 with `error` set.
qint64 startBrowser(const QString &browser, const QString &url, QString &error)
{
    QProcess process;
    process.setProgram(browser);
    process.setArguments({url});
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    qint64 pid = 0;
    if (process.startDetached(&pid) && pid > 0)
        return pid;
    error = process.errorString();
    return 0;
}

} // namespace

BrowserLink &browserLink()
{
    static NoConversation none;
    return g_link ? *g_link : none;
}

void setBrowserLink(BrowserLink *link)
{
    g_link = link;
}

PreviewRun &previewRun()
{
    static PreviewRun run;
    return run;
}

std::function<bool(const QString &)> &systemUrlOpener()
{
    static std::function<bool(const QString &)> opener;
    return opener;
}

QString BrowserUrl(const QString &target)
{
    if (target.contains(QLatin1String("//")) || target.contains(QLatin1String("mailto:"), Qt::CaseInsensitive))
        return target;
    if (markup::hasDrive(target) || !QDir::isAbsolutePath(target))
        return markup::PathToFileUrl(target);
    // Characters a URL cannot hold as they are (blanks, "#", "%") are escaped.
    return QUrl::fromLocalFile(target).toString(QUrl::FullyEncoded);
}

bool OpenInBrowser(const QString &browser, const QString &target)
{
    PreviewRun &run = previewRun();
    QString service = StripExtension(FileNameOf(browser));
    if (run.task.isEmpty())
        run.task = service;
    if (service.compare(QLatin1String("ie20"), Qt::CaseInsensitive) == 0)
        service = QStringLiteral("IEXPLORE");

    BrowserLink &link = browserLink();
    const QString url = BrowserUrl(target);
    const QString item = markup::AddQuotes(url) + QStringLiteral(",,-1,0,,\"text/html\",,");
    int state = 0;   // 0 not connected, 1 given up, 2 connected
    int runs = 0;
    qint64 taskId = 0;
    while (state == 0 && runs <= 1) {
        link.close();
        const bool answered = link.open(service + QStringLiteral("|WWW_OpenURL"), item);
        DoEvents();
        if (answered) {
            state = 2;
            break;
        }
        if (runs == 0) {
            ShowStatus(QStringLiteral("Running ") + browser);
            QString error;
            taskId = startBrowser(browser, url, error);
            DoEvents();
            if (taskId != 0)
                run.task = QString::number(taskId);
            else
                platform::MsgBox(QStringLiteral("Couldn't start browser : ") + browser, platform::Buttons::Ok,
                                 platform::Icon::Information, QStringLiteral("Error : ") + error);
        }
        ++runs;
        // A started browser is asked once more; it may still be starting
        // and not answer, but it has the page from its command line.
        if (taskId == 0)
            state = 1;
    }

    if (state == 2) {
        ShowStatus(QStringLiteral("Connecting browser to ") + target);
        QString reply;
        const bool replied = link.request(reply);
        DoEvents();
        if (!replied) {
            state = 0;
            ShowStatus(QStringLiteral("Communication with browser failed.  Please try again."));
        }
        const int window = reply.isEmpty() ? -1 : int(reply.at(0).unicode());
        if (state == 2) {
            if (service.compare(QLatin1String("Netscape"), Qt::CaseInsensitive) == 0) {
                link.activateTask(run.task);
            } else {
                link.close();
                QString ignored;
                if (link.open(service + QStringLiteral("|WWW_Activate"), QString::number(window) + QStringLiteral(",0")))
                    link.request(ignored);
            }
            DoEvents();
        }
    }
    bool result = state > 1;
    // The very first sending of a run is repeated, which makes the first
    // contact with a browser that is only starting reliable.
    if (!run.secondSendDone) {
        run.secondSendDone = true;
        result = OpenInBrowser(browser, target);
    }
    return result;
}

void OpenInDefaultBrowser(const QString &url)
{
    const QString browser = ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"));
    if (FileExists(browser)) {
        OpenInBrowser(browser, url);
        return;
    }
    if (systemUrlOpener() && systemUrlOpener()(url))
        return;
    platform::MsgBox(QStringLiteral("No web browser could be found to open ") + url
                         + QStringLiteral(". Choose one under Tools, Options, External Browsers."),
                     platform::Buttons::Ok, platform::Icon::Exclamation);
}

} // namespace qly::publish

namespace qly::publish {

bool AllowPreviewNavigation(const QString &url)
{
    const QString ext = GetFileExt(QUrl(url).path());
    if (ext.compare(QLatin1String("wav"), Qt::CaseInsensitive) != 0
        && ext.compare(QLatin1String("mov"), Qt::CaseInsensitive) != 0)
        return true;
    const platform::Answer answer = platform::MsgBox(
        QStringLiteral("The current version of the Microsoft Internet Controls appears to have some strangeness "
                       "associated with it when it comes to the playing of .WAV or .MOV files.  It will probably GPF "
                       "(or Blue Screen of Death) after playing the file, or when you start playing a second file.  "
                       "Are you sure you want to continue ?"),
        platform::Buttons::YesNo, platform::Icon::Question,
        QStringLiteral("That's not such a great idea at the moment :("));
    return answer == platform::Answer::Yes;
}

QString HostPanelAddress()
{
    const QString section = QStringLiteral("Lumenserve");
    const QString text = ReadSetting(section, QStringLiteral("URL")).trimmed();
    if (text.isEmpty())
        return QString();
    QUrl url(text.contains(QLatin1String("://")) ? text : QStringLiteral("http://") + text);
    if (url.path().isEmpty() || url.path() == QLatin1String("/"))
        url.setPath(QStringLiteral("/webmaster"));
    const QString user = ReadSetting(section, QStringLiteral("UserName"));
    if (!user.isEmpty()) {
        url.setUserName(user);
        url.setPassword(ReadSetting(section, QStringLiteral("Password")));
    }
    return url.toString(QUrl::FullyEncoded);
}

} // namespace qly::publish
