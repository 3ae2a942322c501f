// An example plug-in: a shared object named for one of the Plug-ins menu's
// places ("PlugIn8.so" here) and put beside the quillery program. A click on
// its menu entry calls RunPlugIn, which talks to the editor through the
// automation service on the session bus, as any outside program would.
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>

extern "C" Q_DECL_EXPORT void RunPlugIn()
{
    QDBusInterface editor(QStringLiteral("org.quillery.Quillery"), QStringLiteral("/QuilleryApp"),
                          QStringLiteral("org.quillery.QuilleryApp"), QDBusConnection::sessionBus());
    const QDBusReply<qint16> open = editor.call(QStringLiteral("TEPIGetCurrentDocument"));
    if (!open.isValid() || open.value() == 0)
        return;
    editor.call(QStringLiteral("TEPIReplaceText"), QStringLiteral("<!-- Inserted by the example plug-in -->"));
}
