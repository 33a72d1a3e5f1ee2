// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>
#include <QVariant>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace nsUI {

//! \name What CellKind holds for a cell of kind e_Item_DSpinBox
//! @{
QWidget* makeDoubleBox(QWidget* pParent, const QModelIndex& index);
bool fillDoubleBox(QWidget* pEditor, const QModelIndex& index);
std::optional<QVariant> takeDouble(const QWidget* pEditor, const QModelIndex& index);
//! @}

} // namespace nsUI
