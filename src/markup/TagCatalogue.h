#pragma once

#include "core/FileIo.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace qly::markup {

// One entry of the tag catalogue: a tag, or a word of a script language.
struct TagEntry {
    QString name;
    QString group;          // "HTML: Tables", "Cold Fusion", "Script Methods", ...
    bool hasEndTag = false;
    QStringList filters;    // the specifications it belongs to
    QString startText;
    QString endText;
    QString description;

    // True for a word of a script language rather than a tag.
    bool isScriptWord() const { return group.startsWith(QLatin1String("Script ")); }
    // The three tab-separated fields that InsertTagItem takes.
    QString itemText() const;
    bool operator==(const TagEntry &) const = default;
};

// The filter every entry of the user's own file belongs to.
inline QString customFilterName() { return QStringLiteral("Custom Keywords"); }

// The catalogue of the tag tree: the program's "tags.inf" and the user's
// "custom tags.inf" beside it. Entries of the user's file belong to
// "Custom Keywords" whatever they say.
class TagCatalogue
{
public:
    static QString catalogueFile();
    static QString customFile();

    // Reads both files; a missing file gives no entries and no error.
    core::IoResult load(const QString &file = catalogueFile(), const QString &custom = customFile());
    // Writes the entries back: those of "Custom Keywords" alone to the
    // user's file, the rest to the catalogue. Each file is replaced atomically.
    core::IoResult save(const QString &file = catalogueFile(), const QString &custom = customFile()) const;

    const QList<TagEntry> &entries() const { return m_entries; }
    void setEntries(QList<TagEntry> entries) { m_entries = std::move(entries); }

    // The entries that belong to at least one of `filters`, in file order.
    QList<TagEntry> visibleEntries(const QSet<QString> &filters) const;

    static QList<TagEntry> parse(const QByteArray &bytes, bool custom);
    static QByteArray format(const QList<TagEntry> &entries);

private:
    QList<TagEntry> m_entries;
};

} // namespace qly::markup
