// SPDX-License-Identifier: MIT
#include "CAutoCursor.h"

#include <QGuiApplication>

namespace nsUI {

CAutoCursor::CAutoCursor(const QCursor& cursor)
    : m_tCursor(cursor)
{
    setEnable(true);
}

CAutoCursor::CAutoCursor(Qt::CursorShape shape)
    : CAutoCursor(QCursor(shape))
{
}

CAutoCursor::CAutoCursor(const CAutoCursor& other) = default;

CAutoCursor& CAutoCursor::operator=(const CAutoCursor& other) = default;

CAutoCursor::~CAutoCursor()
{
    setEnable(false);
}

void CAutoCursor::setEnable(bool enable)
{
    if (enable == m_bEnabled)
        return;
    m_bEnabled = enable;
    if (enable)
        QGuiApplication::setOverrideCursor(m_tCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

} // namespace nsUI
