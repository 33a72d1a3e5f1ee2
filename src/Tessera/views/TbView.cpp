// SPDX-License-Identifier: MIT
#include "TbView.h"

#include "ItemClick_p.h"
#include "ItemKey_p.h"

namespace nsUI {

TbView::TbView(QWidget* parent)
    : QTableView(parent)
{
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    connect(this, &QAbstractItemView::clicked, this, &TbView::slotClicked);
}

void TbView::keyPressEvent(QKeyEvent* event)
{
    actOnKey(
        {this, state() == EditingState, [this](QKeyEvent* pEvent) { QTableView::keyPressEvent(pEvent); },
         [this](const QModelIndex& index, EditTrigger trigger, QEvent* pEvent) { return edit(index, trigger, pEvent); },
         [this](const QModelIndex& index) { slotClicked(index); }},
        event);
}

void TbView::slotClicked(const QModelIndex& index)
{
    actOnClick(model(), index);
}

} // namespace nsUI
