#pragma once

#include "markup/TagCatalogue.h"

#include <QDialog>

class QTableWidget;

namespace qly::markup::ui {

// The editor of the tag catalogue: one row an entry. OK writes the catalogue
// and the user's own file, each replaced whole; a failed write is told and
// the dialog stays.
class frmEditTags : public QDialog
{
    Q_OBJECT
public:
    frmEditTags(const TagCatalogue &catalogue, const QString &file, const QString &custom,
                QWidget *parent = nullptr);

    QTableWidget *table() const { return m_table; }
    // The entries as the rows now stand.
    QList<TagEntry> entries() const;

    void accept() override;

private:
    void addRow(const TagEntry &entry);

    QTableWidget *m_table = nullptr;
    QString m_file;
    QString m_custom;
};

} // namespace qly::markup::ui
