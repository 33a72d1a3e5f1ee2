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

void toggle(const OpenCell& cell, const QModelIndex& index)
{
    cell.write(!index.data(Qt::EditRole).toBool());
}

void chooseColor(const OpenCell& cell, const QModelIndex& index)
{
    const QColor color = QColorDialog::getColor(ItemModel::toColor(index.data(Qt::EditRole)), nullptr, QString(),
                                                QColorDialog::ShowAlphaChannel);
    if (color.isValid())
        cell.write(color);
}

void chooseFont(const OpenCell& cell, const QModelIndex& index)
{
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, index.data(Qt::EditRole).value<QFont>(), nullptr, QString());
    if (ok)
        cell.write(font);
}

void choosePen(const OpenCell& cell, const QModelIndex& index)
{
    bool ok = false;
    const QPen pen = CPenDialog::getPen(&ok, index.data(Qt::EditRole).value<QPen>(), nullptr, QString());
    if (ok)
        cell.write(pen);
}

void editBits(const OpenCell& cell, const QModelIndex& index)
{
    const QByteArray tBytes = index.data(Qt::EditRole).toByteArray();
    const auto tDescriptions = index.data(e_Role_BitDescriptions).value<QMap<int, QString>>();
    const QByteArray tEdited = CBitDialog::getByteArray(tBytes, tDescriptions, nullptr, QString());
    if (!tEdited.isNull())
        cell.write(tEdited);
}

using Action = void (*)(const OpenCell& cell, const QModelIndex& index);

//! Null where a click does nothing.
Action actionOf(const QModelIndex& index)
{
    switch (index.data(e_Role_ItemType).toInt()) {
    case e_Item_BoolText:
    case e_Item_BoolPicture:
        return toggle;
    case e_Item_Color:
        return chooseColor;
    case e_Item_Font:
        return chooseFont;
    case e_Item_Pen:
        return choosePen;
    case e_Item_ByteArray:
        return editBits;
    default:
        return nullptr;
    }
}

} // namespace

void actOnClick(QAbstractItemModel* pModel, const QModelIndex& index)
{
    if (pModel == nullptr || !index.flags().testFlag(Qt::ItemIsEnabled)) // Qt's views tell of a click there, too
        return;
    if (const Action action = actionOf(index))
        action(OpenCell(pModel, index), index);
}

bool actsOnClick(const QModelIndex& index)
{
    return actionOf(index) != nullptr;
}

} // namespace nsUI
