// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/views/StyledItemDelegate.h>

namespace registers {

/// The library's editors, with lists that are as wide as what they offer. What is picked from a list is set at once.
class ValueDelegate : public nsUI::StyledItemDelegate
{
    Q_OBJECT

public:
    using nsUI::StyledItemDelegate::StyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace registers
