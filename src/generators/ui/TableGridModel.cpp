#include "generators/ui/TableGridModel.h"

#include <QBrush>
#include <QFont>
#include <QPalette>

namespace qly::generators::ui {

TableGridModel::TableGridModel(TableModel &table, QObject *parent) : QAbstractTableModel(parent), m_table(table) {}

void TableGridModel::reload()
{
    beginResetModel();
    endResetModel();
}

int TableGridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table.rowCount();
}

int TableGridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table.colCount();
}

QVariant TableGridModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return m_table.cell(index.row(), index.column());
    if (role == Qt::BackgroundRole && (index.row() < m_table.fixedRows() || index.column() < m_table.fixedCols()))
        return QPalette().brush(QPalette::Button);
    if (role == Qt::FontRole && (index.row() < m_table.fixedRows() || index.column() < m_table.fixedCols())) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return {};
}

bool TableGridModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    m_table.setCell(index.row(), index.column(), value.toString());
    emit dataChanged(index, index);
    emit cellEdited();
    return true;
}

Qt::ItemFlags TableGridModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

QVariant TableGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    Q_UNUSED(orientation)
    return QString::number(section + 1);
}

} // namespace qly::generators::ui
