#include "core/Startup.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace qly::core {

namespace {

const QString kDisplay = QStringLiteral("Display");

// A new configuration sends the file dialogs to the user's documents rather
// than to the program's data, unless the shipped defaults name a place.
void seedDocumentsLocation(const QString &ini)
{
    const QString section = QStringLiteral("File Locations");
    const QString key = QStringLiteral("Documents");
    if (!ReadSetting(section, key, ini).isEmpty())
        return;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    WriteSetting(section, key, DirExists(documents) ? documents : QDir::homePath(), ini);
}

} // namespace

QString ChooseIniFile()
{
    const QString beside = JoinPath(ProgramDirectory(), QStringLiteral("quillery.ini"));
    if (QFileInfo::exists(beside))
        return beside;
    const QString user = JoinPath(UserConfigDirectory(), QStringLiteral("quillery.ini"));
    if (!QFileInfo::exists(user)) {
        const QString shipped = JoinPath(ProgramDirectory(), QStringLiteral("quillery.default.ini"));
        if (QFileInfo::exists(shipped)) {
            QDir().mkpath(UserConfigDirectory());
            QFile::copy(shipped, user);
            QFile(user).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
            seedDocumentsLocation(user);
        }
    }
    return user;
}

QString ProcessCommandLine(const QString &commandLine)
{
    const qsizetype at = commandLine.toLower().indexOf(QLatin1String("/ini:"));
    if (at < 0)
        return commandLine;
    const QString after = commandLine.mid(at + 5);
    const qsizetype blank = after.indexOf(u' ');
    const QString raw = blank < 0 ? after : after.left(blank);
    const QString value = raw.trimmed();
    if (QFileInfo(value).isFile()) {
        gIniFile = value;
    } else {
        platform::MsgBox(QStringLiteral("Error retrieving ") + value + QStringLiteral(" from ")
                             + UserConfigDirectory() + QStringLiteral(": File not found"),
                         platform::Buttons::Ok, platform::Icon::Exclamation);
    }
    return commandLine.left(at) + commandLine.mid(at + 5 + raw.size());
}

MainGeometry ReadMainGeometry()
{
    MainGeometry g;
    if (ReadSetting(kDisplay, QStringLiteral("Window State")).compare(QLatin1String("Normal"), Qt::CaseInsensitive) != 0)
        return g;
    g.normal = true;
    auto read = [](const char *key) {
        const QString v = ReadSetting(kDisplay, QString::fromLatin1(key));
        bool ok = false;
        const int n = v.toInt(&ok);
        return (v.isEmpty() || !ok) ? -1 : n;
    };
    g.width = read("Main Window Width");
    g.height = read("Main Window Height");
    g.top = read("Main Window Top");
    g.left = read("Main Window Left");
    return g;
}

void WriteMainGeometry(bool normal, const QRect &twips)
{
    if (!normal) {
        WriteSetting(kDisplay, QStringLiteral("Window State"), QStringLiteral("Maximized"));
        return;
    }
    WriteSetting(kDisplay, QStringLiteral("Window State"), QStringLiteral("Normal"));
    WriteSetting(kDisplay, QStringLiteral("Main Window Width"), QString::number(twips.width()));
    WriteSetting(kDisplay, QStringLiteral("Main Window Height"), QString::number(twips.height()));
    WriteSetting(kDisplay, QStringLiteral("Main Window Left"), QString::number(twips.x()));
    WriteSetting(kDisplay, QStringLiteral("Main Window Top"), QString::number(twips.y()));
}

void ReadGlobalEditingFlags()
{
    gTranslateWhileTyping = ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Translate While Typing"));
    gColorOnLeavingLine = ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Color On Leaving Line"));
    gColorHTML = ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Color HTML"));
}

} // namespace qly::core
