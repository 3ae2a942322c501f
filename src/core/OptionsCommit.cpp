#include "core/OptionsModel.h"

#include "core/Feedback.h"
#include "core/OptionsHooks.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Globals.h"
#include "core/Startup.h"
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
    saveGeneral();
    saveLocations();
    saveEditing();
    if (optionsHooks().tagTreeOptions)
        optionsHooks().tagTreeOptions();
    saveDisplay();
    saveColours();
    saveBrowsers();
    if (optionsHooks().applyToDocuments)
        optionsHooks().applyToDocuments();
    EndWait();
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
    if (!check(OptionCheck::ShowNS) && !check(OptionCheck::ShowIE))
        platform::MsgBox(QStringLiteral("The bookmarks tab will not contain any information"), platform::Buttons::Ok,
                         platform::Icon::Information);
}

void OptionsModel::saveColours()
{
    for (int i = 0; i < kColourCount; ++i) {
        const int c = colours[size_t(i)];
        WriteSetting(kEditing, colourBindings()[size_t(i)].key, c < 0 ? QString() : QString::number(c));
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
