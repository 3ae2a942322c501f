#include "app/Shutdown.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "documents/DocumentList.h"
#include "documents/TempFiles.h"

#include <QDir>
#include <QFile>

namespace qly::app {

using namespace core;

bool CloseEverything(ClosingWindow &window)
{
    static bool running = false;
    if (running)
        return false;
    if (!gStartupPassed) {
        ErrorBox(QStringLiteral("Quillery has not yet finished its startup process. Please try again in a few seconds "));
        return false;
    }
    running = true;
    BeginWait();
    gClosing = true;
    window.StoreDisplayState();

    if (!documents::SaveAllDocuments(true, false)) {
        gClosing = false;
        EndWait();
        running = false;
        return false;
    }
    documents::CleanTempFiles(GetFileLocation(QStringLiteral("Documents")));
    documents::CleanTempFiles(GetFileLocation(QStringLiteral("Publish")));
    // Auto-save files go from the current directory only, whatever
    // [File Locations] "AutoSave" says, so those kept elsewhere survive.
    QDir here = QDir::current();
    for (const QString &name : here.entryList({QStringLiteral("*.qnb")}, QDir::Files))
        QFile::remove(here.filePath(name));

    DoEvents();
    EndWait();
    window.UnloadAllForms();
    running = false;
    return true;
}

} // namespace qly::app
