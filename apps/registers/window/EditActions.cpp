// SPDX-License-Identifier: MIT
#include "window/EditActions.h"

#include "form/FormView.h"
#include "form/RegisterForm.h"
#include "look/Icons.h"
#include "session/OpenDevice.h"
#include "tree/DevicePanel.h"
#include "window/GoToDialog.h"
#include "window/NewAction.h"

#include <QMenu>
#include <QToolBar>

namespace registers {

namespace {

/// What the action does, and to which edit.
QString withEdit(const QString& action, const QString& edit)
{
    return edit.isEmpty() ? action : action + QLatin1Char(' ') + edit;
}

} // namespace

EditActions::EditActions(DevicePanel* panel, FormView* view, QWidget* window)
    : QObject(window)
    , m_panel(panel)
    , m_view(view)
    , m_window(window)
    , m_undo(newAction(this, QString(), QKeySequence::Undo, "undo"))
    , m_redo(newAction(this, QString(), QKeySequence::Redo, "redo"))
    , m_copy(newAction(this, tr("&Copy Rows"), QKeySequence::Copy, "copy"))
    , m_find(newAction(this, tr("&Find"), QKeySequence::Find, "find"))
    , m_findNext(newAction(this, tr("Find &Next"), QKeySequence(tr("F3")), "findNext"))
    , m_goTo(newAction(this, tr("&Go to Address…"), QKeySequence(tr("Ctrl+G")), "goTo"))
    , m_editBits(newAction(this, tr("Edit &Bits…"), QKeySequence(tr("Ctrl+B")), "editBits"))
    , m_resetRegister(newAction(this, tr("&Reset Register"), QKeySequence(tr("Ctrl+R")), "resetCurrent"))
    , m_resetAll(newAction(this, tr("Reset &All"), QKeySequence(tr("Ctrl+Shift+R")), "resetAll"))
{
    // Copying is the tree's own affair: text boxes copy what is selected in them.
    m_copy->setShortcutContext(Qt::WidgetShortcut);
    initIcons();
    initConnect();
    updateHistory();
}

void EditActions::initIcons()
{
    m_undo->setIcon(lineIcon(LineIcon::Undo));
    m_redo->setIcon(lineIcon(LineIcon::Redo));
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));
    m_editBits->setIcon(lineIcon(LineIcon::Bits));
    m_resetRegister->setIcon(lineIcon(LineIcon::Reset));
    m_resetAll->setIcon(lineIcon(LineIcon::ResetAll));
}

void EditActions::initConnect()
{
    connect(m_copy, &QAction::triggered, m_panel, &DevicePanel::copySelection);
    connect(m_find, &QAction::triggered, m_panel, &DevicePanel::focusFilter);
    connect(m_findNext, &QAction::triggered, m_panel, &DevicePanel::findNext);
    connect(m_goTo, &QAction::triggered, this, &EditActions::goToAddress);
    connect(m_editBits, &QAction::triggered, m_panel, &DevicePanel::editBits);
    connect(m_resetRegister, &QAction::triggered, this, &EditActions::resetRegister);
    connect(m_resetAll, &QAction::triggered, this, &EditActions::resetAll);
}

void EditActions::fill(QMenu* menu) const
{
    menu->addActions({m_undo, m_redo});
    menu->addSeparator();
    menu->addAction(m_copy);
    menu->addSeparator();
    menu->addActions({m_find, m_findNext, m_goTo});
    menu->addSeparator();
    menu->addActions({m_editBits, m_resetRegister, m_resetAll});
}

void EditActions::fill(QToolBar* bar) const
{
    bar->addActions({m_undo, m_redo});
    bar->addSeparator();
    bar->addActions({m_editBits, m_resetRegister, m_resetAll});
}

void EditActions::fillRowMenu(QWidget* rows) const
{
    rows->addActions({m_editBits, m_resetRegister, m_copy});
}

void EditActions::setHistory(EditHistory* history)
{
    if (m_history != history) {
        if (m_history) {
            disconnect(m_history, nullptr, this, nullptr);
            disconnect(m_undo, nullptr, m_history, nullptr);
            disconnect(m_redo, nullptr, m_history, nullptr);
        }
        m_history = history;
        if (history) {
            connect(history, &EditHistory::changed, this, &EditActions::updateHistory);
            connect(m_undo, &QAction::triggered, history, &EditHistory::undo);
            connect(m_redo, &QAction::triggered, history, &EditHistory::redo);
        }
        updateHistory();
    }
}

void EditActions::updateHistory()
{
    m_undo->setEnabled(m_history && m_history->canUndo());
    m_redo->setEnabled(m_history && m_history->canRedo());
    m_undo->setText(withEdit(tr("&Undo"), m_history ? m_history->undoText() : QString()));
    m_redo->setText(withEdit(tr("&Redo"), m_history ? m_history->redoText() : QString()));
}

void EditActions::update(OpenDevice* device)
{
    m_device = device;
    setHistory(device ? &device->edits().history() : nullptr);
    const RegisterForm* form = m_view->form();
    const int changed = device ? device->state().modifiedCount() : 0;
    m_goTo->setEnabled(device);
    m_editBits->setEnabled(device && m_panel->registerOfBits() >= 0);
    m_resetRegister->setEnabled(device && form && device->state().isModified(form->registerIndex()));
    m_resetAll->setEnabled(changed > 0);
    m_resetAll->setText(changed > 0 ? tr("Reset &All (%1)").arg(changed) : tr("Reset &All"));
}

void EditActions::goToAddress()
{
    const int node = m_panel->currentPlace().node;
    if (const std::optional<quint64> address = GoToDialog::ask(m_device->device().node(node).address, m_window)) {
        Q_EMIT addressGiven(*address);
    }
}

void EditActions::resetRegister()
{
    if (const RegisterForm* form = m_view->form()) {
        m_device->edits().reset(form->registerIndex());
    }
}

void EditActions::resetAll()
{
    m_device->edits().resetAll();
}

} // namespace registers
