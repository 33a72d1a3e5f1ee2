// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

namespace nsUI {

/*!
    What a cell is, answered by the model as an int under e_Role_ItemType. The numbers are fixed.

    | kinds                | changed by                                       |
    |----------------------|--------------------------------------------------|
    | 0, 4 to 8            | an editor that StyledItemDelegate makes          |
    | 1                    | the view's own check box                         |
    | 2, 3, 9 to 12        | a click or a key, which TbView and TrView act on |

    TbModel and TrModel derive what is shown from the value of every kind. An invalid index and every code that is not
    listed here count as e_Item_Plain.
*/
enum e_ItemType : int {
    e_Item_Plain = 0,        //!< the value as it is; the view's default editor
    e_Item_CheckBox = 1,     //!< bool: a check box
    e_Item_BoolText = 2,     //!< bool: "True" or "False", toggled by a click
    e_Item_BoolPicture = 3,  //!< bool: one of two pictures, toggled by a click
    e_Item_ComboBox = 4,     //!< int: a row of a list of texts
    e_Item_DataComboBox = 5, //!< any: one of a list of texts with data
    e_Item_ISpinBox = 6,     //!< an integer of exact width
    e_Item_DSpinBox = 7,     //!< double
    e_Item_LineEdit = 8,     //!< QString, restricted by a pattern
    e_Item_Color = 9,        //!< QColor: the colour dialog opens on a click
    e_Item_Font = 10,        //!< QFont: the font dialog opens on a click
    e_Item_Pen = 11,         //!< QPen: the pen dialog opens on a click
    e_Item_ByteArray = 12    //!< QByteArray: the bit dialog opens on a click
};

/*!
    What a model answers about a cell besides its value, which is always under Qt::EditRole. The numbers are fixed.

    "Delegate" is StyledItemDelegate, "model" TbModel and TrModel, "view" TbView and TrView. A role without data leaves
    the editor's own default in force.
*/
enum e_ItemRole : int {
    e_Role_ItemType = Qt::UserRole,             //!< 256, int (e_ItemType); read by all three
    e_Role_BoolMark = Qt::UserRole + 1,         //!< 257, bool; answered by the grid of the bit dialog, read by nobody
    e_Role_Pictures = Qt::UserRole + 2,         //!< 258, QStringList: SVG paths for true and false; delegate, kind 3
    e_Role_DisabledPictures = Qt::UserRole + 3, //!< 259, QStringList: the same where the cell is disabled; delegate
    e_Role_Texts = Qt::UserRole + 4,            //!< 260, QStringList: the texts by row; delegate and model, kind 4
    e_Role_DataTexts = Qt::UserRole + 5,        //!< 261, QStringList: the texts of the data; delegate, model, kind 5
    e_Role_Data = Qt::UserRole + 6,             //!< 262, QVariantList: one for each text; delegate and model, kind 5
    e_Role_ISpxType = Qt::UserRole + 7,         //!< 263, int (e_ISpx_Type); delegate, kind 6
    e_Role_ISpxMinimum = Qt::UserRole + 8,      //!< 264, an integer; delegate, kind 6
    e_Role_ISpxMaximum = Qt::UserRole + 9,      //!< 265, an integer; delegate, kind 6
    e_Role_ISpxPrefix = Qt::UserRole + 10,      //!< 266, QString; delegate, kind 6
    e_Role_ISpxSuffix = Qt::UserRole + 11,      //!< 267, QString; delegate, kind 6
    e_Role_ISpxBase = Qt::UserRole + 12,        //!< 268, int, 2 to 36; delegate, kind 6
    e_Role_DSpxMinimum = Qt::UserRole + 13,     //!< 269, double; delegate, kind 7
    e_Role_DSpxMaximum = Qt::UserRole + 14,     //!< 270, double; delegate, kind 7
    e_Role_DSpxDecimals = Qt::UserRole + 15,    //!< 271, int; delegate, kind 7
    e_Role_DSpxFormat = Qt::UserRole + 16,      //!< 272, QChar (CDSpinBox::setFmtChar()); delegate, kind 7
    e_Role_DSpxStep = Qt::UserRole + 17,        //!< 273, double: the single step; delegate, kind 7
    e_Role_DSpxOptions = Qt::UserRole + 18,     //!< 274, quint64: bits of e_DSpxOption; delegate, kind 7
    e_Role_Pattern = Qt::UserRole + 19,         //!< 275, QString: a regular expression; delegate, kind 8
    e_Role_BitDescriptions = Qt::UserRole + 20  //!< 276, QMap<int, QString> by bit position; view, kind 12
};

//! Bits of e_Role_DSpxOptions.
enum e_DSpxOption : quint64 {
    e_DSpx_WriteAtOnce = 0x1, //!< every change of the editor's value goes into the model at once
    e_DSpx_FollowStep = 0x2   //!< the open editor takes over the single step whenever the cell is reported changed
};

} // namespace nsUI
