// SPDX-License-Identifier: MIT
#include "samples/CellTable.h"

#include "host/Host.h"

namespace gallery {

CellTable::CellTable(QObject* parent)
    : nsUI::TbModel(parent)
    , m_cells(itemCells())
{
}

int CellTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_cells.size());
}

int CellTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

//! [model]
QVariant CellTable::data(const QModelIndex& index, int role) const
{
    if (index.column() != ValueColumn) {
        return captionData(index, role);
    }
    const QVariant own = cellData(m_cells.at(index.row()), role);
    // TbModel asks for the value and the kind in turn.
    return own.isValid() ? own : TbModel::data(index, role);
}

bool CellTable::setData(const QModelIndex& index, const QVariant& value,
                        int role)
{
    if (role != Qt::EditRole || index.column() != ValueColumn) {
        // A check box that was clicked comes back as its new value.
        return TbModel::setData(index, value, role);
    }
    m_cells[index.row()].value = value;
    Q_EMIT dataChanged(index, index);
    return true;
}
//! [model]

QVariant CellTable::headerData(int section, Qt::Orientation orientation,
                               int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case KindColumn:
        return tr("Kind");
    case ValueColumn:
        return tr("Value");
    default:
        return tr("Changed by");
    }
}

Qt::ItemFlags CellTable::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    if (index.column() != ValueColumn) {
        return Qt::ItemIsEnabled;
    }
    return m_cells.at(index.row()).isEnabled ? TbModel::flags(index)
                                             : Qt::NoItemFlags;
}

void CellTable::retranslate()
{
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QVariant CellTable::captionData(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole) {
        return QVariant();
    }
    const ItemCell& cell = m_cells.at(index.row());
    if (index.column() == ChangeColumn) {
        return text(cell.changed);
    }
    const int kind = cell.roles.value(Qt::UserRole).toInt();
    return QStringLiteral("%1  %2").arg(kind, 2).arg(
        QString::fromLatin1(cell.kind));
}

} // namespace gallery
