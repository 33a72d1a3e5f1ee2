// SPDX-License-Identifier: MIT
#include "tree/OpenEditor.h"

#include <QApplication>
#include <QTreeView>

namespace registers {

bool isEditing(const QTreeView& view)
{
    const QWidget* focus = QApplication::focusWidget();
    while (focus && focus != view.viewport()) {
        focus = focus->parentWidget();
    }
    return focus != nullptr;
}

void finishEditing(QTreeView& view)
{
    if (!isEditing(view)) {
        return;
    }
    if (QWidget* list = QApplication::activePopupWidget()) {
        list->close();
    }
    view.setFocus(Qt::OtherFocusReason);
}

} // namespace registers
