// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QAbstractTableModel>
#include <QVariant>

namespace nsUI {

/*!
    A table model whose cells know their kind (e_ItemType): display text, tool tip, background, check state and flags
    follow from the kind and the value.

    A subclass tells rowCount() and columnCount(), answers data() for Qt::EditRole and for the roles of e_ItemRole that
    its cells need, and takes setData() for Qt::EditRole, sending dataChanged(). It passes every other role on to this
    class, which asks the model's own data() in turn.

    | kind                    | text                               | flags                                  |
    |-------------------------|------------------------------------|----------------------------------------|
    | e_Item_CheckBox         | none, but a check state            | selectable, enabled, checkable by user |
    | e_Item_BoolText         | "True" or "False", translated      | selectable, enabled                    |
    | e_Item_ComboBox         | the row's text, else "Undefined"   | selectable, enabled, editable          |
    | e_Item_DataComboBox     | the data's text, else "Undefined"  | selectable, enabled, editable          |
    | e_Item_Color            | none, but the colour as background | selectable, enabled                    |
    | e_Item_Pen              | colour;width;style                 | selectable, enabled                    |
    | e_Item_ByteArray        | 0x and the bytes; bits as tool tip | selectable, enabled                    |
    | e_Item_BoolPicture,     | the value                          | selectable, enabled                    |
    | e_Item_Font             |                                    |                                        |
    | all others              | the value                          | selectable, enabled, editable          |

    The tool tip is the text unless told otherwise.
*/
class TESSERA_EXPORT TbModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TbModel(QObject* parent = nullptr);

    //! What follows from the cell's kind; invalid for Qt::EditRole and all other roles.
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    //! Turns a check box's new state into a bool under Qt::EditRole; false, and no change, in every other case.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
};

} // namespace nsUI
