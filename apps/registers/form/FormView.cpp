// SPDX-License-Identifier: MIT
#include "form/FormView.h"

#include "editors/ValueEditor.h"
#include "form/FieldTable.h"
#include "form/GroupPage.h"
#include "form/RegisterForm.h"
#include "session/DeviceEdits.h"

#include <Tessera/services/CWheelGuard.h>

#include <QLayout>
#include <QScrollBar>

namespace registers {

FormView::FormView(QWidget* parent)
    : nsUI::CScrollWdg(parent)
{
    setWidthAdaptiveType(AdaptiveViewport);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    new nsUI::CWheelGuard(this);
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
