// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QVariant>
#include <QVector>

namespace gallery {

/// One cell: its value, and what it answers under the roles of e_ItemRole.
struct ItemCell
{
    const char* kind;    ///< the enumerator's name
    const char* changed; ///< how it is changed; to be translated by text()
    QVariant value;
    QHash<int, QVariant> roles;
    bool isEnabled = true;
};

/// A cell of every kind from 0 to 12, and one that is disabled.
QVector<ItemCell> itemCells();

/// What @p cell answers under @p role; texts in the language that is in force. Invalid when the model is to answer.
QVariant cellData(const ItemCell& cell, int role);

} // namespace gallery
