#include "core/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace qly::core {

namespace {

QString g_programDirectory;

// Present in a program data directory and nowhere else.
const char *const kDataMarker = "quillery.default.ini";

qsizetype lastSeparator(const QString &path)
{
    return std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
}

void copyTree(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    QDirIterator it(from, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString src = it.next();
        const QString dst = to + u'/' + QDir(from).relativeFilePath(src);
        if (it.fileInfo().isDir())
            QDir().mkpath(dst);
        else if (!QFileInfo::exists(dst))
            QFile::copy(src, dst);
    }
}

} // namespace

QString ProgramDirectory()
{
    if (g_programDirectory.isEmpty())
        g_programDirectory = locateProgramDirectory();
    return g_programDirectory;
}

void setProgramDirectory(const QString &dir)
{
    g_programDirectory = dir;
}

QString locateProgramDirectory()
{
    const QString exeDir = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(JoinPath(exeDir, QString::fromLatin1(kDataMarker))))
        return exeDir;
    const QString installed = QDir(exeDir).absoluteFilePath(QStringLiteral("../share/quillery"));
    if (QFileInfo::exists(JoinPath(installed, QString::fromLatin1(kDataMarker)))) {
        const QString user = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                             + QStringLiteral("/quillery");
        copyTree(installed, user);
        return user;
    }
    return exeDir;
}

QString UserConfigDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
           + QStringLiteral("/quillery");
}

QString JoinPath(const QString &dir, const QString &name)
{
    if (dir.isEmpty())
        return name;
    if (dir.endsWith(u'/') || dir.endsWith(u'\\'))
        return dir + name;
    return dir + u'/' + name;
}

bool FileExists(const QString &path, bool answer)
{
    if (path.isEmpty() || path.contains(u'*'))
        return false;
    if (path.size() >= 2 && path.at(1) == u':' && (path.at(0).toUpper() == u'A' || path.at(0).toUpper() == u'B'))
        return answer;
    const QFileInfo info(path);
    return info.exists() && !info.isDir();
}

bool DirExists(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

QString GetFileExt(const QString &path)
{
    const QString name = FileNameOf(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString StripExtension(const QString &path)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > lastSeparator(path) ? path.left(dot) : path;
}

QString FileNameOf(const QString &path)
{
    return path.mid(lastSeparator(path) + 1);
}

QString DirectoryOf(const QString &path)
{
    const qsizetype sep = lastSeparator(path);
    return sep < 0 ? QString() : path.left(sep);
}

int SplitList(const QString &text, const QString &delimiter, QStringList &out)
{
    out = text.split(delimiter);
    return int(out.size());
}

QString ProgramFileFilter()
{
#ifdef Q_OS_WIN
    return QStringLiteral("Program Files  (*.exe)|*.exe|All Files (*.*)|*.*");
#else
    return QStringLiteral("All Files (*.*)|*.*");
#endif
}

} // namespace qly::core
