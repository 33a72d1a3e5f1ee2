// SPDX-License-Identifier: MIT
#include "editors/ValueEditor.h"

#include <QHBoxLayout>
#include <QKeyEvent>

namespace registers {

ValueEditor::ValueEditor(QWidget* parent)
    : QWidget(parent)
{
}

void ValueEditor::setContent(QWidget* editor)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(editor);
    setFocusProxy(editor);
}

bool ValueEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace registers
