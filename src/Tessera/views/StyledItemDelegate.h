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

    An e_Item_DSpinBox cell keeps its value to the last bit while its editor is not touched, whatever of it the editor
    can show. Touched is what was typed, pasted or stepped, even back to what was shown: that is written as it stands in
    the editor. With e_DSpx_WriteAtOnce only what the user does is written at once. A report of the model that tells what
    this editor has just written leaves the editor alone; every other one fills it anew, and it counts as untouched.
    Values that are no doubles become doubles.

    What the other editors cannot show they cannot give back, opened and committed without a change: an integer outside
    its box's range is brought into it, and a combo box whose value is not among its choices writes what it shows: row
    -1, or its first data. Give such a cell a range or choices that hold its value.

    An e_Item_DataComboBox cell whose texts and data differ in number gets the default editor.

    An open editor goes with the cell that it was made for. When that cell becomes another one, by its kind, by the
    integer type of an e_Item_ISpinBox or because its row has gone, its editor is closed (closeEditor()) and nothing is
    written, as soon as a report of the model or a commit shows it. A persistent editor stays open, but is neither
    filled nor read until the cell is what it was. Editors that are not made here are never closed.

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
