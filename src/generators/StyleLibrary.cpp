#include "generators/StyleLibrary.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"

#include <QDir>
#include <QFile>

namespace qly::generators {

StyleLibrary::StyleLibrary(const QString &folder)
    : m_folder(folder)
{
}

StyleLibrary &StyleLibrary::instance()
{
    static StyleLibrary library;
    const QString folder = core::JoinPath(core::ProgramDirectory(), QStringLiteral("Styles"));
    if (library.m_folder != folder)
        library.setFolder(folder);
    return library;
}

void StyleLibrary::setFolder(const QString &folder)
{
    m_folder = folder;
    m_names.clear();
    m_tags.clear();
    m_classes.clear();
    m_damaged.clear();
}

QString StyleLibrary::fileOf(const QString &name) const
{
    return core::JoinPath(m_folder, name + QStringLiteral(".qns"));
}

int StyleLibrary::indexOf(const QString &name) const
{
    for (int i = 0; i < m_names.size(); ++i) {
        if (m_names.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

void StyleLibrary::LoadStyleList()
{
    m_names.clear();
    m_tags.clear();
    m_classes.clear();
    m_damaged.clear();
    if (m_folder.isEmpty())
        return;
    QDir dir(m_folder);
    if (!dir.exists())
        QDir().mkpath(m_folder);
    const QStringList files =
        dir.entryList({QStringLiteral("*.qns")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString &file : files) {
        const QString name = file.left(file.size() - 4);
        StyleRecord record;
        if (ReadStyleFile(name, record) == StyleFileStatus::Damaged) {
            m_damaged << name;
            record.HTMLTag = record.ClassName = QString();
        }
        m_names << name;
        m_tags << record.HTMLTag;
        m_classes << record.ClassName;
    }
}

StyleFileStatus StyleLibrary::ReadStyleFile(const QString &name, StyleRecord &record) const
{
    record = StyleRecord();
    const QString path = fileOf(name);
    if (name.isEmpty() || !QFile::exists(path))
        return StyleFileStatus::Missing;
    QByteArray bytes;
    if (!core::readWholeFile(path, bytes).ok())
        return StyleFileStatus::Missing;
    return decodeStyleFile(bytes, record);
}

void StyleLibrary::list(const QString &name, const StyleRecord &record)
{
    const int at = indexOf(name);
    if (at >= 0) {
        m_names[at] = name;
        m_tags[at] = record.HTMLTag;
        m_classes[at] = record.ClassName;
        m_damaged.removeAll(name);
        return;
    }
    int pos = 0;
    while (pos < m_names.size() && m_names.at(pos).compare(name, Qt::CaseInsensitive) < 0)
        ++pos;
    m_names.insert(pos, name);
    m_tags.insert(pos, record.HTMLTag);
    m_classes.insert(pos, record.ClassName);
}

bool StyleLibrary::WriteStyleFile(const StyleRecord &record, QString *error)
{
    QDir().mkpath(m_folder);
    const core::IoResult result = core::writeFileAtomically(fileOf(record.StyleName), encodeStyleFile(record));
    if (!result.ok()) {
        if (error)
            *error = result.message;
        return false;
    }
    list(record.StyleName, record);
    return true;
}

void StyleLibrary::DeleteStyle(const QString &name)
{
    const int at = indexOf(name);
    if (at >= 0) {
        m_names.removeAt(at);
        m_tags.removeAt(at);
        m_classes.removeAt(at);
    }
    m_damaged.removeAll(name);
    if (QFile::exists(fileOf(name)))
        QFile::remove(fileOf(name));
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Styles"), m_names.join(QLatin1Char(',')));
}

bool StyleLibrary::RenameStyle(const QString &oldName, const QString &newName)
{
    StyleRecord record;
    if (ReadStyleFile(oldName, record) != StyleFileStatus::Ok || newName.isEmpty())
        return false;
    record.StyleName = newName;
    if (!WriteStyleFile(record))
        return false;
    if (oldName.compare(newName, Qt::CaseInsensitive) != 0) {
        const int at = indexOf(oldName);
        if (at >= 0) {
            m_names.removeAt(at);
            m_tags.removeAt(at);
            m_classes.removeAt(at);
        }
    }
    if (oldName != newName)
        QFile::remove(fileOf(oldName));
    core::WriteSetting(QStringLiteral("Styles"), QStringLiteral("Names"), m_names.join(QLatin1Char(',')));
    return true;
}

StyleRecord StyleFromList(const QString &name, const StyleLibrary &library)
{
    StyleRecord record;
    if (name != QLatin1String("[none]"))
        library.ReadStyleFile(name, record);
    return record;
}

} // namespace qly::generators
