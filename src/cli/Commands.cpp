#include "cli/Commands.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "core/Startup.h"
#include "texttools/TextToHtmlArguments.h"

#include <QFileInfo>

#include <cstdio>

namespace qly::cli {

namespace {

void printError(const QString &text)
{
    std::fprintf(stderr, "quillery-cli: %s\n", text.toLocal8Bit().constData());
}

} // namespace

const std::vector<Subcommand> &subcommands()
{
    static const std::vector<Subcommand> table = {
        {QStringLiteral("publish"), QStringLiteral("SOURCE TARGET"),
         QStringLiteral("Publish SOURCE into TARGET with the [Publishing] settings"), publishCommand},
        {QStringLiteral("find"), QStringLiteral("[-f TERMS-FILE] [-e TERM]... FILE|PATTERN..."),
         QStringLiteral("List the files that hold a term, without regard to case; \"dir/*.htm\" takes\n"
                        "      only three-letter extensions, \"dir/*.*\" every file. TERMS-FILE holds one\n"
                        "      term a line. Exit status 0 with hits, 1 with none, 2 on an error"),
         findCommand},
        {QStringLiteral("replace"),
         QStringLiteral("[--backup] [--dos-to-unix|--unix-to-dos] [--htm-to-html] [--lower-case|--mixed-case]\n"
                        "      [-f TERMS-FILE] [-e FIND REPLACEMENT]... FILE|PATTERN..."),
         QStringLiteral("Replace every FIND in every file, without regard to case, as the editor's\n"
                        "      Multi-File Replace does; each file is replaced whole or not at all.\n"
                        "      TERMS-FILE holds FIND<tab>REPLACEMENT lines. Exit status 0 when something\n"
                        "      was replaced or converted, 1 when nothing was, 2 when a file failed"),
         replaceCommand},
        {QStringLiteral("convert"), QStringLiteral("IN.txt OUT.html [options]"),
         QStringLiteral("Convert the text file IN.txt into the HTML page OUT.html, with these rules:\n")
             + texttools::ConvertArgumentsHelp().chopped(1),
         convertCommand},
        {QStringLiteral("check"), QStringLiteral("[--external] [--format text|json] SITE.prj|PAGE..."),
         QStringLiteral("Check the links of a website's pages (or of pages): one line a link,\n"
                        "      \"kind TAB page TAB line TAB link\", and a summary on standard error;\n"
                        "      exit status 1 when a link is broken. --external also asks web servers\n"
                        "      about http(s) addresses (kinds \"extlink/ok\", \"/broken\", \"/unverified\")"),
         checkCommand},
        {QStringLiteral("app"), QStringLiteral("METHOD [ARGUMENT]"),
         QStringLiteral("Call a method of the running editor over the session bus (see \"app\" alone\n"
                        "      for the list) and print its result"),
         appCommand},
        {QStringLiteral("upload"),
         QStringLiteral("--host HOST [--user NAME] [--password PW] [--dir REMOTE-DIR] [--only-changed]\n"
                        "      [--timeout SECONDS] [--parallel N] [--cacert PEM] FILE|DIR..."),
         QStringLiteral("Send files, and folders with their tree, to an FTP (or sftp://, ftps://) server;\n"
                        "      the password may come from QUILLERY_FTP_PASSWORD; failed files are listed"),
         uploadCommand},
        {QStringLiteral("download"),
         QStringLiteral("--host HOST --user NAME [--password PW] [--dir REMOTE-DIR] [--no-images] [--overwrite]\n"
                        "      [--cacert PEM] INDEX-PAGE SAVE-DIR WEBSITE-NAME"),
         QStringLiteral("Fetch a whole site over FTP from its index page, with a new website project"),
         downloadCommand},
    };
    return table;
}

QString usage()
{
    QString text = QStringLiteral("Usage: quillery-cli [--ini FILE] COMMAND [ARGUMENTS]\n\n"
                                  "Options:\n"
                                  "  --ini FILE   use FILE as the configuration file\n"
                                  "  --help, -h   show this text\n\n"
                                  "Commands:\n");
    for (const Subcommand &c : subcommands())
        text += QStringLiteral("  %1 %2\n      %3\n").arg(c.name, c.arguments, c.summary);
    text += QStringLiteral("\nExit status: 0 on success, 1 when the work failed, 2 on a usage error.\n");
    return text;
}

int runCommandLine(const QStringList &arguments)
{
    QStringList rest;
    QString ini;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        if (a == QLatin1String("--man") && i + 1 < arguments.size())
            return printManPage(arguments.at(i + 1));
        if (a == QLatin1String("--help") || a == QLatin1String("-h")) {
            std::fputs(usage().toLocal8Bit().constData(), stdout);
            return ExitOk;
        }
        if (a == QLatin1String("--ini") || a.startsWith(QLatin1String("--ini="))) {
            if (a.size() > 5) {
                ini = a.mid(6);
            } else if (i + 1 < arguments.size()) {
                ini = arguments.at(++i);
            } else {
                printError(QStringLiteral("--ini needs a file name"));
                return ExitUsage;
            }
            continue;
        }
        rest << a;
    }
    if (rest.isEmpty()) {
        std::fputs(usage().toLocal8Bit().constData(), stderr);
        return ExitUsage;
    }
    const QString name = rest.takeFirst();
    for (const Subcommand &c : subcommands()) {
        if (c.name != name)
            continue;
        if (!ini.isEmpty()) {
            if (!QFileInfo(ini).isFile()) {
                printError(QStringLiteral("configuration file not found: ") + ini);
                return ExitUsage;
            }
            core::gIniFile = QFileInfo(ini).absoluteFilePath();
        } else {
            core::gIniFile = core::ChooseIniFile();
        }
        core::gTrapErrors = core::ReadSettingFlag(QStringLiteral("Debug"), QStringLiteral("Trap Errors"));
        return c.run(rest);
    }
    printError(QStringLiteral("unknown command: ") + name + QStringLiteral(" (see --help)"));
    return ExitUsage;
}

} // namespace qly::cli
