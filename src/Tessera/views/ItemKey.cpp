// SPDX-License-Identifier: MIT
#include "ItemKey_p.h"

#include "ItemClick_p.h"

#include <Tessera/views/ItemRoles.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QPointer>

namespace nsUI {
namespace {

bool isEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isActionKey(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_Space || event.key() == Qt::Key_F2 || isEnter(event)) &&
           (event.modifiers() & ~Qt::KeypadModifier) == 0;
}

//! An editor, or another widget in the view, that has left the key to it.
bool comesFromWidgetInside(const QAbstractItemView& view)
{
    const QWidget* const pFocus = QApplication::focusWidget();
    return pFocus != nullptr && pFocus != view.viewport() && view.viewport()->isAncestorOf(pFocus);
}

int kindOf(const QModelIndex& cell)
{
    return cell.data(e_Role_ItemType).toInt();
}

bool isCheckBox(const QModelIndex& cell)
{
    return kindOf(cell) == e_Item_CheckBox && cell.flags().testFlag(Qt::ItemIsUserCheckable);
}

bool hasList(const QModelIndex& cell)
{
    const int nKind = kindOf(cell);
    return nKind == e_Item_ComboBox || nKind == e_Item_DataComboBox;
}

//! A view that gives its Enter to a dialog's default button says so by its edit triggers.
bool isDialogs(const QAbstractItemView& view, const QKeyEvent& event)
{
    return isEnter(event) && !view.editTriggers().testFlag(QAbstractItemView::EditKeyPressed);
}

void actOnCell(const ItemKeyView& view, const QModelIndex& cell, QKeyEvent* event)
{
    event->accept();
    if (event->isAutoRepeat()) // a key that is held would open the dialog again that it has just closed
        return;
    if (!isCheckBox(cell)) {
        view.click(cell);
        return;
    }
    // A check box is the delegate's, which knows it by this key.
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    view.edit(cell, QAbstractItemView::NoEditTriggers, &space);
}

//! Qt's view tells first that the cell is activated, and leaves the key to a dialog's default button.
void pressEnter(const ItemKeyView& view, const QPersistentModelIndex& cell, QKeyEvent* event)
{
    const QPointer<QAbstractItemView> pView = view.pView;
    view.press(event);
    if (!pView || !cell.isValid() || pView->currentIndex() != cell) // a slot has done something of its own
        return;
    if (isCheckBox(cell) || actsOnClick(cell))
        actOnCell(view, cell, event);
    else if (!event->isAutoRepeat() && view.edit(cell, QAbstractItemView::EditKeyPressed, nullptr))
        event->accept();
}

} // namespace

void actOnKey(const ItemKeyView& view, QKeyEvent* event)
{
    const QPersistentModelIndex cell = view.pView->currentIndex();
    if (!isActionKey(*event) || view.isEditing || comesFromWidgetInside(*view.pView) ||
        !cell.flags().testFlag(Qt::ItemIsEnabled) || isDialogs(*view.pView, *event)) {
        view.press(event);
        return;
    }
    const bool isActive = isCheckBox(cell) || actsOnClick(cell);
    if (isEnter(*event) && !(isActive && event->isAutoRepeat()))
        pressEnter(view, cell, event);
    else if (isActive)
        actOnCell(view, cell, event);
    // The list opens with its editor, and is not to get the key besides.
    else if (event->key() == Qt::Key_Space && hasList(cell) &&
             view.edit(cell, QAbstractItemView::AnyKeyPressed, nullptr))
        event->accept();
    else
        view.press(event);
}

} // namespace nsUI
