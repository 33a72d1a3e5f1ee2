// SPDX-License-Identifier: MIT
#include "TrModel.h"

#include "ItemModel_p.h"

namespace nsUI {

TrModel::TrModel(QObject* parent)
    : QAbstractItemModel(parent)
{
}

QVariant TrModel::data(const QModelIndex& index, int role) const
{
    return ItemModel::data(this, index, role);
}

Qt::ItemFlags TrModel::flags(const QModelIndex& index) const
{
    return ItemModel::flags(this, index);
}

bool TrModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    return ItemModel::setData(this, index, value, role);
}

} // namespace nsUI
