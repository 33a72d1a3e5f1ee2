// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QAction;
class QActionGroup;
class QMenu;
class QToolBar;
class QWidget;
QT_END_NAMESPACE

namespace registers {

class DevicePanel;
class FormView;

/// The actions of the View menu: how values are written, and which rows are shown.
class ViewActions : public QObject
{
    Q_OBJECT

public:
    ViewActions(DevicePanel* panel, FormView* view, QWidget* window);

    void fill(QMenu* menu) const;
    void fill(QToolBar* bar) const;

    /// Those that concern all rows.
    void fillRowMenu(QWidget* rows) const;

    void update(bool hasDevice);

    void setBase(NumberBase base);
    void setChangesOnly(bool changesOnly);
    /// As a new device is shown.
    void uncheckChangesOnly();

Q_SIGNALS:
    void changesOnlyChanged();

private:
    void initBases();
    void initConnect(QWidget* window);

    DevicePanel* m_panel;
    FormView* m_view;
    QActionGroup* m_bases;
    QAction* m_changesOnly;
    QAction* m_expandAll;
    QAction* m_collapseAll;
    QAction* m_font;
};

} // namespace registers
