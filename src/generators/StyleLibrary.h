#pragma once

#include "generators/StyleFile.h"
#include "generators/StyleRecord.h"

#include <QString>
#include <QStringList>

namespace qly::generators {

// The library of named styles: one .qns file a style in the "Styles" folder
// of the program's data. The lists hold the names, tags and classes found by
// the last scan, in name order.
class StyleLibrary
{
public:
    explicit StyleLibrary(const QString &folder = {});

    // The process's library, in the program directory's "Styles" folder.
    static StyleLibrary &instance();

    QString folder() const { return m_folder; }
    void setFolder(const QString &folder);
    QString fileOf(const QString &name) const;

    // Scans the folder (made when missing). Files that cannot be read are
    // listed by name with no tag or class, and named in damaged().
    void LoadStyleList();
    const QStringList &StyleNames() const { return m_names; }
    const QStringList &StyleTags() const { return m_tags; }
    const QStringList &StyleClasses() const { return m_classes; }
    const QStringList &damaged() const { return m_damaged; }
    int StyleCount() const { return int(m_names.size()); }
    int indexOf(const QString &name) const;   // -1 when not listed

    // The style `name`; a reset record, and Missing or Damaged, when its file
    // is not there or cannot be read.
    StyleFileStatus ReadStyleFile(const QString &name, StyleRecord &record) const;
    // Writes the style's file atomically and puts it in the lists; false,
    // with `error` set, when the file could not be written.
    bool WriteStyleFile(const StyleRecord &record, QString *error = nullptr);
    // Removes a style from the lists and deletes its file; the remaining
    // names go to [Editing] "Styles".
    void DeleteStyle(const QString &name);
    // Renames a style and its file; the names go to [Styles] "Names".
    bool RenameStyle(const QString &oldName, const QString &newName);

private:
    void list(const QString &name, const StyleRecord &record);

    QString m_folder;
    QStringList m_names;
    QStringList m_tags;
    QStringList m_classes;
    QStringList m_damaged;
};

// A library style made current for the style routines: "[none]" or a name
// without a readable file gives a reset record.
StyleRecord StyleFromList(const QString &name, const StyleLibrary &library = StyleLibrary::instance());

} // namespace qly::generators
