#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qly::cli {

// Exit statuses of quillery-cli.
inline constexpr int ExitOk = 0;
inline constexpr int ExitFailed = 1;
inline constexpr int ExitUsage = 2;

// One subcommand: its name, the arguments it takes (for the help text), a
// line on what it does, and the function that runs it with the arguments
// behind its name (global options already taken out).
struct Subcommand {
    QString name;
    QString arguments;
    QString summary;
    int (*run)(const QStringList &arguments);
};

// Every subcommand, in the order the help lists them.
const std::vector<Subcommand> &subcommands();

// Runs a whole command line (without the program name): global options,
// then the subcommand. Returns the exit status.
int runCommandLine(const QStringList &arguments);

// The help text.
QString usage();

// Writes the manual page of "quillery" or "quillery-cli" (roff) to standard
// output; both come from here, the commands from the same table as --help.
int printManPage(const QString &program);

// Subcommands, one file each.
int publishCommand(const QStringList &arguments);
int findCommand(const QStringList &arguments);
int replaceCommand(const QStringList &arguments);
int convertCommand(const QStringList &arguments);
int checkCommand(const QStringList &arguments);
int appCommand(const QStringList &arguments);
int uploadCommand(const QStringList &arguments);
int downloadCommand(const QStringList &arguments);

} // namespace qly::cli
