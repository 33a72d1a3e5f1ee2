// SPDX-License-Identifier: MIT
#include "CustomTextBrowser.h"

#include <Tessera/Tessera.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

namespace nsUI {

CustomTextBrowser::CustomTextBrowser(QWidget* parent)
    : QTextBrowser(parent)
{
}

void CustomTextBrowser::appendColorText(const QString& text, const QColor& color)
{
    if (color.isValid())
        TesseraGlobal::appendTextBrowserColor(this, text, color);
    else
        append(text);
}

QFlags<CustomTextBrowser::eMenuActionFlag> CustomTextBrowser::menuActFlags() const
{
    return m_nMenuActFlags;
}

void CustomTextBrowser::setMenuActFlags(QFlags<eMenuActionFlag> flags)
{
    m_nMenuActFlags = flags;
}

void CustomTextBrowser::setMenuActFlag(eMenuActionFlag flag, bool on)
{
    m_nMenuActFlags.setFlag(flag, on);
}

bool CustomTextBrowser::testMenuActFlag(eMenuActionFlag flag) const
{
    return (m_nMenuActFlags & flag) != 0; // QFlags::testFlag() would want all of the bits
}

void CustomTextBrowser::contextMenuEvent(QContextMenuEvent* event)
{
    // Guarded: the menu is a child of the browser, which may be gone when the menu closes.
    const QPointer<QMenu> pMenu = createStandardContextMenu(event->globalPos());
    if (pMenu.isNull()) // a browser whose text cannot be selected has none
        return;
    pMenu->addSeparator();
    if (testMenuActFlag(MenuActClear)) {
        QAction* const pClear = pMenu->addAction(tr("Clear"));
        pClear->setShortcut(QKeySequence());
        connect(pClear, &QAction::triggered, this, &CustomTextBrowser::clear);
    }
    pMenu->exec(event->globalPos());
    if (!pMenu.isNull())
        pMenu->deleteLater();
}

} // namespace nsUI
