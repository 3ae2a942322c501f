#include "documents/StartupDocuments.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/DocumentList.h"

namespace qly::documents {

using core::DoEvents;
using core::GetFileExt;
using core::ReadSetting;
using core::ReadSettingFlag;

void OpenStartupDocuments(const QString &commandLineRest, const StartupDocuments &how)
{
    QString file = commandLineRest.trimmed();
    if (file.size() >= 2 && file.startsWith(u'"') && file.endsWith(u'"'))
        file = file.mid(1, file.size() - 2);
    if (!file.isEmpty()) {
        OpenDocumentFile(file);
        return;
    }
    if (ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Open New Document")) && how.newDocument)
        how.newDocument();
    if (!ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Restore Last Session")))
        return;
    for (int n = 1; n <= 99; ++n) {
        const QString entry = ReadSetting(QStringLiteral("Last Session"), QString::number(n));
        if (entry.isEmpty())
            break;
        const QString path = entry.section(u',', 0, 0);
        const bool website = GetFileExt(path).compare(QLatin1String("PRJ"), Qt::CaseInsensitive) == 0;
        OpenDocumentFile(website ? path : entry);
        DoEvents();
        if (how.stop && how.stop())
            return;
    }
}

} // namespace qly::documents
