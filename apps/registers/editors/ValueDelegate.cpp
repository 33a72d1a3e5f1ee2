// SPDX-License-Identifier: MIT
#include "editors/ValueDelegate.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QStyle>

namespace registers {

QWidget* ValueDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    QWidget* editor = nsUI::StyledItemDelegate::createEditor(parent, option, index);
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
        QAbstractItemView* list = box->view();
        const int scrollBar = list->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        list->setMinimumWidth(list->sizeHintForColumn(0) + scrollBar);
        connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box] {
            auto* self = const_cast<ValueDelegate*>(this);
            Q_EMIT self->commitData(box);
            Q_EMIT self->closeEditor(box);
        });
    }
    return editor;
}

} // namespace registers
