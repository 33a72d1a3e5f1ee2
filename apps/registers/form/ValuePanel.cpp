// SPDX-License-Identifier: MIT
#include "form/ValuePanel.h"

#include "device/Device.h"
#include "editors/NumberBox.h"
#include "look/CaptionLabel.h"

#include <QAbstractSpinBox>
#include <QGridLayout>

namespace registers {

namespace {

constexpr int kColumnGap = 8;
constexpr int kGroupGap = 24;

QLabel* caption(const QString& text, NumberBox* box)
{
    auto* label = new CaptionLabel(text);
    label->setBuddy(box->box());
    return label;
}

} // namespace

ValuePanel::ValuePanel(const Register& reg, QWidget* parent)
    : QWidget(parent)
{
    const auto mode = isWritable(reg.access) ? NumberBox::Mode::Editable : NumberBox::Mode::ReadOnly;
    m_decimal = new NumberBox(reg.size, NumberBase::Decimal, mode, this);
    m_hexadecimal = new NumberBox(reg.size, NumberBase::Hexadecimal, mode, this);
    m_binary = new NumberBox(reg.size, NumberBase::Binary, mode, this);
    m_decimal->box()->setObjectName(QStringLiteral("decimalBox"));
    m_hexadecimal->box()->setObjectName(QStringLiteral("hexadecimalBox"));
    m_binary->box()->setObjectName(QStringLiteral("binaryBox"));

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(kColumnGap);
    layout->addWidget(caption(tr("&Decimal"), m_decimal), 0, 0);
    layout->addWidget(m_decimal, 0, 1);
    layout->setColumnMinimumWidth(2, kGroupGap - kColumnGap);
    layout->addWidget(caption(tr("He&xadecimal"), m_hexadecimal), 0, 3);
    layout->addWidget(m_hexadecimal, 0, 4);
    layout->addWidget(caption(tr("&Binary"), m_binary), 1, 0);
    layout->addWidget(m_binary, 1, 1, 1, 5, Qt::AlignLeading);
    layout->setColumnStretch(5, 1);

    for (NumberBox* box : {m_decimal, m_hexadecimal, m_binary}) {
        connect(box, &NumberBox::valueEdited, this, &ValuePanel::valueEdited);
    }
}

void ValuePanel::setValue(quint64 value)
{
    m_decimal->setValue(value);
    m_hexadecimal->setValue(value);
    m_binary->setValue(value);
}

} // namespace registers
