#include "documents/FileFilter.h"

#include "core/Settings.h"

namespace qly::documents {

QString WebPageMasks()
{
    QString masks = QStringLiteral("*.htm;*.html;*.shtml;*.ht3;*.pub");
    QString ext = core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"));
    if (ext.isEmpty())
        ext = core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Default Extension"));
    if (!ext.isEmpty()) {
        const QString mask = QStringLiteral("*.") + ext.toLower();
        if (!masks.split(u';').contains(mask))
            masks += u';' + mask;
    }
    return masks;
}

QString FileFilter()
{
    const QString masks = WebPageMasks();
    return QStringLiteral("Web Pages (") + masks + QStringLiteral(")|") + masks
           + QStringLiteral("|Text Files (*.txt)|*.txt|CGI Files|*.cgi;*.pl;*.tcl;*.c|All Files|*.*");
}

} // namespace qly::documents
