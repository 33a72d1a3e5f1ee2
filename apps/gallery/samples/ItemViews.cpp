// SPDX-License-Identifier: MIT
#include "host/ChangeWatcher.h"
#include "samples/CellTable.h"
#include "samples/CellTree.h"
#include "samples/Samples.h"

#include <Tessera/views/StyledItemDelegate.h>
#include <Tessera/views/TbView.h>
#include <Tessera/views/TrView.h>

#include <QHeaderView>
#include <QTimer>

#include <algorithm>

namespace gallery {

namespace {

constexpr int kFrame = 2;

/// Lets a view be as high as its rows, in whatever font they are. The page scrolls, the view does not.
void showAllRows(nsUI::TbView* view)
{
    const auto apply = [view] {
        view->resizeColumnToContents(CellTable::KindColumn);
        view->setFixedHeight(view->horizontalHeader()->sizeHint().height() +
                             view->verticalHeader()->length() + kFrame);
    };
    apply();
    ChangeWatcher::watch(view, {QEvent::Show}, apply);
    QObject::connect(view->verticalHeader(), &QHeaderView::geometriesChanged,
                     view, apply);
}

/// The room that a row and its value take.
QSize sizeOfRow(const nsUI::TrView* view, const QModelIndex& row)
{
    const QModelIndex value = row.sibling(row.row(), CellTree::ValueColumn);
    const QSize valueSize = view->sizeHintForIndex(value);
    const int height =
        std::max(view->sizeHintForIndex(row).height(), valueSize.height());
    return QSize(valueSize.width(), height);
}

void fitRows(nsUI::TrView* view)
{
    view->resizeColumnToContents(CellTree::KindColumn);
    int widest = 0;
    int height = view->header()->sizeHint().height() + kFrame;
    for (QModelIndex row = view->model()->index(0, 0); row.isValid();
         row = view->indexBelow(row)) {
        const QSize size = sizeOfRow(view, row);
        widest = std::max(widest, size.width());
        height += size.height();
    }
    view->setFixedHeight(height);
    view->setMinimumWidth(view->columnWidth(CellTree::KindColumn) + widest +
                          kFrame);
}

/// Fits @p view now and, once it has taken it in, behind every change.
void showAllRows(nsUI::TrView* view)
{
    auto* timer = new QTimer(view);
    timer->setSingleShot(true);
    timer->setInterval(0);
    QObject::connect(timer, &QTimer::timeout, view,
                     [view] { fitRows(view); });
    fitRows(view);
    ChangeWatcher::watch(view,
                         {QEvent::Show, QEvent::FontChange,
                          QEvent::StyleChange, QEvent::LanguageChange},
                         [timer] { timer->start(); });
}

} // namespace

QWidget* makeItemTable()
{
    //! [table]
    auto* view = new nsUI::TbView;
    auto* model = new CellTable(view);
    view->setModel(model);
    view->setItemDelegate(new nsUI::StyledItemDelegate(view));
    //! [table]
    view->verticalHeader()->hide();
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view->horizontalHeader()->setSectionResizeMode(
        CellTable::KindColumn, QHeaderView::ResizeToContents);
    view->setTabKeyNavigation(false); // the key leads on to the next card
    showAllRows(view);
    ChangeWatcher::watch(view, {QEvent::LanguageChange},
                         [model] { model->retranslate(); });
    return view;
}

QWidget* makeItemTree()
{
    //! [view]
    auto* view = new nsUI::TrView;
    auto* model = new CellTree(view);
    view->setModel(model);
    view->setItemDelegate(new nsUI::StyledItemDelegate(view));
    view->expandAll();
    //! [view]
    view->setItemsExpandable(false);
    view->header()->setStretchLastSection(true);
    showAllRows(view);
    ChangeWatcher::watch(view, {QEvent::LanguageChange},
                         [model] { model->retranslate(); });
    return view;
}

} // namespace gallery
