// SPDX-License-Identifier: MIT
#include "gui/FormView.h"

#include "gui/DeviceEdits.h"
#include "gui/FieldTable.h"
#include "gui/GroupPage.h"
#include "gui/RegisterForm.h"
#include "gui/ValueEditor.h"

#include <QLayout>
#include <QScrollBar>

namespace registers {

FormView::FormView(QWidget* parent)
    : nsUI::CScrollWdg(parent)
{
    setWidthAdaptiveType(AdaptiveViewport);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

void FormView::setContent(QWidget* content)
{
    setWidget(content);
    content->ensurePolished();
    setMinimumWidth(content->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width());
    adaptiveSize(); // a new content has its own size until then
}

void FormView::showNode(DeviceEdits& edits, int node)
{
    m_form = nullptr;
    const Node& shown = edits.device().node(node);
    if (shown.kind == NodeKind::Register) {
        m_form = new RegisterForm(edits, shown.registerIndex, m_fieldBase);
        connect(m_form, &RegisterForm::fieldBasePicked, this, &FormView::setFieldBase);
        setContent(m_form);
    } else {
        setContent(new GroupPage(edits.state(), node));
    }
    verticalScrollBar()->setValue(0);
}

void FormView::markField(int fieldIndex)
{
    FieldTable* fields = m_form ? m_form->fields() : nullptr;
    if (!fields) {
        return;
    }
    fields->setMarkedRow(fieldIndex);
    m_form->ensurePolished();
    m_form->layout()->activate();
    if (ValueEditor* editor = fieldIndex < 0 ? nullptr : fields->editor(fieldIndex)) {
        ensureWidgetVisible(editor);
    }
}

void FormView::showField(int fieldIndex)
{
    markField(fieldIndex);
    FieldTable* fields = m_form ? m_form->fields() : nullptr;
    if (ValueEditor* editor = fields ? fields->editor(fieldIndex) : nullptr) {
        editor->setFocus(Qt::OtherFocusReason);
    }
}

void FormView::clear()
{
    m_form = nullptr;
    setContent(new QWidget);
}

void FormView::setFieldBase(NumberBase base)
{
    if (base == m_fieldBase) {
        return;
    }
    m_fieldBase = base;
    if (m_form) {
        m_form->setFieldBase(base);
    }
    Q_EMIT fieldBaseChanged(base);
}

} // namespace registers
