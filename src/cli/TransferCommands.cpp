#include "cli/Commands.h"

#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/SiteDownload.h"
#include "transfer/TreeUpload.h"
#include "transfer/WebsiteProjects.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <optional>
#include <utility>

#include <cstdio>
#include <unistd.h>

namespace qly::cli {

namespace {

void say(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stderr);
}

// The options both commands share; the rest are left in `rest`.
struct Session {
    QString host;
    QString user;
    QString password;
    QString directory;
    QString website;   // a project file that gives the four above
    QString caFile;    // --cacert: certificates an FTPS server may use
    int timeout = 30;
    int parallel = 4;
};

bool takeOptions(const QStringList &arguments, Session &s, QStringList &rest, QStringList &flags)
{
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        const auto value = [&](QString &into) {
            if (i + 1 >= arguments.size())
                return false;
            into = arguments.at(++i);
            return true;
        };
        QString number;
        if (a == QLatin1String("--host")) {
            if (!value(s.host))
                return false;
        } else if (a == QLatin1String("--user")) {
            if (!value(s.user))
                return false;
        } else if (a == QLatin1String("--password")) {
            if (!value(s.password))
                return false;
        } else if (a == QLatin1String("--dir")) {
            if (!value(s.directory))
                return false;
        } else if (a == QLatin1String("--website")) {
            if (!value(s.website))
                return false;
        } else if (a == QLatin1String("--cacert")) {
            if (!value(s.caFile))
                return false;
        } else if (a == QLatin1String("--timeout") || a == QLatin1String("--parallel")) {
            if (!value(number) || number.toInt() <= 0)
                return false;
            (a == QLatin1String("--timeout") ? s.timeout : s.parallel) = number.toInt();
        } else if (a.startsWith(QLatin1String("--"))) {
            flags << a;
        } else {
            rest << a;
        }
    }
    // A website project gives what the options leave out.
    if (!s.website.isEmpty()) {
        const std::optional<transfer::WebsiteServer> server = transfer::ReadWebsiteServer(s.website);
        if (!server) {
            say(QStringLiteral("quillery-cli: no website project %1\n").arg(s.website));
            return false;
        }
        for (auto [into, from] : {std::pair{&s.host, &server->host}, std::pair{&s.user, &server->login},
                                  std::pair{&s.password, &server->password},
                                  std::pair{&s.directory, &server->directory}}) {
            if (into->isEmpty())
                *into = *from;
        }
    }
    if (s.password.isEmpty())
        s.password = qEnvironmentVariable("QUILLERY_FTP_PASSWORD");
    return !s.host.isEmpty();
}

void prepare(transfer::FtpClient &ftp, const Session &s)
{
    ftp.HostName = s.host;
    ftp.UserName = s.user;
    ftp.password = s.password;
    ftp.TimeoutSeconds = s.timeout;
    ftp.Parallel = s.parallel;
    ftp.CaFile = s.caFile;
    QObject::connect(&ftp, &transfer::FtpClient::ftp_LastError, [](int code, QString &text) {
        say(QStringLiteral("\nquillery-cli: error %1: %2\n").arg(code).arg(text));
    });
}

const char *const kUploadUsage =
    "Usage: quillery-cli upload --host HOST [--user NAME] [--password PW] [--dir REMOTE-DIR]\n"
    "                           [--only-changed] [--timeout SECONDS] [--parallel N] [--cacert PEM] FILE|DIR...\n"
    "       quillery-cli upload --website PROJECT.prj [options as above] FILE|DIR...\n"
    "The password may also come from QUILLERY_FTP_PASSWORD. HOST may be sftp://host or ftps://host;\n"
    "--cacert FILE trusts the certificates in FILE (PEM) for an ftps:// server.\n"
    "A website project gives the server, login, stored password and directory that are not given.\n";

} // namespace

