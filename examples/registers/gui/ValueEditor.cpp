// SPDX-License-Identifier: MIT
#include "gui/ValueEditor.h"

#include <QHBoxLayout>

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

} // namespace registers
