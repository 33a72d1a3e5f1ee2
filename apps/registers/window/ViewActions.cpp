// SPDX-License-Identifier: MIT
#include "window/ViewActions.h"

#include "form/FormView.h"
#include "look/Icons.h"
#include "tree/DevicePanel.h"
#include "window/NewAction.h"
#include "window/Settings.h"

#include <QActionGroup>
#include <QMenu>
#include <QToolBar>
#include <QTreeView>

namespace registers {

ViewActions::ViewActions(DevicePanel* panel, FormView* view, QWidget* window)
    : QObject(window)
    , m_panel(panel)
    , m_view(view)
    , m_bases(new QActionGroup(this))
    , m_changesOnly(newAction(this, tr("&Changes Only"), QKeySequence(tr("Ctrl+D")), "changesOnly"))
    , m_expandAll(newAction(this, tr("&Expand All"), QKeySequence(tr("Ctrl+Shift+E")), "expandAll"))
    , m_collapseAll(newAction(this, tr("C&ollapse All"), QKeySequence(tr("Ctrl+Shift+W")), "collapseAll"))
    , m_font(newAction(this, tr("&Font…"), QKeySequence(), "font"))
{
    m_changesOnly->setIcon(lineIcon(LineIcon::Changes));
    m_changesOnly->setCheckable(true);
    initBases();
    initConnect(window);
}

void ViewActions::initBases()
{
    const struct
    {
        NumberBase base;
        QString text;
        QString shortcut;
    } bases[] = {
        {NumberBase::Decimal, tr("Values in &Decimal"), tr("Ctrl+1")},
        {NumberBase::Hexadecimal, tr("Values in &Hexadecimal"), tr("Ctrl+2")},
        {NumberBase::Binary, tr("Values in &Binary"), tr("Ctrl+3")},
    };
    for (const auto& entry : bases) {
        QAction* action = m_bases->addAction(entry.text);
        action->setCheckable(true);
        action->setChecked(entry.base == m_view->fieldBase());
        action->setShortcut(QKeySequence(entry.shortcut));
        action->setData(static_cast<int>(entry.base));
    }
}

void ViewActions::initConnect(QWidget* window)
{
    connect(m_bases, &QActionGroup::triggered, this,
            [this](QAction* action) { setBase(static_cast<NumberBase>(action->data().toInt())); });
    connect(m_view, &FormView::fieldBaseChanged, this, &ViewActions::setBase);
    connect(m_changesOnly, &QAction::triggered, this, &ViewActions::setChangesOnly);
    connect(m_panel, &DevicePanel::changesOnlyChanged, this, &ViewActions::setChangesOnly);
    connect(m_expandAll, &QAction::triggered, m_panel, &DevicePanel::expandAll);
    connect(m_collapseAll, &QAction::triggered, m_panel->view(), &QTreeView::collapseAll);
    connect(m_font, &QAction::triggered, window, [window] { chooseFont(window); });
}

void ViewActions::fill(QMenu* menu) const
{
    menu->addActions(m_bases->actions());
    menu->addSeparator();
    menu->addActions({m_changesOnly, m_expandAll, m_collapseAll});
    menu->addSeparator();
    menu->addAction(m_font);
}

void ViewActions::fill(QToolBar* bar) const
{
    bar->addAction(m_changesOnly);
}

void ViewActions::fillRowMenu(QWidget* rows) const
{
    rows->addActions({m_expandAll, m_collapseAll});
}

void ViewActions::update(bool hasDevice)
{
    m_changesOnly->setEnabled(hasDevice);
}

void ViewActions::setChangesOnly(bool changesOnly)
{
    m_changesOnly->setChecked(changesOnly);
    m_panel->setChangesOnly(changesOnly);
    Q_EMIT changesOnlyChanged();
}

void ViewActions::uncheckChangesOnly()
{
    m_changesOnly->setChecked(false);
}

void ViewActions::setBase(NumberBase base)
{
    m_view->setFieldBase(base);
    m_panel->setBase(base);
    const QList<QAction*> actions = m_bases->actions();
    for (QAction* action : actions) {
        action->setChecked(action->data().toInt() == static_cast<int>(base));
    }
}

} // namespace registers
