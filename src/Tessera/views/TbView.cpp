// SPDX-License-Identifier: MIT
#include "TbView.h"

#include "ItemClick_p.h"

namespace nsUI {

TbView::TbView(QWidget* parent)
    : QTableView(parent)
{
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    connect(this, &QAbstractItemView::clicked, this, &TbView::slotClicked);
}

void TbView::slotClicked(const QModelIndex& index)
{
    actOnClick(model(), index);
}

} // namespace nsUI
