// quillery-cli: the editor's batch work without a window. Messages go to
// standard error; the exit status tells success.
#include "cli/Commands.h"
#include "platform/ConsolePrompts.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Quillery"));
    QCoreApplication::setApplicationVersion(QStringLiteral("4.01"));
    qly::platform::ConsolePrompts prompts;
    qly::platform::setPrompts(&prompts);
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    const int status = qly::cli::runCommandLine(arguments);
    qly::platform::setPrompts(nullptr);
    return status;
}
