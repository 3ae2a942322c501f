#include "websites/ProjectFile.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "websites/Password.h"

#include <QHash>
#include <QSet>

namespace qly::websites {

namespace {

const QString Details = QStringLiteral("Details");
const QString Files = QStringLiteral("Files");

QString problem(const QString &path, const QString &what)
{
    return QStringLiteral("The website project %1 cannot be opened: %2.").arg(path, what);
}

bool looksBinary(const QByteArray &bytes)
{
    for (char c : bytes) {
        const auto u = uchar(c);
        if (u == 0 || (u < 0x20 && u != '\t' && u != '\r' && u != '\n' && u != 0x1A))
            return true;
    }
    return false;
}

} // namespace

QString ReadProjectValue(const QString &path, const QString &section, const QString &key)
{
    if (path.isEmpty())
        return {};
    return core::ReadSetting(section, key, path);
}

void WriteProjectValue(const QString &section, const QString &key, const QString &value, const QString &path)
{
    if (path.isEmpty())
        return;
    core::WriteSetting(section, key, value, path);
}

bool IsWebsiteFile(const QString &path)
{
    return core::FileExists(path) && !ReadProjectValue(path, Details, QStringLiteral("Name")).isEmpty();
}

QString ProjectFileProblem(const QString &path)
{
    QByteArray bytes;
    const core::IoResult read = core::readWholeFile(path, bytes);
    if (!read.ok())
        return problem(path, QStringLiteral("it cannot be read (%1)").arg(read.message));
    if (looksBinary(bytes))
        return problem(path, QStringLiteral("it holds binary data, not settings"));
    QString text = QString::fromUtf8(bytes);
    if (text.startsWith(QChar(0xFEFF)))   // a byte order mark of an editor
        text.remove(0, 1);
    const QStringList lines = text.split(QLatin1Char('\n'));
    QString section;
    QSet<QString> keys;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString line = lines.at(i);
        if (line.endsWith(u'\r'))
            line.chop(1);
        const QString t = line.trimmed();
        if (t.isEmpty() || t.startsWith(u';') || t == QLatin1String("\x1a"))
            continue;
        if (t.startsWith(u'[')) {
            if (!t.endsWith(u']'))
                return problem(path, QStringLiteral("line %1 is no section heading; the file may be cut short").arg(i + 1));
            section = t.mid(1, t.size() - 2).trimmed().toLower();
            continue;
        }
        const qsizetype eq = t.indexOf(u'=');
        if (eq <= 0)
            return problem(path, QStringLiteral("line %1 is no setting; the file may be cut short").arg(i + 1));
        const QString key = section + u'\n' + t.left(eq).trimmed().toLower();
        if (keys.contains(key))
            return problem(path, QStringLiteral("the key \"%1\" of [%2] is given twice")
                                     .arg(t.left(eq).trimmed(), section));
        keys.insert(key);
    }
    if (ReadProjectValue(path, Details, QStringLiteral("Name")).trimmed().isEmpty())
        return problem(path, QStringLiteral("it has no website name ([Details] Name)"));
    if (!IsWellFormedScrambled(ReadProjectValue(path, Details, QStringLiteral("Password"))))
        return problem(path, QStringLiteral("its stored password is damaged"));
    return {};
}

QStringList ReadProjectFiles(const QString &path)
{
    // The section is read once: a site may list hundreds of files.
    QHash<QString, QString> keys;
    for (const QString &line : core::ReadSection(Files, path)) {
        const qsizetype eq = line.indexOf(u'=');
        const QString key = line.left(eq).trimmed().toLower();
        if (eq > 0 && !keys.contains(key))
            keys.insert(key, line.mid(eq + 1).trimmed().left(249));
    }
    QStringList files;
    for (int i = 0;; ++i) {
        QString value = keys.value(QString::number(i));
        if (value.isEmpty() && i == 0) {
            i = 1;
            value = keys.value(QStringLiteral("1"));
        }
        if (value.isEmpty())
            break;
        files << value;
    }
    return files;
}

void WriteProjectFiles(const QString &path, const QStringList &files)
{
    const QString zero = QStringLiteral("0");
    // Only key 0 is removed; the loop ends once it reads empty.
    for (int guard = 0; guard < 1000 && !ReadProjectValue(path, Files, zero).isEmpty(); ++guard)
        core::DeleteSetting(Files, zero, path);
    for (int i = 0; i <= MaxProjectFileIndex && i < files.size(); ++i) {
        if (!files.at(i).isEmpty())
            WriteProjectValue(Files, QString::number(i), files.at(i), path);
    }
}

} // namespace qly::websites
