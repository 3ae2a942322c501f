#include "core/OptionsModel.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/MoveTemplates.h"
#include "core/OptionsHooks.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QRegularExpression>

#include <cmath>

namespace qly::core {

namespace {

const QString kGeneral = QStringLiteral("General");
const QString kEditing = QStringLiteral("Editing");
const QString kFileLocations = QStringLiteral("File Locations");

// The entry of `list` equal to `value` without regard to case, or `fallback`.
QString searchList(const QStringList &list, const QString &value, const QString &fallback)
{
    for (const QString &item : list) {
        if (item.compare(value, Qt::CaseInsensitive) == 0)
            return item;
    }
    return fallback;
}

QString unmarked(const QString &browser)
{
    return browser.startsWith(u'*') ? browser.mid(1) : browser;
}

} // namespace

QStringList OptionsModel::bigLetterSizes()
{
    return {QStringLiteral("+6"), QStringLiteral("+5"), QStringLiteral("+4"), QStringLiteral("+3"),
            QStringLiteral("+2"), QStringLiteral("+1"), QStringLiteral("-1"), QStringLiteral("-2"),
            QStringLiteral("-3"), QStringLiteral("-4"), QStringLiteral("-5"), QStringLiteral("-6")};
}

QStringList OptionsModel::anchorChoices()
{
    return {QStringLiteral("ID"), QStringLiteral("NAME")};
}

QStringList OptionsModel::documentExtensions()
{
    return {QStringLiteral("htm"), QStringLiteral("html")};
}

QStringList OptionsModel::publishExtensions()
{
    return {QStringLiteral("htm"), QStringLiteral("html"), QStringLiteral("ht3"), QStringLiteral("pub")};
}

void OptionsModel::load()
{
    for (const CheckBinding &b : checkBindings()) {
        const QString v = ReadSetting(b.section, b.key);
        setCheck(b.id, v.isEmpty() ? b.shownWhenAbsent : v.toLower() == QLatin1String("yes"));
    }

    bigLetterSize = searchList(bigLetterSizes(), ReadSetting(kGeneral, QStringLiteral("Big First Letter Size")),
                               QStringLiteral("+2"));
    anchor = searchList(anchorChoices(), ReadSetting(kGeneral, QStringLiteral("Target")), QStringLiteral("NAME"));
    autoSaveMinutes = ReadSetting(kGeneral, QStringLiteral("AutoSave"));

    fontName = ReadSetting(kEditing, QStringLiteral("Font Name"));
    if (fontName.isEmpty())
        fontName = QStringLiteral("MS Sans Serif");
    fontSize = ReadSetting(kEditing, QStringLiteral("Font Size"));
    if (fontSize.toInt() == 0)
        fontSize = QStringLiteral("10");
    const QString docExt = ReadSetting(kEditing, QStringLiteral("Default Document Extension"));
    documentExtension = searchList(documentExtensions(), docExt.isEmpty() ? QStringLiteral("htm") : docExt, docExt);
    m_forceExtVisible = documentExtension.size() > 3;

    const QString pubExt = ReadSetting(QStringLiteral("Publishing"), QStringLiteral("Default Extension"));
    publishExtension = pubExt.isEmpty() ? QStringLiteral("html") : searchList(publishExtensions(), pubExt, pubExt);

    scoutSeconds = ReadSetting(QStringLiteral("Display"), QStringLiteral("Scout Refresh"));
    m_scoutEnabled = scoutSeconds.toInt() != 0;

    for (int i = 0; i < kLocationCount; ++i)
        locations[size_t(i)] = ReadSetting(kFileLocations, locationKey(i));
    m_loadedTemplates = locations[kTemplatesLocation];
    dictionaries[0] = ReadSetting(kGeneral, QStringLiteral("Standard Dictionary"));
    dictionaries[1] = ReadSetting(kGeneral, QStringLiteral("Custom Dictionary"));

    for (int i = 0; i < kColourCount; ++i) {
        bool ok = false;
        const int c = ReadSetting(kEditing, colourBindings()[size_t(i)].key).toInt(&ok);
        colours[size_t(i)] = (ok && c >= 0) ? c : -1;
    }
    loadBrowsers();
}

void OptionsModel::loadBrowsers()
{
    m_browsers.clear();
    const QString current = ReadSetting(kFileLocations, QStringLiteral("Browser"));
    bool marked = false;
    for (const QString &line : ReadSection(QStringLiteral("Browsers"))) {
        const QString path = line.mid(line.indexOf(u'=') + 1).trimmed();
        if (path.isEmpty())
            continue;
        const bool isDefault = !marked && !current.isEmpty() && path == current;
        marked = marked || isDefault;
        m_browsers << (isDefault ? u'*' + path : path);
    }
}

void OptionsModel::chooseDocumentExtension(const QString &ext)
{
    documentExtension = ext;
    m_forceExtVisible = ext.size() > 3;
    setCheck(OptionCheck::ForceDefaultExt, m_forceExtVisible);
}

void OptionsModel::setScoutEnabled(bool on)
{
    m_scoutEnabled = on;
    if (on && scoutSeconds.trimmed().isEmpty())
        scoutSeconds = QStringLiteral("5");
}

QString OptionsModel::normalizeScout(const QString &text)
{
    // The number at the start of the text, as far as it reads as one.
    static const QRegularExpression number(QStringLiteral("^\\s*[-+]?\\d*(\\.\\d*)?"));
    const double value = number.match(text).captured(0).trimmed().toDouble();
    const double whole = std::trunc(qAbs(value));
    return whole > 60 ? QStringLiteral("60") : QString::number(qint64(whole));
}

void OptionsModel::leaveLocation(int index)
{
    if (index <= kBrowserLocation || index >= kLocationCount)
        return;
    const QString path = locations[size_t(index)].trimmed();
    if (!path.isEmpty() && !DirExists(path)) {
        const platform::Answer a = platform::MsgBox(path + QStringLiteral(" does not exist.  Create it now ?"),
                                                    platform::Buttons::YesNo, platform::Icon::Question);
        if (a == platform::Answer::Yes && !QDir().mkpath(path))
            ErrorBox(path + QStringLiteral(": ") + QStringLiteral("This directory is not acceptable to the operating system."));
    }
    if (index == kTemplatesLocation && path != m_loadedTemplates) {
        if (DirExists(path))
            MoveTemplates(path);
        m_loadedTemplates = path;
    }
}

void OptionsModel::browseLocation(int index)
{
    if (index < 0 || index >= kLocationCount)
        return;
    QString &box = locations[size_t(index)];
    if (index == kBrowserLocation) {
        platform::FileRequest r;
        r.title = versionCaption() + QStringLiteral(" - Choose Browser");
        r.filter = ProgramFileFilter();
        r.directory = box.isEmpty() ? GetFileLocation(QStringLiteral("Documents")) : DirectoryOf(box);
        const platform::FileAnswer a = platform::prompts().openFile(r);
        if (a.accepted())
            box = a.files.first();
        return;
    }
    const QString start = DirExists(box) ? box : GetFileLocation(locationKey(index));
    const QString dir = platform::prompts().chooseDirectory(versionCaption() + QStringLiteral(" - Choose Directory"), start);
    if (dir.isEmpty())
        return;
    box = QDir::toNativeSeparators(dir);
    leaveLocation(index);
}

void OptionsModel::browseDictionary()
{
    platform::FileRequest r;
    r.title = versionCaption() + QStringLiteral(" - Choose Dictionary");
    r.filter = QStringLiteral("Dictionaries (*.dic)|*.dic|All Files (*.*)|*.*");
    r.directory = dictionaries[1].isEmpty() ? ProgramDirectory() : DirectoryOf(dictionaries[1]);
    const platform::FileAnswer a = platform::prompts().openFile(r);
    if (a.accepted())
        dictionaries[1] = a.files.first();
}

void OptionsModel::addBrowser()
{
    platform::FileRequest r;
    r.title = versionCaption() + QStringLiteral(" - Choose Browser");
    r.filter = ProgramFileFilter();
    r.directory = GetFileLocation(QStringLiteral("Documents"));
    const platform::FileAnswer a = platform::prompts().openFile(r);
    if (!a.accepted())
        return;
    const QString path = a.files.first();
    for (const QString &b : std::as_const(m_browsers)) {
        if (unmarked(b) == path)
            return;
    }
    m_browsers << path;
}

void OptionsModel::deleteBrowser(int row)
{
    if (row >= 0 && row < m_browsers.size())
        m_browsers.removeAt(row);
}

void OptionsModel::setDefaultBrowser(int row)
{
    if (row < 0 || row >= m_browsers.size())
        return;
    for (QString &b : m_browsers)
        b = unmarked(b);
    const QString path = m_browsers[row];
    m_browsers[row] = u'*' + path;
    locations[kBrowserLocation] = path;
    WriteSetting(kFileLocations, QStringLiteral("Browser"), path);
}

void OptionsModel::findBrowsers()
{
    if (!optionsHooks().findBrowsers)
        return;
    const int found = optionsHooks().findBrowsers();
    loadBrowsers();
    if (found == 0
        && platform::MsgBox(QStringLiteral("No web browser was found on this computer. Would you like to choose "
                                           "the program of a browser yourself?"),
                            platform::Buttons::YesNo, platform::Icon::Question) == platform::Answer::Yes)
        addBrowser();
    if (locations[kBrowserLocation].isEmpty())
        locations[kBrowserLocation] = ReadSetting(kFileLocations, QStringLiteral("Browser"));
}

} // namespace qly::core
