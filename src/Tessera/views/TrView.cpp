// SPDX-License-Identifier: MIT
#include "TrView.h"

#include "ItemClick_p.h"

namespace nsUI {

TrView::TrView(QWidget* parent)
    : QTreeView(parent)
{
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    connect(this, &QAbstractItemView::clicked, this, &TrView::slotClicked);
}

void TrView::slotClicked(const QModelIndex& index)
{
    actOnClick(model(), index);
}

} // namespace nsUI
