// SPDX-License-Identifier: MIT
#include "TrView.h"

#include "ItemClick_p.h"
#include "ItemKey_p.h"

namespace nsUI {

TrView::TrView(QWidget* parent)
    : QTreeView(parent)
{
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    connect(this, &QAbstractItemView::clicked, this, &TrView::slotClicked);
}

void TrView::keyPressEvent(QKeyEvent* event)
{
    actOnKey(
        {this, state() == EditingState, [this](QKeyEvent* pEvent) { QTreeView::keyPressEvent(pEvent); },
         [this](const QModelIndex& index, EditTrigger trigger, QEvent* pEvent) { return edit(index, trigger, pEvent); },
         [this](const QModelIndex& index) { slotClicked(index); }},
        event);
}

void TrView::slotClicked(const QModelIndex& index)
{
    actOnClick(model(), index);
}

} // namespace nsUI
