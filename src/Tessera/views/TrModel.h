// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QAbstractItemModel>
#include <QVariant>

namespace nsUI {

/*!
    The tree model to TbModel's table: the same kinds of cells, the same texts, colours, check states and flags.

    A subclass tells index(), parent(), rowCount() and columnCount(), and has TbModel's duties for data() and
    setData().
*/
class TESSERA_EXPORT TrModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit TrModel(QObject* parent = nullptr);

    //! What follows from the cell's kind; invalid for Qt::EditRole and all other roles.
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    //! Turns a check box's new state into a bool under Qt::EditRole; false, and no change, in every other case.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
};

} // namespace nsUI
