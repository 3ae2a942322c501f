#include "core/Feedback.h"

#include "core/Globals.h"
#include "core/StatusText.h"
#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace qly::core {

namespace {
bool g_busy = false;
Q_LOGGING_CATEGORY(lcSteps, "quillery.steps")
}

void ShowStatus(const QString &text)
{
    StatusText::instance().show(text);
}

void BeginWait()
{
    g_busy = true;
    platform::prompts().setBusy(true);
}

void EndWait()
{
    g_busy = false;
    platform::prompts().setBusy(false);
}

void ErrorBox(const QString &text)
{
    const bool wasBusy = g_busy;
    if (wasBusy)
        platform::prompts().setBusy(false);
    platform::MsgBox(text, platform::Buttons::Ok, platform::Icon::Exclamation,
                     versionCaption() + QStringLiteral(" - Error"));
    DoEvents();
    if (wasBusy)
        platform::prompts().setBusy(true);
}

void DoEvents()
{
    if (QCoreApplication::instance())
        QCoreApplication::processEvents();
}

void StepFailed(const QString &what)
{
    qCWarning(lcSteps).noquote() << what;
    if (gTrapErrors)
        ErrorBox(what);
}

} // namespace qly::core
