// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QStyledItemDelegate>

namespace nsUI {

/*!
    Gives every cell the editor that its kind asks for (e_ItemType), set up by the cell itself through e_ItemRole.

    | kind                | editor                                          | what is written back                    |
    |---------------------|-------------------------------------------------|-----------------------------------------|
    | e_Item_ComboBox     | QComboBox, its list opened at once              | the row, an int                         |
    | e_Item_DataComboBox | CDataComboBox, its list opened at once          | the data of the chosen text             |
    | e_Item_ISpinBox     | the box that e_Role_ISpxType names              | its value, in exactly its type          |
    | e_Item_DSpinBox     | CDSpinBox                                       | its value, a double                     |
    | e_Item_LineEdit     | QLineEdit, restricted to e_Role_Pattern         | its text                                |
    | all others          | what QStyledItemDelegate makes                  | as QStyledItemDelegate writes it        |

    Values are read and written under Qt::EditRole. An e_Item_BoolPicture cell is painted as its picture and nothing
    else, no selection or focus either; every other kind is painted as by QStyledItemDelegate.

    What an editor cannot show it cannot give back: opened and committed without a change, an e_Item_DSpinBox rounds to
    its decimals, the spin boxes bring a value outside their range into it, and a combo box whose value is not among
    its choices writes the choice that it shows. Give such a cell a range, decimals or choices that hold its value.

    An e_Item_DataComboBox cell whose texts and data differ in number gets the default editor.

    The delegate has no state of its own; views do not install it, the host does (setItemDelegate()).
*/
class TESSERA_EXPORT StyledItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit StyledItemDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

} // namespace nsUI
