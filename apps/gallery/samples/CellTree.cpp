// SPDX-License-Identifier: MIT
#include "samples/CellTree.h"

#include "host/Host.h"

#include <QCoreApplication>

namespace gallery {

namespace {

/// The internal number of a group's index; a cell's is the row of its group.
constexpr quintptr kGroup = ~quintptr(0);

} // namespace

CellTree::CellTree(QObject* parent)
    : nsUI::TrModel(parent)
    , m_groups(groups())
{
}

/// The order of itemCells() is that of the kinds.
QVector<CellTree::Group> CellTree::groups()
{
    const QVector<ItemCell> cells = itemCells();
    return {
        {QT_TRANSLATE_NOOP("gallery", "Booleans"), cells.mid(1, 3)},
        {QT_TRANSLATE_NOOP("gallery", "Choices"), cells.mid(4, 2)},
        {QT_TRANSLATE_NOOP("gallery", "Numbers and texts"),
         cells.mid(6, 3) + cells.mid(0, 1)},
        {QT_TRANSLATE_NOOP("gallery", "With a dialog"), cells.mid(9, 4)},
    };
}

QModelIndex CellTree::index(int row, int column,
                            const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return QModelIndex();
    }
    return createIndex(row, column,
                       parent.isValid() ? quintptr(parent.row()) : kGroup);
}

QModelIndex CellTree::parent(const QModelIndex& index) const
{
    return isCell(index) ? createIndex(int(index.internalId()), 0, kGroup)
                         : QModelIndex();
}

int CellTree::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return static_cast<int>(m_groups.size());
    }
    if (isCell(parent) || parent.column() > 0) {
        return 0;
    }
    return static_cast<int>(m_groups.at(parent.row()).cells.size());
}

int CellTree::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

//! [tree]
QVariant CellTree::data(const QModelIndex& index, int role) const
{
    if (!isCell(index) || index.column() != ValueColumn) {
        return captionData(index, role);
    }
    const QVariant own = cellData(cellAt(index), role);
    return own.isValid() ? own : TrModel::data(index, role);
}
//! [tree]

bool CellTree::setData(const QModelIndex& index, const QVariant& value,
                       int role)
{
    if (!isCell(index) || index.column() != ValueColumn ||
        role != Qt::EditRole) {
        return TrModel::setData(index, value, role);
    }
    m_groups[int(index.internalId())].cells[index.row()].value = value;
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant CellTree::headerData(int section, Qt::Orientation orientation,
                              int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return section == KindColumn ? tr("Kind") : tr("Value");
}

Qt::ItemFlags CellTree::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    return isCell(index) && index.column() == ValueColumn
               ? TrModel::flags(index)
               : Qt::ItemIsEnabled;
}

void CellTree::retranslate()
{
    for (int i = 0; i < m_groups.size(); ++i) {
        const QModelIndex group = index(i, 0);
        Q_EMIT dataChanged(index(0, 0, group), index(rowCount(group) - 1,
                                                     ColumnCount - 1, group));
    }
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

bool CellTree::isCell(const QModelIndex& index) const
{
    return index.isValid() && index.internalId() != kGroup;
}

const ItemCell& CellTree::cellAt(const QModelIndex& index) const
{
    return m_groups.at(int(index.internalId())).cells.at(index.row());
}

QVariant CellTree::captionData(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || index.column() != KindColumn) {
        return QVariant();
    }
    return isCell(index) ? QString::fromLatin1(cellAt(index).kind)
                         : text(m_groups.at(index.row()).title);
}

} // namespace gallery
