// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QTableView>

namespace nsUI {

/*!
    A table view that acts on a click by the cell's kind (e_ItemType): it toggles a Boolean (e_Item_BoolText,
    e_Item_BoolPicture), and opens the colour, font, pen or bit dialog for the kinds 9 to 12. What the user chose is
    written under Qt::EditRole; a cancel writes nothing. The dialogs are modal, have no parent and title themselves.

    Every edit trigger is on, so a click on a selected editable cell opens its editor. The host installs the delegate,
    usually a StyledItemDelegate.
*/
class TESSERA_EXPORT TbView : public QTableView
{
    Q_OBJECT

public:
    explicit TbView(QWidget* parent = nullptr);

protected Q_SLOTS:
    void slotClicked(const QModelIndex& index);
};

} // namespace nsUI
