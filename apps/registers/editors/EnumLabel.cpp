// SPDX-License-Identifier: MIT
#include "editors/EnumLabel.h"

#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace registers {

namespace {

constexpr int kLongestText = 30;

} // namespace

EnumLabel::EnumLabel(EnumText names, NumberBase base, QWidget* parent)
    : ValueEditor(parent)
    , m_names(std::move(names))
    , m_edit(new QLineEdit(this))
    , m_base(base)
{
    m_edit->setReadOnly(true);
    m_edit->setFrame(false);
    QPalette flat;
    flat.setColor(QPalette::Base, Qt::transparent);
    m_edit->setPalette(flat);
    setContent(m_edit);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    showValue();
}

quint64 EnumLabel::value() const
{
    return m_value;
}

void EnumLabel::setValue(quint64 value)
{
    m_value = value;
    showValue();
}

void EnumLabel::setBase(NumberBase base)
{
    m_base = base;
    showValue();
}

void EnumLabel::showValue()
{
    const QString text = m_names.text(m_value, m_base);
    if (text == m_edit->text()) {
        return;
    }
    m_edit->setText(text);
    m_edit->setCursorPosition(0);
    m_edit->setToolTip(text);
    const int shown = std::min(static_cast<int>(text.size()) + 2, kLongestText);
    m_edit->setMinimumWidth(m_edit->fontMetrics().horizontalAdvance(QString(shown, QLatin1Char('x'))));
}

} // namespace registers
