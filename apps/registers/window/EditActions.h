// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
class QToolBar;
class QWidget;
QT_END_NAMESPACE

namespace registers {

class DevicePanel;
class EditHistory;
class FormView;
class OpenDevice;

/// The actions of the Edit menu: what was done, where to look, and what to change.
class EditActions : public QObject
{
    Q_OBJECT

public:
    /// They act on the current row of @p panel and on the register that @p view shows.
    EditActions(DevicePanel* panel, FormView* view, QWidget* window);

    void fill(QMenu* menu) const;
    void fill(QToolBar* bar) const;
    /// Those that concern one row.
    void fillRowMenu(QWidget* rows) const;

    /// What is open, null for nothing or while it is not to be touched; it must live until the next call.
    void update(OpenDevice* device);

Q_SIGNALS:
    /// The register at @p address is to be shown.
    void addressGiven(quint64 address);

private:
    void initIcons();
    void initConnect();
    void setHistory(EditHistory* history);
    void updateHistory();
    void goToAddress();
    void resetRegister();
    void resetAll();

    DevicePanel* m_panel;
    FormView* m_view;
    QWidget* m_window;
    OpenDevice* m_device = nullptr;
    QPointer<EditHistory> m_history;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_copy;
    QAction* m_find;
    QAction* m_findNext;
    QAction* m_goTo;
    QAction* m_editBits;
    QAction* m_resetRegister;
    QAction* m_resetAll;
};

} // namespace registers
