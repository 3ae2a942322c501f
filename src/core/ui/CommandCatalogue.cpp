#include "core/ui/CommandCatalogue.h"

#include <QHash>

namespace qly::core::ui {

namespace {

QString S(const char *text)
{
    return QString::fromUtf8(text);
}

QStringList L(std::initializer_list<const char *> names)
{
    QStringList out;
    for (const char *n : names)
        out << QString::fromUtf8(n);
    return out;
}

} // namespace

const std::vector<CommandInfo> &commandCatalogue()
{
    using K = QKeySequence;
    static const std::vector<CommandInfo> table = {
        // File
        {S("mnuNew"), S("&New"), K(K::New)},
        {S("mnuOpen"), S("&Open..."), K(K::Open)},
        {S("mnuSave"), S("&Save"), K(K::Save)},
        {S("mnuSaveAs"), S("Save &As..."), K(K::SaveAs)},
        {S("mnuSaveTemplate"), S("Save As Template..."), {}},
        {S("mnuSaveAll"), S("Sa&ve All"), K(S("Ctrl+Shift+L"))},
        {S("FileOpenRemote"), S("Open f&rom Server..."), {}},
        {S("FileSaveRemote"), S("Save &to Server"), {}},
        // Ctrl+W on every desktop (the standard Close key is Ctrl+F4 on some).
        {S("mnuClose"), S("&Close"), K(S("Ctrl+W"))},
        {S("mnuPrint"), S("&Print..."), K(K::Print)},
        {S("mnuPrintPreview"), S("Print Pre&view..."), {}},
        {S("mnuPrintSetup"), S("Pr&int Setup..."), {}},
        {S("mnuProjectMan"), S("New Web&site..."), {}},
        {S("mnuOpenProject"), S("Open &Website..."), {}},
        {S("FileAddFiles"), S("&Add Files..."), {}},
        {S("mnuUploadProject"), S("Upload Website..."), {}},
        {S("FileRecent1"), S("&1"), {}},
        {S("FileRecent2"), S("&2"), {}},
        {S("FileRecent3"), S("&3"), {}},
        {S("FileRecent4"), S("&4"), {}},
        {S("mnuExit"), S("E&xit"), K(K::Quit)},
        // Edit
        {S("EditUndo"), S("&Undo"), K(K::Undo)},
        {S("EditRedo"), S("&Redo"), K(K::Redo)},
        {S("EditCut"), S("Cu&t"), K(K::Cut)},
        {S("EditCopy"), S("&Copy"), K(K::Copy)},
        {S("EditPaste"), S("&Paste"), K(K::Paste)},
        {S("EditFind"), S("&Find..."), K(K::Find)},
        {S("EditReplace"), S("&Replace..."), K(S("Ctrl+H"))},
        {S("EditFindNext"), S("Find Ne&xt"), K(S("F3"))},
        {S("EditFindPrevious"), S("Find Previ&ous"), K(S("Shift+F3"))},
        {S("EditMFReplace"), S("Multi-File Replace"), {}},
        {S("EditTags"), S("Edit &Tags..."), {}},
        {S("FilterTags"), S("&Filter Tags"), {}},
        {S("EditSelectAll"), S("Se&lect All"), K(K::SelectAll)},
        {S("EditSelectTag"), S("Select T&his Tag"), K(S("Ctrl+Shift+T"))},
        {S("EditTranslate"), S("Tra&nslate Extended Chars"), {}},
        {S("EditAbsToRel"), S("A&bsolute to Relative"), {}},
        {S("EditRelToAbs"), S("Relati&ve To Absolute"), {}},
        {S("EditRemoveLinks"), S("&Remove Links"), {}},
        {S("EditRemoveHTML"), S("Remove &HTML Tags"), {}},
        // View
        {S("ViewTB0"), S("&File Toolbar"), {}},
        {S("ViewTB1"), S("&Text Toolbar"), {}},
        {S("ViewTB2"), S("&Insert Toolbar"), {}},
        {S("ViewTB3"), S("&Format Toolbar"), {}},
        {S("ViewTB4"), S("&Style Toolbar"), {}},
        {S("ViewResMan"), S("&Resource Manager"), {}},
        // The edit control's own Properties key, as desktops know it.
        {S("ViewProperties"), S("&Document Properties..."), K(S("Alt+Return"))},
        {S("ViewSpecialCharacters"), S("Special &Characters..."), {}},
        // Insert
        {S("InsertImage"), S("&Image..."), {}},
        {S("InsertURL"), S("&URL..."), K(S("Ctrl+K"))},
        {S("InsertFTP"), S("&FTP..."), {}},
        {S("InsertEMail"), S("&E-mail..."), {}},
        {S("InsertNews"), S("&News..."), {}},
        {S("InsertAnchor"), S("&Anchor..."), {}},
        {S("InsertHLine"), S("Hori&zontal Rule..."), {}},
        {S("InsertList"), S("&List..."), {}},
        {S("InsertTable"), S("Table &Editor..."), {}},
        {S("InsertTableTemp"), S("&Templates..."), {}},
        {S("InsertForm"), S("Form Editor..."), {}},
        {S("InsertTextField"), S("Text Field..."), {}},
        {S("InsertRadioButton"), S("Radio Button..."), {}},
        {S("InsertCheckBox"), S("Check Box..."), {}},
        {S("InsertHiddenField"), S("Hidden Field..."), {}},
        {S("InsertPassword"), S("Password..."), {}},
        {S("InsertTextArea"), S("Text Area..."), {}},
        {S("InsertFormList"), S("List..."), {}},
        {S("InsertFormImage"), S("Image..."), {}},
        {S("InsertSubmit"), S("Submit Button..."), {}},
        {S("InsertReset"), S("Reset Button..."), {}},
        {S("InsertFrame"), S("Frame Editor..."), {}},
        {S("InsertColor"), S("Color..."), {}},
        {S("IBackSound"), S("Background Sound..."), {}},
        {S("InsertActiveX"), S("ActiveX..."), {}},
        {S("InsertImageMap"), S("Client-Side Image Map..."), {}},
        {S("InsertAnimation"), S("Animation..."), {}},
        {S("InsertJS0"), S("Clock..."), {}},
        {S("InsertJS1"), S("Random Banner..."), {}},
        {S("InsertJS2"), S("Last Updated"), {}},
        {S("InsertJS3"), S("Scrolling Field..."), {}},
        {S("InsertJS4"), S("Credits..."), {}},
        {S("InsertJS5"), S("Select URL..."), {}},
        {S("InsertJS6"), S("No Frames"), {}},
        {S("InsertJS7"), S("Pop-up URL..."), {}},
        {S("InsertTextEffects"), S("Text Effects..."), {}},
        {S("InsertJavaHR"), S("Horizontal Rule..."), {}},
        {S("InsertJavaLED"), S("LED Sign..."), {}},
        {S("InsertMarquee"), S("&Marquee..."), {}},
        {S("InsertNetCaster"), S("NetCaster Subscribe Button..."), {}},
        {S("InsertACSubscribe"), S("Active Channel Subscribe Button..."), {}},
        {S("InsertChannelDef"), S("Active Channel Definition (CDF)..."), {}},
        {S("InsertChannelItem"), S("Active Channel Item(CDF)..."), {}},
        {S("InsertTextFile"), S("&Text File..."), {}},
        {S("InsertDate0"), S("Short Date"), {}},
        {S("InsertDate1"), S("Long Date"), {}},
        {S("InsertDate2"), S("Long Date and Time"), {}},
        // Format
        {S("FormatBaseFont"), S("Base Font..."), {}},
        {S("FormatFont"), S("&Font..."), {}},
        {S("FormatLeft"), S("&Left"), {}},
        {S("FormatCenter"), S("&Center"), K(S("Ctrl+E"))},
        {S("FormatRight"), S("&Right"), {}},
        {S("FormatBigger"), S("&Bigger"), {}},
        {S("FormatSmaller"), S("&Smaller"), {}},
        {S("FormatBold"), S("&Bold"), K(K::Bold)},
        {S("FormatItalic"), S("&Italic"), K(K::Italic)},
        {S("FormatUnderline"), S("&Underline"), K(K::Underline)},
        {S("FormatDropCaps"), S("&Drop Caps"), {}},
        {S("FormatEditStyles"), S("Edit Styles..."), {}},
        {S("FormatSetStyle"), S("Enter Style..."), {}},
        {S("FormatSetURLStyle"), S("Set External  Style..."), {}},
        // Tools
        {S("ToolsCustomizeTB"), S("Customi&ze Toolbars..."), {}},
        {S("ToolsConvertToHTML"), S("Co&nvert to HTML..."), {}},
        {S("ToolsFindDup"), S("Find &Duplicate Links..."), {}},
        {S("ToolsSpellCheck"), S("S&pell Check..."), K(S("F7"))},
        {S("ToolThes"), S("&Thesaurus..."), K(S("Shift+F7"))},
        {S("Preview0"), S("Browser 1"), K(S("F12"))},
        {S("Preview1"), S("Browser 2"), {}},
        {S("Preview2"), S("Browser 3"), {}},
        {S("Preview3"), S("Browser 4"), {}},
        {S("PreviewAll"), S("Preview in All"), {}},
        {S("HostPanelOpen"), S("Open..."), {}},
        {S("HostPanelSetup"), S("Setup..."), {}},
        {S("ToolsFTPMan"), S("&FTP Site Manager..."), {}},
        {S("ToolsUploadFiles"), S("&Upload Files..."), {}},
        {S("ToolsDownload"), S("&Download site via FTP..."), {}},
        {S("ToolsOptimizeDL"), S("Page Optimizer..."), {}},
        {S("plug0"), S("Not Installed"), {}},
        {S("plug1"), S("Plug-in 2"), {}},
        {S("plug2"), S("Plug-in 3"), {}},
        {S("plug3"), S("Plug-in 4"), {}},
        {S("plug4"), S("Plug-in 5"), {}},
        {S("plug5"), S("Plug-in 6"), {}},
        {S("plug6"), S("Plug-in 7"), {}},
        {S("plug7"), S("Plug-in 8"), {}},
        {S("plug8"), S("Plug-in 9"), {}},
        {S("plug9"), S("Plug-in 10"), {}},
        {S("ToolsDNS"), S("Domain Lookup..."), {}},
        {S("ToolsOptions"), S("&Options..."), {}},
        // Window
        {S("mnuWindow0"), S("&Cascade"), {}},
        {S("mnuWindow1"), S("&Tile"), {}},
        {S("mnuWindow2"), S("&Arrange Icons"), {}},
        {S("mnuWindow4"), S("C&lose All"), {}},
        // Help
        {S("HelpContents"), S("&Contents"), K(K::HelpContents)},
        {S("HelpSearch"), S("&Search"), {}},
        {S("HelpHTML"), S("&HTML Reference"), {}},
        {S("HelpInternet"), S("&Internet Links"), {}},
        {S("HelpLumenfold"), S("Lumenfold on the &Web"), {}},
        {S("HelpSupport"), S("&Customer Support"), {}},
        {S("HelpLumenserve"), S("Lumenserve &Hosting"), {}},
        {S("HelpCornucopia"), S("Web C&ornucopia"), {}},
        {S("HelpAbout"), S("&About Quillery..."), {}},
        // Tools of the toolbars that no menu entry has
        {S("EditBrowsers"), S("Edit Browser List..."), {}},
        {S("tlbPreview"), S("Preview"), {}},
        {S("tlbHead1"), S("Heading 1"), {}},
        {S("tlbHead2"), S("Heading 2"), {}},
        {S("tlbHead3"), S("Heading 3"), {}},
        {S("tlbHead4"), S("Heading 4"), {}},
        {S("tlbHead5"), S("Heading 5"), {}},
        {S("tlbHead6"), S("Heading 6"), {}},
        {S("tlbNList"), S("Numbered List"), {}},
        {S("tlbBList"), S("Bulleted List"), {}},
        {S("tlbOutdent"), S("Outdent"), {}},
        {S("tlbIndent"), S("Indent"), {}},
        {S("tlbBreak"), S("Line Break"), K(S("Shift+Return"))},
        {S("tlbParagraph"), S("Paragraph"), K(S("Ctrl+Return"))},
        {S("tlbNBSP"), S("Non-breaking Space"), K(S("Ctrl+Shift+Space"))},
        {S("tlbBackground"), S("Background..."), {}},
        {S("tlbBack"), S("Back"), {}},
        {S("tlbForward"), S("Forward"), {}},
        {S("tlbRefresh"), S("Refresh"), {}},
        {S("tlbHome"), S("Home"), {}},
        {S("tlbStop"), S("Stop"), {}},
    };
    return table;
}

const std::vector<MenuLayout> &menuLayout()
{
    static const std::vector<MenuLayout> layout = {
        {S("mnuFile"), S("&File"),
         L({"mnuNew", "mnuOpen", "mnuSave", "mnuSaveAs", "mnuSaveTemplate", "mnuSaveAll", "FileOpenRemote", "FileSaveRemote",
            "mnuClose", "",
            "mnuPrint", "mnuPrintPreview", "mnuPrintSetup", "", ">web|&Websites", "mnuProjectMan", "mnuOpenProject",
            "FileAddFiles", "mnuUploadProject", "<", "", "FileRecent1", "FileRecent2", "FileRecent3", "FileRecent4",
            "", "mnuExit"})},
        {S("mnuHdg"), S("&Edit"),
         L({"EditUndo", "EditRedo", "", "EditCut", "EditCopy", "EditPaste", "", "EditFind", "EditReplace",
            "EditFindNext", "EditFindPrevious", "EditMFReplace", "", "EditTags", "FilterTags", "", "EditSelectAll", "EditSelectTag", "", "EditTranslate",
            "EditAbsToRel", "EditRelToAbs", "EditRemoveLinks", "EditRemoveHTML"})},
        {S("View"), S("&View"),
         L({"ViewTB0", "ViewTB1", "ViewTB2", "ViewTB3", "ViewTB4", "", "ViewResMan", "ViewProperties",
            "ViewSpecialCharacters"})},
        {S("Insert"), S("&Insert"),
         L({"InsertImage", ">InsertLink|&Link", "InsertURL", "InsertFTP", "InsertEMail", "InsertNews", "<",
            "InsertAnchor", "InsertHLine", "InsertList", ">ITable|&Table", "InsertTable", "InsertTableTemp", "<",
            "InsertForm", ">InsertFormTop|Form &Elements", "InsertTextField", "InsertRadioButton", "InsertCheckBox",
            "InsertHiddenField", "InsertPassword", "InsertTextArea", "InsertFormList", "InsertFormImage",
            "InsertSubmit", "InsertReset", "<", "InsertFrame", "InsertColor", "IBackSound", "InsertActiveX",
            "InsertImageMap", "InsertAnimation", ">InsertJavaScript|&JavaScript", "InsertJS0", "InsertJS1",
            "InsertJS2", "InsertJS3", "InsertJS4", "InsertJS5", "InsertJS6", "InsertJS7", "<",
            ">InsertSpearmint|Ja&va", "InsertTextEffects", "InsertJavaHR", "InsertJavaLED", "<", "InsertMarquee",
            ">InsertChannel|&Channels", "InsertNetCaster", "InsertACSubscribe", "InsertChannelDef",
            "InsertChannelItem", "<", "InsertTextFile", ">InsertTimeStamp|Date and Ti&me", "InsertDate0",
            "InsertDate1", "InsertDate2", "<"})},
        {S("Format"), S("F&ormat"),
         L({"FormatBaseFont", "FormatFont", ">FormatStyle|&Style", "FormatBold", "FormatItalic", "FormatUnderline",
            "<", ">FormatAlignment|&Alignment", "FormatLeft", "FormatCenter", "FormatRight", "<",
            ">mnuFormat|Font Si&ze", "FormatBigger", "FormatSmaller", "<", "FormatDropCaps",
            ">FormatCascading|&Cascading Style Sheets", "FormatEditStyles", "FormatSetStyle", "FormatSetURLStyle",
            "<"})},
        {S("Tools"), S("&Tools"),
         L({"ToolsCustomizeTB", "", "ToolsConvertToHTML", "ToolsFindDup", "ToolsSpellCheck", "ToolThes", "",
            ">ToolsPreview|P&review", "Preview0", "Preview1", "Preview2", "Preview3", "PreviewAll", "<",
            ">HostPanel|&Hosting Control Panel", "HostPanelOpen", "HostPanelSetup", "<", "ToolsFTPMan",
            "ToolsUploadFiles", "ToolsDownload", "ToolsOptimizeDL", ">plugin|Plug-ins", "plug0", "plug1", "plug2",
            "plug3", "plug4", "plug5", "plug6", "plug7", "plug8", "plug9", "<", "ToolsDNS", "",
            "ToolsOptions"})},
        {S("Window"), S("&Window"), L({"mnuWindow0", "mnuWindow1", "mnuWindow2", "", "mnuWindow4"})},
        {S("Help"), S("&Help"),
         L({"HelpContents", "HelpSearch", "", "HelpHTML", "HelpInternet", "HelpLumenfold", "HelpSupport",
            "HelpLumenserve", "HelpCornucopia", "", "HelpAbout"})},
    };
    return layout;
}

const std::vector<BandLayout> &toolbarLayout()
{
    static const std::vector<BandLayout> bands = {
        {S("File"), S("ViewTB0"),
         L({"tlbNew", "tlbOpen", "tlbSave", "", "tlbCut", "tlbCopy", "tlbPaste", "", "tlbUndo", "tlbRedo", "",
            "tlbPrint", "tlbFind", "", "tlbPreview", "B1", "B2", "B3", "B4", "PreviewAll", "EditBrowsers"})},
        {S("Text Property"), S("ViewTB1"),
         L({"tblFont", "tlbBigger", "tlbSmaller", "", "tblBold", "tblItalic", "tblUnderline", "", "tblJLeft",
            "tblJCenter", "tlbRight", "", "tlbColor"})},
        {S("Insert"), S("ViewTB2"),
         L({"tlbInsertImage", "tlbGLink", "tlbELink", "tlbFLink", "tlbNLink", "", "tlbRule", "tlbTable", "tlbFrames",
            "tlbBackground", "tlbNBSP"})},
        {S("Properties"), S("ViewTB3"),
         L({"tlbHead1", "tlbHead2", "tlbHead3", "tlbHead4", "tlbHead5", "tlbHead6", "", "tlbNList", "tlbBList",
            "tlbOutdent", "tlbIndent", "", "tlbBreak", "tlbParagraph"})},
        {S("Style"), S("ViewTB4"),
         L({"cmbApplyStyle", "tlbEditStyle", "tlbInsertStyle", "tlbURLTool", "", "tlbSpellCheck", "tlbDomain"})},
        {S("Browser"), QString(), L({"tlbBack", "tlbForward", "tlbStop", "tlbRefresh", "tlbHome"})},
    };
    return bands;
}

QString toolCommand(const QString &tool)
{
    static const QHash<QString, QString> map = {
        {S("B1"), S("Preview0")}, {S("B2"), S("Preview1")}, {S("B3"), S("Preview2")}, {S("B4"), S("Preview3")},
        {S("tlbNew"), S("mnuNew")}, {S("tlbOpen"), S("mnuOpen")}, {S("tlbSave"), S("mnuSave")},
        {S("tlbCut"), S("EditCut")}, {S("tlbCopy"), S("EditCopy")}, {S("tlbPaste"), S("EditPaste")},
        {S("tlbUndo"), S("EditUndo")}, {S("tlbRedo"), S("EditRedo")}, {S("tlbPrint"), S("mnuPrint")},
        {S("tlbFind"), S("EditFind")}, {S("tlbInsertImage"), S("InsertImage")}, {S("tlbGLink"), S("InsertURL")},
        {S("tlbELink"), S("InsertEMail")}, {S("tlbFLink"), S("InsertFTP")}, {S("tlbNLink"), S("InsertNews")},
        {S("tlbRule"), S("InsertHLine")}, {S("tlbTable"), S("InsertTable")}, {S("tlbFrames"), S("InsertFrame")},
        {S("tblFont"), S("FormatFont")}, {S("tlbBigger"), S("FormatBigger")}, {S("tlbSmaller"), S("FormatSmaller")},
        {S("tblBold"), S("FormatBold")}, {S("tblItalic"), S("FormatItalic")},
        {S("tblUnderline"), S("FormatUnderline")}, {S("tblJLeft"), S("FormatLeft")},
        {S("tblJCenter"), S("FormatCenter")}, {S("tlbRight"), S("FormatRight")}, {S("tlbColor"), S("InsertColor")},
        {S("tlbEditStyle"), S("FormatEditStyles")}, {S("tlbInsertStyle"), S("FormatSetStyle")},
        {S("tlbURLTool"), S("FormatSetURLStyle")}, {S("tlbSpellCheck"), S("ToolsSpellCheck")},
        {S("tlbDomain"), S("ToolsDNS")},
    };
    return map.value(tool, tool);
}

} // namespace qly::core::ui
