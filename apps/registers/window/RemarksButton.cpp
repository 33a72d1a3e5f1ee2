// SPDX-License-Identifier: MIT
#include "window/RemarksButton.h"

#include "window/RemarksDialog.h"
#include "window/WindowText.h"

namespace registers {

RemarksButton::RemarksButton(QWidget* parent)
    : QToolButton(parent)
{
    setObjectName(QStringLiteral("remarkCount"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(tr("What was found wrong with the description"));
    connect(this, &QToolButton::clicked, this, &RemarksButton::showList);
    hide();
}

void RemarksButton::setRemarks(const QVector<SvdMessage>& remarks, qint64 count)
{
    delete m_list;
    m_remarks = remarks;
    m_count = count;
    setText(remarksText(count));
    setVisible(count > 0);
}

QSize RemarksButton::sizeHint() const
{
    return {QToolButton::sizeHint().width(), fontMetrics().height()};
}

void RemarksButton::showList()
{
    if (!m_list) {
        m_list = new RemarksDialog(m_remarks, m_count, window());
        m_list->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_list, &RemarksDialog::registerChosen, this, &RemarksButton::registerChosen);
    }
    m_list->show();
    m_list->raise();
    m_list->activateWindow();
}

} // namespace registers
