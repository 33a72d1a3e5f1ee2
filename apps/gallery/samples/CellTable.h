// SPDX-License-Identifier: MIT
#pragma once

#include "samples/ItemCells.h"

#include <Tessera/views/TbModel.h>

namespace gallery {

/// A row for each cell: its kind, the cell itself, and how it is changed.
class CellTable : public nsUI::TbModel
{
    Q_OBJECT

public:
    enum Column { KindColumn, ValueColumn, ChangeColumn, ColumnCount };

    explicit CellTable(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value,
                 int role) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Tells the views that all texts have changed.
    void retranslate();

private:
    QVariant captionData(const QModelIndex& index, int role) const;

    QVector<ItemCell> m_cells;
};

} // namespace gallery
