#pragma once

#include "core/OptionBindings.h"

#include <QString>
#include <QStringList>
#include <array>

namespace qly::core {

// The Options dialog without its window: every field of the eight tabs,
// loaded from the configuration, checked as the user edits, and written
// back in one commit with its effects on the open documents.
class OptionsModel
{
public:
    // The fixed lists of the combo boxes.
    static QStringList bigLetterSizes();      // cmbFont(2): "+6" .. "+1", "-1" .. "-6"
    static QStringList anchorChoices();       // cmbAnchor
    static QStringList documentExtensions();  // cmbDefaultDocExt
    static QStringList publishExtensions();   // cmbExtension without a stored extra

    void load();
    // Writes everything and applies it; the dialog closes afterwards.
    void commit();

    bool check(OptionCheck id) const { return m_checks[size_t(id)]; }
    void setCheck(OptionCheck id, bool on) { m_checks[size_t(id)] = on; }

    // A choice in cmbDefaultDocExt: an extension longer than three characters
    // shows and checks chkForceDefaultExt, any other hides and clears it.
    void chooseDocumentExtension(const QString &ext);
    bool forceExtensionVisible() const { return m_forceExtVisible; }

    // chkSCOUT: enables txtScout and fills "5" when it is empty.
    void setScoutEnabled(bool on);
    bool scoutEnabled() const { return m_scoutEnabled; }
    // txtScout on leaving: a whole, positive number of seconds, at most 60.
    static QString normalizeScout(const QString &text);

    // txtFile(i) on leaving: a missing directory may be made. The templates
    // box moves the templates of the old directory when it changed.
    void leaveLocation(int index);

    // The browse buttons.
    void browseLocation(int index);
    void browseDictionary();

    // lstBrowsers. The default one is marked with a leading "*".
    QStringList browsers() const { return m_browsers; }
    void addBrowser();
    void deleteBrowser(int row);
    void setDefaultBrowser(int row);
    // "Find Browsers": runs the search and reloads the list.
    void findBrowsers();

    // The fields the dialog shows as text.
    QString bigLetterSize;    // cmbFont(2)
    QString anchor;           // cmbAnchor
    QString fontName;         // cmbFont(0)
    QString fontSize;         // cmbFont(1)
    QString documentExtension; // cmbDefaultDocExt
    QString publishExtension;  // cmbExtension
    QString autoSaveMinutes;  // txtGeneral(0)
    QString scoutSeconds;     // txtScout
    std::array<QString, kLocationCount> locations;   // txtFile(0 .. 6)
    std::array<QString, 2> dictionaries;             // txtDictionary(0, 1)
    // Colours as stored (red + 256 * green + 65536 * blue); -1 shows the
    // edit buffer's own colour and leaves the key unset.
    std::array<int, kColourCount> colours{};

private:
    void loadBrowsers();
    void saveChecks(std::initializer_list<OptionsTab> tabs);
    void saveGeneral();
    void saveLocations();
    void saveEditing();
    void saveDisplay();
    void saveColours();
    void saveBrowsers();

    std::array<bool, kOptionCheckCount> m_checks{};
    bool m_forceExtVisible = false;
    bool m_scoutEnabled = false;
    QStringList m_browsers;
    QString m_loadedTemplates;   // the templates box as it was before the last change
};

} // namespace qly::core
