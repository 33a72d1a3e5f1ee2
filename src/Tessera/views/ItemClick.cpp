// SPDX-License-Identifier: MIT
#include "ItemClick_p.h"

#include "ItemModel_p.h"

#include <Tessera/views/CBitDialog.h>
#include <Tessera/views/ItemRoles.h>
#include <Tessera/widgets/CPenDialog.h>

#include <QAbstractItemModel>
#include <QColorDialog>
#include <QFontDialog>
#include <QMap>
#include <QPersistentModelIndex>
#include <QPointer>

namespace nsUI {
namespace {

/*!
    A cell whose dialog is open. The event loop runs meanwhile, so its row or its whole model can go away: nothing is
    written then.
*/
class OpenCell
{
public:
    OpenCell(QAbstractItemModel* pModel, const QModelIndex& index)
        : m_pModel(pModel)
        , m_cell(index)
    {
    }

    void write(const QVariant& tValue) const
    {
        if (m_pModel && m_cell.isValid())
            m_pModel->setData(m_cell, tValue, Qt::EditRole);
    }

private:
    QPointer<QAbstractItemModel> m_pModel;
    QPersistentModelIndex m_cell;
};

void chooseColor(const OpenCell& cell, const QVariant& tValue)
{
    const QColor color =
        QColorDialog::getColor(ItemModel::toColor(tValue), nullptr, QString(), QColorDialog::ShowAlphaChannel);
    if (color.isValid())
        cell.write(color);
}

void chooseFont(const OpenCell& cell, const QVariant& tValue)
{
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, tValue.value<QFont>(), nullptr, QString());
    if (ok)
        cell.write(font);
}

void choosePen(const OpenCell& cell, const QVariant& tValue)
{
    bool ok = false;
    const QPen pen = CPenDialog::getPen(&ok, tValue.value<QPen>(), nullptr, QString());
    if (ok)
        cell.write(pen);
}

void editBits(const OpenCell& cell, const QVariant& tValue, const QVariant& tDescriptions)
{
    const QByteArray tBytes =
        CBitDialog::getByteArray(tValue.toByteArray(), tDescriptions.value<QMap<int, QString>>(), nullptr, QString());
    if (!tBytes.isNull())
        cell.write(tBytes);
}

} // namespace

void actOnClick(QAbstractItemModel* pModel, const QModelIndex& index)
{
    if (pModel == nullptr || !index.isValid())
        return;
    const OpenCell cell(pModel, index);
    switch (index.data(e_Role_ItemType).toInt()) {
    case e_Item_BoolText:
    case e_Item_BoolPicture:
        pModel->setData(index, QVariant(!index.data(Qt::EditRole).toBool()), Qt::EditRole);
        break;
    case e_Item_Color:
        chooseColor(cell, index.data(Qt::EditRole));
        break;
    case e_Item_Font:
        chooseFont(cell, index.data(Qt::EditRole));
        break;
    case e_Item_Pen:
        choosePen(cell, index.data(Qt::EditRole));
        break;
    case e_Item_ByteArray: {
        const QVariant tValue = index.data(Qt::EditRole);
        editBits(cell, tValue, index.data(e_Role_BitDescriptions));
        break;
    }
    default:
        break;
    }
}

} // namespace nsUI
