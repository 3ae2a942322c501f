#pragma once

#include <QString>
#include <QStringList>

namespace qly::documents {

class Document;

// The New Document dialog's model: the kind of start, the rows of its two
// lists, and what OK makes of them.
class NewDocModel
{
public:
    enum Kind { Normal = 1, Advanced = 2, UserDefined = 3, NetCaster = 4, ActiveChannel = 5 };

    NewDocModel();

    // The option buttons' captions, by kind.
    static QString kindCaption(int kind);
    // The rows of AdvSel and the template file of each, in the same order.
    static QStringList advancedRows();
    static QStringList advancedFiles();

    int kind = Normal;
    int advancedRow = 0;       // row of AdvSel
    QString userTemplate;      // text of cmbUserSel

    // The files of the custom templates directory, sorted, for cmbUserSel.
    QStringList userTemplates() const { return m_userTemplates; }
    void reloadUserTemplates();
    // Which list belongs to the kind: only that one is enabled.
    bool advancedListEnabled() const { return kind == Advanced; }
    bool userListEnabled() const { return kind == UserDefined; }

    // OK: makes the document of the chosen kind. Null when none was made
    // (a missing file is told to the user, except in the Advanced list,
    // where it is passed over silently).
    Document *create() const;

private:
    Document *createFromTemplate(const QString &fileName, const QString &missingText) const;
    Document *createChannelPage(const QString &fileName, const QString &missingText) const;

    QStringList m_userTemplates;
};

} // namespace qly::documents
