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
    request.filterIndex = 2;
    request.defaultSuffix = ReadSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"));
    request.directory = GetFileLocation(QStringLiteral("Documents"), true);
    request.multiple = true;
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted()) {
        ShowStatus(QString());
        return;
    }
    for (const QString &file : answer.files) {
        OpenDocumentFile(file);
        DoEvents();
    }
}

} // namespace qly::documents
