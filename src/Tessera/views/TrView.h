// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QTreeView>

namespace nsUI {

/*!
    A tree view that acts on a click by the cell's kind (e_ItemType): it toggles a Boolean (e_Item_BoolText,
    e_Item_BoolPicture), and opens the colour, font, pen or bit dialog for the kinds 9 to 12. What the user chose is
    written under Qt::EditRole; a cancel writes nothing. The dialogs are modal, have no parent and title themselves. A
    disabled cell is left alone.

    Space, F2 and Enter, pressed without a modifier, do the same on the current cell, and check an e_Item_CheckBox. On an
    editable cell F2 and Enter open its editor, and Space opens the list of an e_Item_ComboBox or e_Item_DataComboBox;
    in other editors it is typed. activated() comes before anything that Enter does. An Enter that has done something
    goes no further; where one shall reach a dialog's default button, take EditKeyPressed out of the edit triggers, and
    Enter does nothing here. A key that is held acts once. Everything else about keys is as in Qt's view; Ctrl+Space selects.

    Every edit trigger is on, so a click on a selected editable cell opens its editor. The host installs the delegate,
    usually a StyledItemDelegate.

    While a dialog is open, the cell, its row or the whole model may go away; what was chosen is not written then. The
    view itself, or its window, must not be deleted while a dialog is open that a click has opened: Qt goes on with the
    click in the view when the dialog has closed. Hide it, and delete it when the click is over. A dialog that a key has
    opened, or slotClicked() called from elsewhere, leaves the view alone afterwards.
*/
class TESSERA_EXPORT TrView : public QTreeView
{
    Q_OBJECT

public:
    explicit TrView(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

protected Q_SLOTS:
    //! Acts on a cell by its kind. A dialog is open while this runs.
    void slotClicked(const QModelIndex& index);
};

} // namespace nsUI
