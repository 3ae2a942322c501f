#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qly::core {

// An INI-style profile file: "[section]" lines and "key=value" lines.
// Sections and keys are found without regard to case; the first of two
// equal keys wins. Writing keeps every other line as it stands (comments,
// order, line ends), puts a new key at the end of its section and a new
// section at the end of the file, and replaces the file atomically.
// The file is made on the first write.
class ProfileFile
{
public:
    explicit ProfileFile(const QString &path);

    bool exists() const;

    // The value, or a null string when the key is absent.
    QString value(const QString &section, const QString &key) const;
    // "key=value" lines of a section, in file order.
    QStringList section(const QString &section) const;
    QStringList sectionNames() const;

    // A null or empty value removes the key. False when the file could not be written.
    bool setValue(const QString &section, const QString &key, const QString &value);
    bool removeKey(const QString &section, const QString &key);
    // Replaces the keys of a section; no entries removes the section.
    bool setSection(const QString &section, const QStringList &entries);

private:
    struct Line {
        QString text;      // without its line end
        QString ending;    // "\r\n", "\n", "\r" or empty for a last line without one
    };

    bool load(std::vector<Line> &lines, QString &newline) const;
    bool save(const std::vector<Line> &lines) const;
    static void appendSection(std::vector<Line> &lines, const QString &nl, const QString &section,
                              const std::vector<Line> &body);

    QString m_path;
};

} // namespace qly::core
