// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QCursor>

namespace nsUI {

/*!
    Shows a cursor for the whole application for as long as the object lives: make one on the stack around a long
    operation, and every way out of it brings the former cursor back.

    \code
    const nsUI::CAutoCursor cursor(Qt::WaitCursor);
    \endcode

    Override cursors are a stack of QGuiApplication's. Objects that are nested restore in reverse order; one that is
    disabled or destroyed out of order takes away whichever cursor is on top.

    Copies count. A copy of an enabled object is enabled without having shown a cursor of its own, so it takes one more
    from the stack than it put there; and an object that is assigned to forgets whether it has shown one itself. Where
    an object must be handed on, hand on a pointer.
*/
class TESSERA_EXPORT CAutoCursor
{
public:
    explicit CAutoCursor(const QCursor& cursor);      //!< shows \a cursor
    explicit CAutoCursor(Qt::CursorShape shape);      //!< shows the cursor of that \a shape
    CAutoCursor(const CAutoCursor& other);            //!< copies whether it is enabled, and its cursor; shows nothing
    CAutoCursor& operator=(const CAutoCursor& other); //!< the same; shows and restores nothing
    ~CAutoCursor();                                   //!< restores, if enabled

    //! Shows the cursor again, or restores before the object's end. Nothing happens when it is in that state already.
    void setEnable(bool enable);

private:
    bool m_bEnabled = false;
    QCursor m_tCursor;
};

} // namespace nsUI