int uploadCommand(const QStringList &arguments)
{
    Session s;
    QStringList paths;
    QStringList flags;
    if (!takeOptions(arguments, s, paths, flags) || paths.isEmpty()
        || !(flags.isEmpty() || flags == QStringList{QStringLiteral("--only-changed")})) {
        std::fputs(kUploadUsage, stderr);
        return ExitUsage;
    }
    transfer::FtpClient ftp;
    prepare(ftp, s);
    say(QStringLiteral("Connecting to %1...\n").arg(s.host));
    ftp.setAction(transfer::FtpClient::Connect);
    if (!ftp.Connected())
        return ExitFailed;
    transfer::TreeUploadOptions options;
    options.remoteDirectory = s.directory;
    options.onlyChanged = flags.contains(QStringLiteral("--only-changed"));
    const bool tty = isatty(fileno(stderr));
    options.progress = [tty](int done, int files, qint64 bytes, qint64 total) {
        const QString line = QStringLiteral("%1/%2 files, %3 of %4 bytes").arg(done).arg(files).arg(bytes).arg(total);
        say(tty ? QStringLiteral("\r") + line + QStringLiteral("   ") : line + u'\n');
    };
    const transfer::TreeUploadResult result = transfer::uploadTree(ftp, paths, options);
    say(QStringLiteral("\n%1 sent, %2 unchanged, %3 failed\n").arg(result.sent).arg(result.skipped).arg(result.failed.size()));
    for (const QString &failed : result.failed)
        say(QStringLiteral("failed: ") + failed + u'\n');
    ftp.Quit();
    return result.ok() ? ExitOk : ExitFailed;
}

int downloadCommand(const QStringList &arguments)
{
    Session s;
    QStringList rest;
    QStringList flags;
    const QStringList known = {QStringLiteral("--no-images"), QStringLiteral("--overwrite")};
    bool flagsOk = true;
    const bool parsed = takeOptions(arguments, s, rest, flags);
    for (const QString &f : flags)
        flagsOk = flagsOk && known.contains(f);
    if (!parsed || rest.size() != 3 || !flagsOk) {
        std::fputs("Usage: quillery-cli download --host HOST --user NAME [--password PW] [--dir REMOTE-DIR]\n"
                   "                             [--no-images] [--overwrite] [--timeout SECONDS] [--cacert PEM]\n"
                   "                             INDEX-PAGE SAVE-DIR WEBSITE-NAME\n"
                   "Fetches the site from INDEX-PAGE into SAVE-DIR with a project file WEBSITE-NAME.prj;\n"
                   "what could not be fetched is listed in SAVE-DIR/Autodownload.log.\n",
                   stderr);
        return ExitUsage;
    }
    transfer::SiteDownloadFields fields;
    fields.host = s.host;
    fields.login = s.user;
    fields.password = s.password;
    fields.remoteDirectory = s.directory;
    fields.indexUrl = rest.at(0);
    fields.saveDirectory = rest.at(1);
    fields.projectName = rest.at(2);
    fields.fetchImages = !flags.contains(QStringLiteral("--no-images"));
    fields.overwrite = flags.contains(QStringLiteral("--overwrite"));
    // The console answers "make the directory?" with no: make it here.
    QDir().mkpath(fields.saveDirectory);
    if (!transfer::validateSiteDownload(fields).isEmpty())
        return ExitUsage;
    transfer::FtpClient ftp;
    prepare(ftp, s);
    transfer::useWebsiteProjects();
    transfer::SiteDownload run(ftp, fields);
    QObject::connect(&run, &transfer::SiteDownload::status, [](const QString &text) {
        if (!text.isEmpty())
            say(text + u'\n');
    });
    run.run();
    if (!ftp.Connected())
        return ExitFailed;
    say(QStringLiteral("%1 pages known, %2 could not be fetched; project %3\n")
            .arg(run.pages().size() + 1)
            .arg(run.failures())
            .arg(run.projectFile()));
    QFile log(run.logFile());
    if (run.failures() > 0 && log.open(QIODevice::ReadOnly))
        say(QString::fromUtf8(log.readAll()).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    return run.failures() == 0 && !run.cancelled() ? ExitOk : ExitFailed;
}

} // namespace qly::cli
