// SPDX-License-Identifier: MIT
#pragma once

#include "samples/ItemCells.h"

#include <Tessera/views/TrModel.h>

namespace gallery {

/// The cells in groups, each with its kind beside it.
class CellTree : public nsUI::TrModel
{
    Q_OBJECT

public:
    enum Column { KindColumn, ValueColumn, ColumnCount };

    explicit CellTree(QObject* parent = nullptr);

    QModelIndex
    index(int row, int column,
          const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
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
    struct Group
    {
        const char* title;
        QVector<ItemCell> cells;
    };

    static QVector<Group> groups();
    bool isCell(const QModelIndex& index) const;
    const ItemCell& cellAt(const QModelIndex& index) const;
    QVariant captionData(const QModelIndex& index, int role) const;

    QVector<Group> m_groups;
};

} // namespace gallery
