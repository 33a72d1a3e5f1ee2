// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>

#include <functional>

namespace nsUI {

//! A TbView or TrView with what only they themselves may call.
struct ItemKeyView
{
    QAbstractItemView* pView;
    bool isEditing;                        //!< an editor is open
    std::function<void(QKeyEvent*)> press; //!< the key as Qt's view takes it
    std::function<bool(const QModelIndex&, QAbstractItemView::EditTrigger, QEvent*)> edit;
    std::function<void(const QModelIndex&)> click;
};

/*!
    What a key does in TbView and TrView: Space, F2 and Enter act on the current cell as a click does, every other key
    is for Qt's view. The view may be gone after it.
*/
void actOnKey(const ItemKeyView& view, QKeyEvent* event);

} // namespace nsUI
