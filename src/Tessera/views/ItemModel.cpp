// SPDX-License-Identifier: MIT
#include "ItemModel_p.h"

#include <CCommon.h>

#include <Tessera/views/ItemRoles.h>
#include <Tessera/widgets/CPenDialog.h>

#include <QAbstractItemModel>
#include <QColor>
#include <QCoreApplication>
#include <QPen>

namespace nsUI {
namespace ItemModel {
namespace {

QString translated(const char* pText)
{
    return QCoreApplication::translate("Translator", pText);
}

QString undefinedText()
{
    return translated(QT_TRANSLATE_NOOP("Translator", "Undefined"));
}

QString boolText(bool value)
{
    return value ? translated(QT_TRANSLATE_NOOP("Translator", "True"))
                 : translated(QT_TRANSLATE_NOOP("Translator", "False"));
}

QString rowText(const QAbstractItemModel* pModel, const QModelIndex& index, int nRow)
{
    const QStringList texts = pModel->data(index, e_Role_Texts).toStringList();
    return nRow >= 0 && nRow < texts.size() ? texts.at(nRow) : undefinedText();
}

QString dataText(const QAbstractItemModel* pModel, const QModelIndex& index, const QVariant& tValue)
{
    const auto nPosition = pModel->data(index, e_Role_Data).toList().indexOf(tValue);
    const QStringList texts = pModel->data(index, e_Role_DataTexts).toStringList();
    return nPosition >= 0 && nPosition < texts.size() ? texts.at(nPosition) : undefinedText();
}

QString penText(const QPen& pen)
{
    return QStringLiteral("%1;%2;%3")
        .arg(pen.color().name(), QString::number(pen.widthF()), CPenDialog::getPenStyleDesc(pen.style()));
}

QVariant displayData(const QAbstractItemModel* pModel, const QModelIndex& index, int nKind)
{
    const auto value = [pModel, &index] { return pModel->data(index, Qt::EditRole); };
    switch (nKind) {
    case e_Item_CheckBox:
    case e_Item_Color:
        return QVariant();
    case e_Item_BoolText:
        return boolText(value().toBool());
    case e_Item_ComboBox:
        return rowText(pModel, index, value().toInt());
    case e_Item_DataComboBox:
        return dataText(pModel, index, value());
    case e_Item_Pen:
        return penText(value().value<QPen>());
    case e_Item_ByteArray:
        return QStringLiteral("0x%1").arg(CCommon::byteAttryToHex(value().toByteArray(), QChar()));
    default:
        return value();
    }
}

QVariant backgroundData(const QAbstractItemModel* pModel, const QModelIndex& index, int nKind)
{
    if (nKind != e_Item_Color)
        return QVariant();
    QVariant tValue = pModel->data(index, Qt::EditRole);
    if (tValue.userType() != QMetaType::QColor)
        tValue = toColor(tValue);
    return tValue;
}

QVariant toolTipData(const QAbstractItemModel* pModel, const QModelIndex& index, int nKind)
{
    if (nKind != e_Item_ByteArray)
        return pModel->data(index, Qt::DisplayRole);
    const QByteArray tBytes = pModel->data(index, Qt::EditRole).toByteArray();
    return QStringLiteral("0b%1").arg(CCommon::byteAttryToBin(tBytes, QLatin1Char(' ')));
}

int kindOf(const QAbstractItemModel* pModel, const QModelIndex& index)
{
    return pModel->data(index, e_Role_ItemType).toInt();
}

} // namespace

QColor toColor(const QVariant& tValue)
{
    return tValue.value<QColor>();
}

QVariant data(const QAbstractItemModel* pModel, const QModelIndex& index, int nRole)
{
    if (pModel == nullptr || !index.isValid())
        return QVariant();
    switch (nRole) {
    case e_Role_ItemType:
        return QVariant(int(e_Item_Plain));
    case Qt::DisplayRole:
        return displayData(pModel, index, kindOf(pModel, index));
    case Qt::ToolTipRole:
        return toolTipData(pModel, index, kindOf(pModel, index));
    case Qt::BackgroundRole:
        return backgroundData(pModel, index, kindOf(pModel, index));
    case Qt::CheckStateRole:
        if (kindOf(pModel, index) == e_Item_CheckBox)
            return int(pModel->data(index, Qt::EditRole).toBool() ? Qt::Checked : Qt::Unchecked);
        return QVariant();
    default:
        return QVariant();
    }
}

Qt::ItemFlags flags(const QAbstractItemModel* pModel, const QModelIndex& index)
{
    if (pModel == nullptr || !index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags clickable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    switch (kindOf(pModel, index)) {
    case e_Item_CheckBox:
        return clickable | Qt::ItemIsUserCheckable;
    case e_Item_BoolText:
    case e_Item_BoolPicture:
    case e_Item_Color:
    case e_Item_Font:
    case e_Item_Pen:
    case e_Item_ByteArray:
        return clickable;
    default:
        return clickable | Qt::ItemIsEditable;
    }
}

bool setData(QAbstractItemModel* pModel, const QModelIndex& index, const QVariant& tValue, int nRole)
{
    if (pModel == nullptr || !index.isValid() || nRole != Qt::CheckStateRole)
        return false;
    return kindOf(pModel, index) == e_Item_CheckBox &&
           pModel->setData(index, QVariant(tValue.toInt() == Qt::Checked), Qt::EditRole);
}

} // namespace ItemModel
} // namespace nsUI
