#pragma once

#include <QString>
#include <array>

namespace qly::core {

// The tabs of the Options dialog, in the order they show.
enum class OptionsTab { General, Editing, Coloring, Display, Directories, Spelling, SaveStart, ExternalBrowsers };
inline constexpr int kOptionsTabCount = 8;
QString optionsTabCaption(OptionsTab tab);

// The check boxes of the Options dialog, each bound to one yes/no key.
enum class OptionCheck {
    DocStyles, PreformatText, AbsoluteReferences, CurrentDirectory, PContainer, FixedTempName,
    StrongEmphasis, PublishPreviews, ParseLinks, LowercaseFileNames,
    ForceDefaultExt, AlwaysMaximise, LowerCaseTags, TranslateWhileTyping,
    ColorHTML,
    ShowIE, ShowNS, ScoutOnSave, ExplorerInternal, WordWrap,
    ShowHints, OpenNewDocument, RestoreLastSession, CreateBak, RefreshBrowser, ScoutTab,
    ChooseBrowser, StripCRLF, UnixText, TranslateExtended, UnixSlashes, UseAliases,
    Count
};
inline constexpr int kOptionCheckCount = int(OptionCheck::Count);

struct CheckBinding {
    OptionCheck id;
    OptionsTab tab;
    QLatin1String control;      // the control's name, e.g. "chkGeneral(5)"
    QLatin1String section;
    QLatin1String key;
    bool shownWhenAbsent;       // how the box shows a key that is not stored
    QLatin1String caption;
};
// One entry per OptionCheck, in the order of the enum.
const std::array<CheckBinding, kOptionCheckCount> &checkBindings();
const CheckBinding &checkBinding(OptionCheck id);

// The ten colour boxes of the Coloring tab, `lblColour(0)` to `lblColour(9)`.
struct ColourBinding {
    QLatin1String caption;      // "Text:"
    QLatin1String key;          // [Editing] key
    QLatin1String frame;        // "Main", "JavaScript" or "HTML Tags"
    int slot;                   // the edit buffer's colour slot that shows it
};
inline constexpr int kColourCount = 10;
const std::array<ColourBinding, kColourCount> &colourBindings();

// The directory boxes `txtFile(0)` to `txtFile(6)`: [File Locations] keys.
inline constexpr int kLocationCount = 7;
inline constexpr int kBrowserLocation = 0;
inline constexpr int kTemplatesLocation = 6;
QString locationKey(int index);
QString locationCaption(int index);

} // namespace qly::core
