#include "documents/FileMenu.h"

#include "core/Feedback.h"
#include "core/Settings.h"
#include "documents/DocumentList.h"
#include "documents/FileFilter.h"
#include "platform/Prompts.h"

namespace qly::documents {

using namespace qly::core;

void mnuOpen_Click()
{
    ShowStatus(QStringLiteral("Opening file "));
    platform::FileRequest request;
    request.title = QStringLiteral("Open File");
    request.filter = FileFilter();
    request.filterIndex = 2;   // the second filter, "Text Files", as the editor has always opened
    request.defaultSuffix = ReadSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"));
    request.directory = GetFileLocation(QStringLiteral("Documents"), true);
    request.multiple = true;
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted()) {
        ShowStatus(QString());
        return;
    }
    // The dialog's answer holds at most 50 files (a directory and 50 names);
    // further ones are not opened.
    constexpr qsizetype kMostFiles = 50;
    const QStringList files = answer.files.mid(0, kMostFiles);
    for (const QString &file : files) {
        OpenDocumentFile(file);
        DoEvents();
    }
}

} // namespace qly::documents
