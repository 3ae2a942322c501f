#include "core/OptionBindings.h"

namespace qly::core {

namespace {

using L = QLatin1String;
using T = OptionsTab;
using C = OptionCheck;

const L kGeneral("General");
const L kEditing("Editing");
const L kDisplay("Display");
const L kPublishing("Publishing");

} // namespace

QString optionsTabCaption(OptionsTab tab)
{
    static const char *const captions[kOptionsTabCount] = {
        "General", "Editing", "Coloring", "Display", "Directories", "Spelling", "Save/Start", "External Browsers",
    };
    return QString::fromLatin1(captions[int(tab)]);
}

const std::array<CheckBinding, kOptionCheckCount> &checkBindings()
{
    static const std::array<CheckBinding, kOptionCheckCount> table = {{
        {C::DocStyles, T::General, L("chkDocStyles"), L("Styles"), L("Show Document Specific"), false,
         L("Offer only the styles that apply to the selection")},
        {C::PreformatText, T::General, L("chkGeneral(0)"), kGeneral, L("Preformat Text"), true,
         L("Insert files as preformatted text")},
        {C::AbsoluteReferences, T::General, L("chkGeneral(9)"), kGeneral, L("Always Use Absolute References"), false,
         L("Always use absolute references")},
        {C::CurrentDirectory, T::General, L("chkGeneral(3)"), kGeneral, L("Always Use Current Directory"), false,
         L("File dialogs start in the current directory")},
        {C::PContainer, T::General, L("chkGeneral(10)"), kGeneral, L("P is a Container"), false,
         L("Paragraphs get an end tag")},
        {C::FixedTempName, T::General, L("chkGeneral(12)"), kGeneral, L("Fixed Temp File Name"), false,
         L("Preview through one fixed temporary file")},
        {C::StrongEmphasis, T::General, L("chkGeneral(1)"), kGeneral, L("Strong and Emphasis"), true,
         L("Bold and Italic write STRONG and EM")},
        {C::PublishPreviews, T::General, L("chkGeneral(8)"), kGeneral, L("Publish Previews"), false,
         L("Publish documents before previewing them")},
        {C::ParseLinks, T::General, L("chkGeneral(14)"), kGeneral, L("Parse Links On Open"), false,
         L("Check links while opening files.")},
        {C::LowercaseFileNames, T::General, L("chkLowercaseFileNames"), kGeneral, L("Lowercase File Names"), false,
         L("Lowercase file names")},

        {C::ForceDefaultExt, T::Editing, L("chkForceDefaultExt"), kEditing, L("Force DefaultExt"), false,
         L("Always save with the default extension")},
        {C::AlwaysMaximise, T::Editing, L("chkAlwaysMax"), kEditing, L("Always Maximise"), false,
         L("Always maximise document windows")},
        {C::LowerCaseTags, T::Editing, L("chkEditing(1)"), kEditing, L("Lower Case Tags"), false,
         L("Write tags in lower case")},
        {C::TranslateWhileTyping, T::Editing, L("chkEditing(2)"), kEditing, L("Translate While Typing"), false,
         L("Translate special characters while typing")},

        {C::ColorHTML, T::Coloring, L("chkColourHTML"), kEditing, L("Color HTML"), false, L("Color HTML")},

        {C::ShowIE, T::Display, L("chkShowIE"), kDisplay, L("IE Favorites"), false,
         L("Show Internet Explorer favorites")},
        {C::ShowNS, T::Display, L("chkShowNS"), kDisplay, L("Netscape Bookmarks"), false,
         L("Show Netscape bookmarks")},
        {C::ScoutOnSave, T::Display, L("chkScoutOnSave"), kDisplay, L("Scout On Save"), false,
         L("Refresh the preview tab on saving")},
        {C::ExplorerInternal, T::Display, L("chkExplorer"), kDisplay, L("Explorer Internal"), false,
         L("Document windows preview with the web engine")},
        {C::WordWrap, T::Display, L("chkDisplay(3)"), kDisplay, L("WordWrap"), false, L("Word wrap")},

        {C::ShowHints, T::SaveStart, L("chkGeneral(6)"), L("Handy Hints"), L("Show Hints at Startup"), true,
         L("Show the tip of the day at start-up")},
        {C::OpenNewDocument, T::SaveStart, L("chkGeneral(5)"), kGeneral, L("Open New Document"), true,
         L("Open a new document at start-up")},
        {C::RestoreLastSession, T::SaveStart, L("chkGeneral(4)"), kGeneral, L("Restore Last Session"), false,
         L("Restore the last session at start-up")},
        {C::CreateBak, T::SaveStart, L("chkGeneral(2)"), kGeneral, L("Create BAK Files"), true,
         L("Keep a .bak copy of each file as it was when opened")},
        {C::RefreshBrowser, T::SaveStart, L("chkGeneral(13)"), kGeneral, L("Refresh Browser"), false,
         L("Refresh browser preview on saving document")},
        {C::ScoutTab, T::SaveStart, L("chkScoutTab"), kGeneral, L("Use Scout Tab"), false,
         L("Open documents on their preview tab")},

        {C::ChooseBrowser, T::ExternalBrowsers, L("chkGeneral(7)"), kGeneral, L("Choose Browser Before Preview"), false,
         L("Choose a browser before each preview")},
        {C::StripCRLF, T::ExternalBrowsers, L("chkPublish(0)"), kPublishing, L("Strip CRLF"), false,
         L("Remove all carriage returns")},
        {C::UnixText, T::ExternalBrowsers, L("chkPublish(1)"), kPublishing, L("Publish as UNIX Text"), false,
         L("Publish as UNIX text file")},
        {C::TranslateExtended, T::ExternalBrowsers, L("chkPublish(2)"), kPublishing,
         L("Translate Extended Characters"), false, L("Convert extended characters to HTML codes")},
        {C::UnixSlashes, T::ExternalBrowsers, L("chkPublish(3)"), kPublishing, L("Use UNIX Slashes"), true,
         L("Replace \\ with / in file names")},
        {C::UseAliases, T::ExternalBrowsers, L("chkUseAliases"), kPublishing, L("Use Aliases"), false,
         L("Replace words when publishing")},
    }};
    return table;
}

const CheckBinding &checkBinding(OptionCheck id)
{
    return checkBindings()[size_t(id)];
}

const std::array<ColourBinding, kColourCount> &colourBindings()
{
    static const std::array<ColourBinding, kColourCount> table = {{
        {L("Text:"), L("Text"), L("Main"), 4},
        {L("Error Color:"), L("Error"), L("Main"), 11},
        {L("Methods:"), L("Methods"), L("JavaScript"), 5},
        {L("Objects:"), L("Objects"), L("JavaScript"), 8},
        {L("Statements:"), L("Statements"), L("JavaScript"), 7},
        {L("Properties:"), L("Properties"), L("JavaScript"), 6},
        {L("Unfinished Attribute:"), L("Unfinished Params"), L("HTML Tags"), 2},
        {L("Attributes:"), L("Attributes"), L("HTML Tags"), 1},
        {L("Tags:"), L("Default Tag Color"), L("HTML Tags"), 0},
        {L("Values:"), L("Values"), L("HTML Tags"), 3},
    }};
    return table;
}

QString locationKey(int index)
{
    static const char *const keys[kLocationCount] = {
        "Browser", "Documents", "Publish", "Graphics", "AutoSave", "Background Graphics", "Templates",
    };
    return (index >= 0 && index < kLocationCount) ? QString::fromLatin1(keys[index]) : QString();
}

QString locationCaption(int index)
{
    static const char *const captions[kLocationCount] = {
        "Default browser:", "Documents:", "Publish:", "Graphics:", "AutoSave:", "Background graphics:", "Templates:",
    };
    return (index >= 0 && index < kLocationCount) ? QString::fromLatin1(captions[index]) : QString();
}

} // namespace qly::core
