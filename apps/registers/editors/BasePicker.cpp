// SPDX-License-Identifier: MIT
#include "editors/BasePicker.h"

#include "editors/SegmentButton.h"

#include <QButtonGroup>
#include <QHBoxLayout>

namespace registers {

BasePicker::BasePicker(NumberBase base, QWidget* parent)
    : QWidget(parent)
    , m_buttons(new QButtonGroup(this))
{
    const struct
    {
        NumberBase base;
        QString text;
        QString toolTip;
        SegmentButton::Place place;
    } entries[] = {
        {NumberBase::Decimal, tr("Dec"), tr("Decimal"), SegmentButton::Place::First},
        {NumberBase::Hexadecimal, tr("Hex"), tr("Hexadecimal"), SegmentButton::Place::Middle},
        {NumberBase::Binary, tr("Bin"), tr("Binary"), SegmentButton::Place::Last},
    };
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const auto& entry : entries) {
        auto* button = new SegmentButton(entry.text, entry.place, this);
        button->setToolTip(entry.toolTip);
        m_buttons->addButton(button, static_cast<int>(entry.base));
        layout->addWidget(button);
    }
    setBase(base);
    connect(m_buttons, &QButtonGroup::idClicked, this, [this](int id) { Q_EMIT picked(static_cast<NumberBase>(id)); });
}

void BasePicker::setBase(NumberBase base)
{
    m_buttons->button(static_cast<int>(base))->setChecked(true);
}

} // namespace registers
