// SPDX-License-Identifier: MIT
#include "window/LayoutKeeper.h"

#include "window/Settings.h"

#include <QSplitter>

namespace registers {

LayoutKeeper::LayoutKeeper(QWidget* window, QSplitter* splitter)
    : QObject(window)
    , m_window(window)
    , m_splitter(splitter)
{
    connect(splitter, &QSplitter::splitterMoved, this, [this] { m_splitterIsPlaced = true; });
}

void LayoutKeeper::restore()
{
    m_isKept = true;
    const Settings settings;
    m_window->restoreGeometry(settings.windowGeometry());
    m_splitterIsPlaced = m_splitter->restoreState(settings.splitterState());
}

void LayoutKeeper::save(NumberBase base) const
{
    if (!m_isKept) {
        return;
    }
    Settings settings;
    settings.setWindowGeometry(m_window->saveGeometry());
    if (m_splitterIsPlaced) {
        settings.setSplitterState(m_splitter->saveState());
    }
    settings.setFieldBase(base);
}

void LayoutKeeper::suggestWidth(int width)
{
    if (!m_splitterIsPlaced) {
        m_splitter->setSizes({width, m_window->width() - width});
    }
}

} // namespace registers
