#include "publish/FindBrowsers.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>

namespace qly::publish {

using namespace qly::core;

namespace {

struct KnownBrowser {
    const char *program;
    const char *caption;
};

// The browser programs looked for on PATH, in this order, with their names.
constexpr KnownBrowser kKnown[] = {
    {"firefox", "Firefox"},
    {"firefox-esr", "Firefox ESR"},
    {"chromium", "Chromium"},
    {"chromium-browser", "Chromium"},
    {"google-chrome", "Google Chrome"},
    {"google-chrome-stable", "Google Chrome"},
    {"microsoft-edge", "Microsoft Edge"},
    {"brave-browser", "Brave"},
    {"vivaldi", "Vivaldi"},
    {"opera", "Opera"},
    {"epiphany", "GNOME Web"},
    {"epiphany-browser", "GNOME Web"},
    {"konqueror", "Konqueror"},
    {"falkon", "Falkon"},
    {"midori", "Midori"},
    {"seamonkey", "SeaMonkey"},
    {"librewolf", "LibreWolf"},
    {"qutebrowser", "qutebrowser"},
};

// A program word made into an executable's path: as it is when it has a
// directory, otherwise found on PATH. Empty when nothing runs there.
QString resolveProgram(const QString &word)
{
    if (word.isEmpty())
        return QString();
    if (word.contains(u'/')) {
        const QFileInfo info(word);
        return info.isFile() && info.isExecutable() ? info.absoluteFilePath() : QString();
    }
    return QStandardPaths::findExecutable(word);
}

// The program of a command line: the first word after "env" and its settings.
QString commandProgram(const QString &command)
{
    QStringList words = QProcess::splitCommand(command);
    if (!words.isEmpty() && words.first() == QLatin1String("env")) {
        words.removeFirst();
        while (!words.isEmpty() && (words.first().contains(u'=') || words.first().startsWith(u'-')))
            words.removeFirst();
    }
    return words.isEmpty() ? QString() : resolveProgram(words.first());
}

// The desktop entry the desktop names as its web browser ("firefox.desktop").
QString defaultBrowserEntry()
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("xdg-settings"));
    if (tool.isEmpty())
        return QString();
    QProcess process;
    process.start(tool, {QStringLiteral("get"), QStringLiteral("default-web-browser")});
    if (!process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished(1000);
        return QString();
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return QString();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

// Where desktop entries live: the user's data directory, then the system's.
QString findDesktopFile(const QString &entry)
{
    if (entry.isEmpty() || entry.contains(u'/'))
        return QString();
    QString home = qEnvironmentVariable("XDG_DATA_HOME");
    if (home.isEmpty())
        home = QDir::homePath() + QStringLiteral("/.local/share");
    QString system = qEnvironmentVariable("XDG_DATA_DIRS");
    if (system.isEmpty())
        system = QStringLiteral("/usr/local/share:/usr/share");
    const QStringList dirs = QStringList{home} + system.split(u':', Qt::SkipEmptyParts);
    for (const QString &dir : dirs) {
        const QString path = dir + QStringLiteral("/applications/") + entry;
        if (QFileInfo::exists(path))
            return path;
    }
    return QString();
}

QString identity(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

QStringList listedBrowsers()
{
    QStringList out;
    for (const QString &line : ReadSection(QStringLiteral("Browsers"))) {
        const QString path = line.mid(line.indexOf(u'=') + 1).trimmed();
        if (!path.isEmpty())
            out << path;
    }
    return out;
}

} // namespace

QString DesktopEntryExecutable(const QString &desktopFile)
{
    if (desktopFile.isEmpty())
        return QString();
    QFile file(desktopFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    bool inEntry = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(u'[')) {
            inEntry = line == QLatin1String("[Desktop Entry]");
            continue;
        }
        if (inEntry && line.startsWith(QLatin1String("Exec=")))
            return commandProgram(line.mid(5));
    }
    return QString();
}

QStringList DiscoverBrowsers()
{
    QStringList found;
    QSet<QString> seen;
    auto take = [&](const QString &path) {
        if (path.isEmpty() || seen.contains(identity(path)))
            return;
        seen.insert(identity(path));
        found << path;
    };
    // $BROWSER may list several commands, separated by colons.
    for (const QString &command : qEnvironmentVariable("BROWSER").split(u':', Qt::SkipEmptyParts))
        take(commandProgram(command));
    take(DesktopEntryExecutable(findDesktopFile(defaultBrowserEntry())));
    for (const KnownBrowser &known : kKnown)
        take(resolveProgram(QString::fromLatin1(known.program)));
    return found;
}

int FindBrowsers()
{
    ShowStatus(QStringLiteral("Finding WWW Browsers"));
    const QStringList found = DiscoverBrowsers();
    QStringList list = listedBrowsers();
    QSet<QString> listed;
    for (const QString &path : std::as_const(list))
        listed.insert(identity(path));
    bool added = false;
    for (const QString &path : found) {
        if (!listed.contains(identity(path))) {
            list << path;
            listed.insert(identity(path));
            added = true;
        }
    }
    if (added) {
        QStringList lines;
        for (int i = 0; i < list.size(); ++i)
            lines << QString::number(i + 1) + u'=' + list.at(i);
        WriteSection(QStringLiteral("Browsers"), lines.join(u'\n'));
    }
    const QString key = QStringLiteral("Browser");
    if (ReadSetting(QStringLiteral("File Locations"), key).isEmpty()) {
        const QString chosen = !found.isEmpty() ? found.first() : list.value(0);
        if (!chosen.isEmpty())
            WriteSetting(QStringLiteral("File Locations"), key, chosen);
    }
    ShowStatus(QString());
    return int(found.size());
}

std::vector<BrowserEntry> BrowserMenuEntries()
{
    std::vector<BrowserEntry> entries;
    for (const QString &path : listedBrowsers()) {
        if (entries.size() == 4)
            break;
        entries.push_back({BrowserCaption(path), path});
    }
    return entries;
}

QString BrowserCaption(const QString &path)
{
    const QString lower = path.toLower();
    if (lower.contains(QLatin1String("iexplore.exe")))
        return QStringLiteral("Internet Explorer");
    if (lower.contains(QLatin1String("netscape.exe")))
        return QStringLiteral("Netscape Navigator");
    const QString name = FileNameOf(path);
    for (const KnownBrowser &known : kKnown) {
        if (name.compare(QLatin1String(known.program), Qt::CaseInsensitive) == 0)
            return QString::fromLatin1(known.caption);
    }
    return name;
}

} // namespace qly::publish
