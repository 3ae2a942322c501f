#include "cli/Commands.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QVariant>

#include <cstdio>

namespace qly::cli {

// app METHOD [ARGS]: calls a method of the running editor's automation
// service and prints what it gives back.
int appCommand(const QStringList &arguments)
{
    if (arguments.isEmpty()) {
        std::fputs("Usage: quillery-cli app METHOD [ARGUMENT]\n"
                   "Methods: AppPath, TEPICurrentDocFilePath, CloseAllDocs, TEPINewDoc, TEPIOpenDoc FILE,\n"
                   "  TEPISaveAllDocs, TEPIGetNumDocuments, TEPIGetCurrentDocument, TEPIGetText,\n"
                   "  TEPISetText TEXT, TEPIReplaceText TEXT, TEPIAddBody TEXT, TEPIAddEndBody TEXT,\n"
                   "  TEPIAddHead TEXT, TEPIAddEndHead TEXT\n",
                   stderr);
        return ExitUsage;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        std::fputs("quillery-cli: there is no session bus\n", stderr);
        return ExitFailed;
    }
    QDBusInterface editor(QStringLiteral("org.quillery.Quillery"), QStringLiteral("/QuilleryApp"),
                          QStringLiteral("org.quillery.QuilleryApp"), bus);
    QList<QVariant> values;
    for (qsizetype i = 1; i < arguments.size(); ++i)
        values << arguments.at(i);
    // The editor may be showing a dialog that the call waits for.
    editor.setTimeout(24 * 60 * 60 * 1000);
    const QDBusMessage reply = editor.callWithArgumentList(QDBus::Block, arguments.first(), values);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        std::fprintf(stderr, "quillery-cli: %s\n", reply.errorMessage().toLocal8Bit().constData());
        return ExitFailed;
    }
    for (const QVariant &v : reply.arguments()) {
        const QString text = v.typeId() == QMetaType::Bool ? (v.toBool() ? QStringLiteral("true") : QStringLiteral("false"))
                                                           : v.toString();
        std::printf("%s\n", text.toLocal8Bit().constData());
    }
    return ExitOk;
}

} // namespace qly::cli
