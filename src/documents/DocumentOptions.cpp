#include "documents/DocumentOptions.h"

#include "core/Globals.h"
#include "core/OptionsHooks.h"
#include "core/Settings.h"
#include "documents/ColorTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"

#include <QFileInfo>

namespace qly::documents {

namespace {

void applyColours(platform::HTMLEdit &edit, const platform::ColorTable &table, int mode)
{
    if (!core::gColorHTML) {
        // Colouring switched off stops at once in every window.
        edit.setColorMode(platform::ColorOff);
        return;
    }
    edit.InitColor(table);
    if (edit.ColorMode() == platform::ColorOff)
        edit.setColorMode(mode);
    edit.ColorHTML();
}

QString activeDocumentFolder()
{
    Document *doc = Workspace::CurrentDocument();
    if (!doc || doc->LocalFileName.isEmpty())
        return QString();
    return QFileInfo(doc->LocalFileName).absolutePath();
}

} // namespace

void ApplyColorOptions()
{
    const platform::ColorTable table = ColorTableFromSettings();
    const int mode = core::ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Quick Color"))
                         ? platform::ColorTagSyntax
                         : platform::ColorEntireTags;
    for (Document *doc : AllDocuments())
        applyColours(doc->txtDoc(), table, mode);
}

void ApplyOptionsToDocuments()
{
    for (Document *doc : AllDocuments()) {
        ApplyDocumentFont(*doc);
        ApplyWordWrap(*doc);
    }
    ApplyColorOptions();
    if (Document *doc = Workspace::CurrentDocument())
        doc->txtDoc().SetFocus();
}

void InstallDocumentOptionHooks()
{
    core::setActiveDocumentFolder(activeDocumentFolder);
    core::optionsHooks().applyToDocuments = ApplyOptionsToDocuments;
}

} // namespace qly::documents
