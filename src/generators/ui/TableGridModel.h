#pragma once

#include "generators/TableModel.h"

#include <QAbstractTableModel>

namespace qly::generators::ui {

// The table model as a grid view sees it: cells to show and edit, the
// heading bands shaded. Changes made on the model itself are shown after
// reload().
class TableGridModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit TableGridModel(TableModel &table, QObject *parent = nullptr);

    TableModel &table() { return m_table; }
    void reload();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    // A cell was edited through the view.
    void cellEdited();

private:
    TableModel &m_table;
};

} // namespace qly::generators::ui
