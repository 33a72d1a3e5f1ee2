// SPDX-License-Identifier: MIT
#include "CScrollWdg.h"

namespace nsUI {

CScrollWdg::CScrollWdg(QWidget* parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
}

void CScrollWdg::setWidthAdaptiveType(e_AdaptiveType type)
{
    setSizeAdaptiveType(type, m_nHeightType);
}

void CScrollWdg::setHeightAdaptiveType(e_AdaptiveType type)
{
    setSizeAdaptiveType(m_nWidthType, type);
}

void CScrollWdg::setSizeAdaptiveType(e_AdaptiveType type)
{
    setSizeAdaptiveType(type, type);
}

void CScrollWdg::setSizeAdaptiveType(e_AdaptiveType widthType, e_AdaptiveType heightType)
{
    if (widthType == m_nWidthType && heightType == m_nHeightType)
        return;
    m_nWidthType = widthType;
    m_nHeightType = heightType;
    adaptiveSize();
}

void CScrollWdg::adaptiveSize()
{
    QWidget* const pContent = widget();
    const QWidget* const pView = viewport();
    if (pContent == nullptr || pView == nullptr)
        return;
    pContent->setFixedWidth(m_nWidthType == AdaptiveViewport ? pView->width() : QWIDGETSIZE_MAX);
    pContent->setFixedHeight(m_nHeightType == AdaptiveViewport ? pView->height() : QWIDGETSIZE_MAX);
}

void CScrollWdg::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    adaptiveSize();
}

} // namespace nsUI
