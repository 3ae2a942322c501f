#include "core/OptionsModel.h"

#include "core/Feedback.h"
#include "core/OptionsHooks.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Globals.h"
#include "core/Startup.h"
#include "core/Workspace.h"
#include "documents/ColorTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QFileInfo>

#include <algorithm>

namespace qly::core {

namespace {

const QString kGeneral = QStringLiteral("General");
const QString kEditing = QStringLiteral("Editing");
const QString kDisplay = QStringLiteral("Display");

// A custom dictionary that is no file becomes a word list of its stem in
// the program directory.
QString customDictionary(const QString &path)
{
    if (path.isEmpty() || FileExists(path))
        return path;
    return JoinPath(ProgramDirectory(), QFileInfo(FileNameOf(path)).completeBaseName() + QStringLiteral(".dic"));
}

} // namespace

void OptionsModel::commit()
{
    BeginWait();
    applyFont();
    saveGeneral();
    saveLocations();
    saveEditing();
    saveDisplay();
    saveColours();
    saveBrowsers();
    EndWait();
    if (documents::Document *doc = Workspace::CurrentDocument())
        doc->txtDoc().SetFocus();
}

void OptionsModel::applyFont()
{
    const QString name = fontName.trimmed().isEmpty() ? QStringLiteral("MS Sans Serif") : fontName.trimmed();
    int size = fontSize.trimmed().toInt();
    if (size <= 0)
        size = 10;
    for (documents::Document *doc : documents::AllDocuments()) {
        platform::HTMLEdit &edit = doc->txtDoc();
        if (edit.FontName() != name || edit.FontSize() != size)
            edit.SetFontAndSize(name, size);
    }
}

void OptionsModel::saveChecks(std::initializer_list<OptionsTab> tabs)
{
    for (const CheckBinding &b : checkBindings()) {
        if (std::find(tabs.begin(), tabs.end(), b.tab) != tabs.end())
            WriteSetting(b.section, b.key, YesNo(check(b.id)));
    }
}

void OptionsModel::saveGeneral()
{
    saveChecks({OptionsTab::General, OptionsTab::SaveStart, OptionsTab::ExternalBrowsers});
    WriteSetting(kGeneral, QStringLiteral("Big First Letter Size"), bigLetterSize);
    WriteSetting(kGeneral, QStringLiteral("Target"), anchor);
    WriteSetting(kGeneral, QStringLiteral("AutoSave"), autoSaveMinutes.trimmed());
    WriteSetting(QStringLiteral("Publishing"), QStringLiteral("Default Extension"), publishExtension.trimmed());
    if (!check(OptionCheck::RestoreLastSession))
        WriteSection(QStringLiteral("Last Session"), QString(2, QChar(0)));
    WriteSetting(kGeneral, QStringLiteral("Standard Dictionary"), dictionaries[0].trimmed());
    dictionaries[1] = customDictionary(dictionaries[1].trimmed());
    WriteSetting(kGeneral, QStringLiteral("Custom Dictionary"), dictionaries[1]);
}

void OptionsModel::saveLocations()
{
    for (int i = 0; i < kLocationCount; ++i)
        WriteSetting(QStringLiteral("File Locations"), locationKey(i), locations[size_t(i)].trimmed());
}

void OptionsModel::saveEditing()
{
    saveChecks({OptionsTab::Editing, OptionsTab::Coloring});
    WriteSetting(kEditing, QStringLiteral("Font Name"), fontName.trimmed());
    WriteSetting(kEditing, QStringLiteral("Font Size"), fontSize.trimmed());
    const QString ext = documentExtension.trimmed();
    WriteSetting(kEditing, QStringLiteral("Default Document Extension"), ext.isEmpty() ? QStringLiteral("HTM") : ext);
    WriteSetting(kEditing, QStringLiteral("No Parse For Table"), QStringLiteral("No"));
    ReadGlobalEditingFlags();
}

void OptionsModel::saveDisplay()
{
    saveChecks({OptionsTab::Display});
    WriteSetting(kDisplay, QStringLiteral("Scout Refresh"), m_scoutEnabled ? normalizeScout(scoutSeconds) : QString());
    for (documents::Document *doc : documents::AllDocuments())
        documents::ApplyWordWrap(*doc);

    const bool netscape = check(OptionCheck::ShowNS);
    const bool favorites = check(OptionCheck::ShowIE);
    if (optionsHooks().updateBookmarks)
        optionsHooks().updateBookmarks(netscape, favorites);
    if (!netscape && !favorites)
        platform::MsgBox(QStringLiteral("The bookmarks tab will not contain any information"), platform::Buttons::Ok,
                         platform::Icon::Information);
}

void OptionsModel::saveColours()
{
    for (int i = 0; i < kColourCount; ++i) {
        const int c = colours[size_t(i)];
        WriteSetting(kEditing, colourBindings()[size_t(i)].key, c < 0 ? QString() : QString::number(c));
    }
    if (optionsHooks().tagTreeSettings)
        optionsHooks().tagTreeSettings();

    const platform::ColorTable table = documents::ColorTableFromSettings();
    const int mode = ReadSettingFlag(kEditing, QStringLiteral("Quick Color")) ? platform::ColorTagSyntax
                                                                               : platform::ColorEntireTags;
    for (documents::Document *doc : documents::AllDocuments()) {
        platform::HTMLEdit &edit = doc->txtDoc();
        if (!gColorHTML) {
            // Colouring switched off here stops at once in every window.
            edit.setColorMode(platform::ColorOff);
            continue;
        }
        edit.InitColor(table);
        if (edit.ColorMode() == platform::ColorOff)
            edit.setColorMode(mode);
        edit.ColorHTML();
    }
}

void OptionsModel::saveBrowsers()
{
    QStringList lines;
    for (const QString &b : std::as_const(m_browsers)) {
        const bool isDefault = b.startsWith(u'*');
        const QString path = isDefault ? b.mid(1) : b;
        if (isDefault)
            WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"), path);
        lines << QString::number(lines.size() + 1) + u'=' + path;
    }
    WriteSection(QStringLiteral("Browsers"), lines.join(u'\n'));
    if (optionsHooks().loadBrowserMenu)
        optionsHooks().loadBrowserMenu();
}

} // namespace qly::core
