#pragma once

#include "tagdialogs/TagText.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>

namespace qly::tagdialogs {

// The common face of the small tag dialogs: their fields under names, read
// from the current document's selection when the dialog opens, and the text
// their OK writes into the document. A dialog only shows the fields.
class TagDialogModel
{
public:
    virtual ~TagDialogModel() = default;

    // The dialog's name ("frmImage", ...).
    virtual QString name() const = 0;
    // The fields in the order the dialog shows them.
    virtual QStringList fieldNames() const = 0;

    // Sets the defaults, then reads the selection of the current document.
    virtual void open();
    // The same with a given selection (no document needed).
    void open(const QString &selection);

    // OK: checks the fields (telling the user what is wrong through the
    // prompts), writes into the current document and stores the histories.
    // False when a check failed: the dialog stays.
    virtual bool accept() = 0;

    QString value(const QString &field) const { return m_values.value(field); }
    bool flag(const QString &field) const;
    void setValue(const QString &field, const QString &value) { m_values.insert(field, value); }
    void setFlag(const QString &field, bool on);

    QString selection() const { return m_selection; }
    // What could not be read from the selection, one sentence each.
    QStringList notes() const { return m_notes; }
    // What OK will write differently from what was typed (an address with
    // blanks, a file that is not there), for the dialog to show as one types.
    virtual QStringList warnings() const { return {}; }

protected:
    virtual void setDefaults() {}
    virtual void read(const QString &selection) = 0;
    void note(const QString &text);
    // The first tag of the selection named one of `names`, line ends read as
    // blanks. Without one, `missing` is noted and the reading has no name;
    // with one, what could not be read of it is noted and the selection
    // counts as read back.
    TagReading readOwnTag(const QString &selection, const QStringList &names, const QString &missing);

    // The selection replaced by `start` and `end` when it was read back as
    // this dialog's markup; otherwise `start`, the selection and `end`, so
    // that selected text is never lost.
    void insertAroundSelection(const QString &start, const QString &end);
    bool m_readBack = false;    // the selection was this dialog's own markup

    QMap<QString, QString> m_values;
    QStringList m_notes;
    QString m_selection;
};

// A model by dialog name; null for an unknown name.
std::unique_ptr<TagDialogModel> makeTagDialogModel(const QString &name);

} // namespace qly::tagdialogs
