// SPDX-License-Identifier: MIT
#include "form/RegisterForm.h"

#include "device/DeviceState.h"
#include "editors/BasePicker.h"
#include "editors/BitStrip.h"
#include "form/FactsLine.h"
#include "form/FieldTable.h"
#include "form/Heading.h"
#include "form/ValuePanel.h"
#include "look/Access.h"
#include "look/CaptionLabel.h"
#include "look/Card.h"
#include "session/DeviceEdits.h"
#include "text/Numbers.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace registers {

namespace {

constexpr int kFormMargin = 16;
constexpr int kCardMargin = 14;
constexpr int kGap = 14;

QLabel* cardTitle(const QString& text)
{
    auto* title = new QLabel(text);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    return title;
}

} // namespace

RegisterForm::RegisterForm(DeviceEdits& edits, int registerIndex, NumberBase fieldBase, QWidget* parent)
    : QWidget(parent)
    , m_edits(edits)
    , m_state(edits.state())
    , m_index(registerIndex)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kFormMargin, kFormMargin, kFormMargin, kFormMargin);
    layout->setSpacing(kGap);
    m_heading = makeHeading();
    layout->addWidget(m_heading);
    layout->addWidget(makeValueCard());
    if (!reg().fields.isEmpty()) {
        layout->addWidget(makeFieldCard(fieldBase));
    }
    layout->addStretch(1);

    connect(&m_state, &DeviceState::registerChanged, this, &RegisterForm::showIfMine);
    connect(&m_state, &DeviceState::allChanged, this, &RegisterForm::showValue);
    showValue();
}

const Register& RegisterForm::reg() const
{
    return m_state.device().registerAt(m_index);
}

Heading* RegisterForm::makeHeading()
{
    const Register& shown = reg();
    const bool hasOtherName = !shown.displayName.isEmpty() && shown.displayName != shown.name;
    auto* heading = new Heading(
        {shown.path, hasOtherName ? shown.displayName : shown.name, shown.description, registerNotes(shown)}, this);
    const int digits = hexDigits(shown.size);
    FactsLine* facts = heading->facts();
    facts->addFact(tr("Address"), addressText(shown.address), FactsLine::Kind::Number);
    facts->addFact(tr("Size"), shown.size == 1 ? tr("1 bit") : tr("%1 bits").arg(shown.size), FactsLine::Kind::Text);
    facts->addFact(tr("Access"), accessText(shown.access), FactsLine::Kind::Text);
    facts->addFact(tr("Reset value"), hexNumber(shown.resetValue, digits), FactsLine::Kind::Number);
    facts->addFact(tr("Reset mask"), hexNumber(shown.resetMask, digits), FactsLine::Kind::Number);
    return heading;
}

QWidget* RegisterForm::makeValueCard()
{
    auto* card = new Card(this);
    m_values = new ValuePanel(reg(), card);
    m_bits = new BitStrip(reg(), card);
    m_reset = new QPushButton(tr("&Reset"), card);
    m_reset->setObjectName(QStringLiteral("resetRegister"));
    m_reset->setToolTip(
        tr("Set the register to its reset value %1").arg(hexNumber(reg().resetValue, hexDigits(reg().size))));

    auto* title = new QHBoxLayout;
    title->addWidget(cardTitle(tr("Value")));
    title->addStretch();
    title->addWidget(m_reset);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    layout->addLayout(title);
    layout->addWidget(m_values);
    layout->addSpacing(kGap / 2);
    layout->addWidget(m_bits);

    connect(m_values, &ValuePanel::valueEdited, this, &RegisterForm::setRegister);
    connect(m_bits, &BitStrip::valueEdited, this, &RegisterForm::flipBit);
    connect(m_reset, &QPushButton::clicked, this, [this] { m_edits.reset(m_index); });
    return card;
}

QWidget* RegisterForm::makeFieldCard(NumberBase fieldBase)
{
    auto* card = new Card(this);
    m_basePicker = new BasePicker(fieldBase, card);
    m_fields = new FieldTable(reg(), fieldBase, card);

    auto* title = new QHBoxLayout;
    title->addWidget(cardTitle(tr("Fields")));
    title->addStretch();
    title->addWidget(new CaptionLabel(tr("Numbers in"), card));
    title->addWidget(m_basePicker);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    layout->addLayout(title);
    layout->addWidget(m_fields);

    connect(m_fields, &FieldTable::fieldEdited, this, &RegisterForm::setField);
    connect(m_basePicker, &BasePicker::picked, this, &RegisterForm::fieldBasePicked);
    return card;
}

void RegisterForm::setFieldBase(NumberBase base)
{
    if (m_fields) {
        m_basePicker->setBase(base);
        m_fields->setBase(base);
    }
}

void RegisterForm::setRegister(quint64 value)
{
    m_edits.setRegister(m_index, value);
}

/// Each click on a bit is an edit of its own.
void RegisterForm::flipBit(quint64 value)
{
    m_edits.endGesture();
    m_edits.setRegister(m_index, value);
    m_edits.endGesture();
}

void RegisterForm::setField(int fieldIndex, quint64 value)
{
    m_edits.setField(m_index, fieldIndex, value);
}

void RegisterForm::showIfMine(int registerIndex)
{
    if (registerIndex == m_index) {
        showValue();
    }
}

void RegisterForm::showValue()
{
    const quint64 value = m_state.value(m_index);
    const bool changed = m_state.isModified(m_index);
    m_heading->setMarked(changed, tr("Changed from its reset value"));
    m_reset->setEnabled(changed);
    m_values->setValue(value);
    m_bits->setValue(value);
    if (m_fields) {
        m_fields->setRegisterValue(value);
    }
}

} // namespace registers
