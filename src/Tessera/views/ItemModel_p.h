// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>
#include <QVariant>

QT_FORWARD_DECLARE_CLASS(QAbstractItemModel)
QT_FORWARD_DECLARE_CLASS(QColor)

namespace nsUI {

/*!
    What TbModel and TrModel have in common: everything that they derive from a cell's kind and value. The model's own
    data() is asked for both, so a subclass's answers are what counts.
*/
namespace ItemModel {

QVariant data(const QAbstractItemModel* pModel, const QModelIndex& index, int nRole);
Qt::ItemFlags flags(const QAbstractItemModel* pModel, const QModelIndex& index);
bool setData(QAbstractItemModel* pModel, const QModelIndex& index, const QVariant& tValue, int nRole);

//! A value as a colour: as it stands when it is one, else converted; invalid when it does not convert.
QColor toColor(const QVariant& tValue);

} // namespace ItemModel
} // namespace nsUI
