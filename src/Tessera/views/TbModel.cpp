// SPDX-License-Identifier: MIT
#include "TbModel.h"

#include "ItemModel_p.h"

namespace nsUI {

TbModel::TbModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

QVariant TbModel::data(const QModelIndex& index, int role) const
{
    return ItemModel::data(this, index, role);
}

Qt::ItemFlags TbModel::flags(const QModelIndex& index) const
{
    return ItemModel::flags(this, index);
}

bool TbModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    return ItemModel::setData(this, index, value, role);
}

} // namespace nsUI
