// SPDX-License-Identifier: MIT
#include "tree/FilterEdit.h"

#include "look/Icons.h"
#include "look/Theme.h"

#include <QEvent>
#include <QScopedValueRollback>

namespace registers {

FilterEdit::FilterEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setPlaceholderText(tr("Filter by name or 0x address"));
    setToolTip(tr("Shows what has every word in its path, such as “uart ctrl”, or an address such as “0x4000”"));
    setAcceptDrops(false); // a dropped file is for the window
    setClearButtonEnabled(true);
    addAction(lineIcon(LineIcon::Search), QLineEdit::LeadingPosition);
}

bool FilterEdit::event(QEvent* event)
{
    if (event->type() == QEvent::Polish || event->type() == QEvent::PaletteChange) {
        updatePlaceholder();
    }
    return QLineEdit::event(event);
}

/// The style's own colour for it is too faint to be read.
void FilterEdit::updatePlaceholder()
{
    if (m_updating) {
        return;
    }
    const QScopedValueRollback<bool> updating(m_updating, true);
    QPalette own;
    own.setColor(QPalette::PlaceholderText, captionColor(parentWidget()->palette()));
    setPalette(own);
}

} // namespace registers
