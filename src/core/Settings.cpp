#include "core/Settings.h"

#include "core/Globals.h"
#include "core/Paths.h"
#include "core/ProfileFile.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFileInfo>

namespace qly::core {

namespace {

constexpr int kValueLimit = 249;

QString fileOrDefault(const QString &file)
{
    return file.isEmpty() ? gIniFile : file;
}

} // namespace

QString ReadSetting(const QString &section, const QString &key, const QString &file)
{
    const QString path = fileOrDefault(file);
    if (path.isEmpty())
        return QStringLiteral("");
    QString v = ProfileFile(path).value(section, key);
    if (v.isNull())
        return QStringLiteral("");
    if (v.size() > kValueLimit)
        v.truncate(kValueLimit);
    return v;
}

bool ReadSettingFlag(const QString &section, const QString &key)
{
    return ReadSetting(section, key).toLower() == QLatin1String("yes");
}

void WriteSetting(const QString &section, const QString &key, const QString &value, const QString &file)
{
    const QString path = fileOrDefault(file);
    if (!path.isEmpty())
        ProfileFile(path).setValue(section, key, value);
}

void DeleteSetting(const QString &section, const QString &key, const QString &file)
{
    const QString path = fileOrDefault(file);
    if (!path.isEmpty())
        ProfileFile(path).removeKey(section, key);
}

QStringList ReadSection(const QString &section, const QString &file)
{
    const QString path = fileOrDefault(file);
    return path.isEmpty() ? QStringList() : ProfileFile(path).section(section);
}

bool WriteSection(const QString &section, const QString &text, const QString &file)
{
    const QString path = fileOrDefault(file);
    QString normal = text;
    normal.replace(QChar(0), u'\n');
    normal.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QStringList entries;
    for (const QString &e : normal.split(u'\n')) {
        if (!e.isEmpty())
            entries << e;
    }
    if (!path.isEmpty() && ProfileFile(path).setSection(section, entries))
        return true;
    platform::MsgBox(QStringLiteral("An error occurred while writing to ") + path, platform::Buttons::Ok,
                     platform::Icon::Critical, QStringLiteral("Internal Error Occurred !"));
    return false;
}

QString YesNo(bool on)
{
    return on ? QStringLiteral("Yes") : QStringLiteral("No");
}

namespace {
std::function<QString()> &activeFolder()
{
    static std::function<QString()> folder;
    return folder;
}
} // namespace

QString GetFileLocation(const QString &key, bool useCurrent)
{
    QString dir = ReadSetting(QStringLiteral("File Locations"), key);
    if (useCurrent && ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Always Use Current Directory")))
        dir = QDir::currentPath();
    if (DirExists(dir))
        return dir;
    const QString docDir = activeFolder() ? activeFolder()() : QString();
    if (!docDir.isEmpty() && DirExists(docDir))
        return docDir;
    return ProgramDirectory();
}

void setActiveDocumentFolder(std::function<QString()> folder)
{
    activeFolder() = std::move(folder);
}

} // namespace qly::core
