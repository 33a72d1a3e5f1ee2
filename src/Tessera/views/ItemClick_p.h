// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>

QT_FORWARD_DECLARE_CLASS(QAbstractItemModel)

namespace nsUI {

//! What a click on a cell does in TbView and TrView.
void actOnClick(QAbstractItemModel* pModel, const QModelIndex& index);

//! True when that is something.
bool actsOnClick(const QModelIndex& index);

} // namespace nsUI
