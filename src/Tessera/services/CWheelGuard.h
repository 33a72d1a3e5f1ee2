// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QObject>

namespace nsUI {

/*!
    Keeps the mouse wheel from changing what merely lies under the pointer while a form is being scrolled.

    A guarded spin box (Qt's, this library's, one for dates), combo box, slider, dial or tab bar takes the wheel only while
    it has the focus. Otherwise the scroll area around it has the wheel, the nearest one that can scroll that way; where
    there is none, the wheel is left to the parents as one that nobody has used. Nor does the wheel give such a box the
    focus: its focus policy Qt::WheelFocus becomes Qt::StrongFocus, and remains so. Scroll bars, lists and texts are
    scrolled as ever.

    One line guards a page, or an application:

    \code
    new nsUI::CWheelGuard(scrollArea);
    new nsUI::CWheelGuard(qApp);
    \endcode

    What is added to a guarded widget later is guarded as well, at any depth and with the dialogs that belong to it; what
    is taken out of it is not any more. Where no guard is made, nothing changes.
*/
class TESSERA_EXPORT CWheelGuard : public QObject
{
    Q_OBJECT

public:
    /*!
        Guards \a watched, which owns the guard: a widget with all that is in it, or the application. Deleting the guard
        ends that. With any other object, or null, there is nothing to guard.
    */
    explicit CWheelGuard(QObject* watched);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(QObject* pObject);
    void unwatch(QObject* pObject);

    bool m_bFollowsChildren = false; // the application's filter sees the events of all widgets by itself
};

} // namespace nsUI
