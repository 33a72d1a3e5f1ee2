// SPDX-License-Identifier: MIT
#include "editors/ValueCell.h"

#include "device/DeviceState.h"
#include "editors/SpinBoxType.h"
#include "look/Access.h"
#include "text/EnumText.h"

#include <QStringList>

namespace registers {

namespace {

QString allBases(quint64 number, int width)
{
    return QStringList{paddedNumber(number, width, NumberBase::Hexadecimal), numberText(number, NumberBase::Decimal),
                       paddedNumber(number, width, NumberBase::Binary)}
        .join(QLatin1Char('\n'));
}

} // namespace

ValueCell::ValueCell(const DeviceState& state, const PathTarget& target, NumberBase base)
    : m_state(state)
    , m_register(state.device().registerAt(target.registerIndex))
    , m_field(target.isField() ? &m_register.fields.at(target.fieldIndex) : nullptr)
    , m_registerIndex(target.registerIndex)
    , m_base(base)
{
}

nsUI::e_ItemType ValueCell::kind() const
{
    if (m_field && m_field->enumeration) {
        return nsUI::e_Item_DataComboBox;
    }
    return m_field && m_field->width == 1 ? nsUI::e_Item_CheckBox : nsUI::e_Item_ISpinBox;
}

bool ValueCell::isWritable() const
{
    if (!m_field) {
        return registers::isWritable(m_register.access);
    }
    return registers::isWritable(m_field->access) && usableWidth(m_register, *m_field) > 0;
}

bool ValueCell::isModified() const
{
    const quint64 resetValue = m_register.resetValue;
    return number() != (m_field ? fieldValue(*m_field, resetValue) : resetValue);
}

quint64 ValueCell::number() const
{
    const quint64 value = m_state.value(m_registerIndex);
    return m_field ? fieldValue(*m_field, value) : value;
}

quint64 ValueCell::largest() const
{
    return m_field ? largestFieldValue(m_register, *m_field) : m_register.valueMask();
}

QVariant ValueCell::value() const
{
    return kind() == nsUI::e_Item_CheckBox ? QVariant(number() != 0) : QVariant(number());
}

std::optional<quint64> ValueCell::toNumber(const QVariant& value) const
{
    bool isNumber = false;
    const quint64 number = value.toULongLong(&isNumber);
    return isNumber && number <= largest() ? std::optional<quint64>(number) : std::nullopt;
}

QString ValueCell::text(quint64 number) const
{
    if (!m_field) {
        return paddedNumber(number, m_register.size, m_base);
    }
    if (kind() == nsUI::e_Item_CheckBox) {
        return QString::number(number);
    }
    return m_field->enumeration ? EnumText::text(*m_field->enumeration, number, m_base) : numberText(number, m_base);
}

QString ValueCell::text() const
{
    return text(number());
}

QString ValueCell::resetText() const
{
    return text(m_field ? fieldValue(*m_field, m_register.resetValue) : m_register.resetValue);
}

QString ValueCell::toolTip() const
{
    QString tip = allBases(number(), m_field ? m_field->width : m_register.size);
    const QVector<Note> notes = m_field ? fieldNotes(m_register, *m_field) : registerNotes(m_register);
    for (const Note& note : notes) {
        tip += QStringLiteral("\n%1: %2").arg(note.text, note.explanation);
    }
    return tip;
}

QVariant ValueCell::setting(int role) const
{
    switch (role) {
    case nsUI::e_Role_ItemType:
        return int(kind());
    case nsUI::e_Role_DataTexts:
    case nsUI::e_Role_Data:
        return m_field && m_field->enumeration ? choices(role) : QVariant();
    case nsUI::e_Role_ISpxType:
        return int(spinBoxType(m_field ? usableWidth(m_register, *m_field) : m_register.size));
    case nsUI::e_Role_ISpxMinimum:
        return quint64(0);
    case nsUI::e_Role_ISpxMaximum:
        return largest();
    case nsUI::e_Role_ISpxPrefix:
        return basePrefix(m_base);
    case nsUI::e_Role_ISpxBase:
        return static_cast<int>(m_base);
    default:
        return QVariant();
    }
}

QVariant ValueCell::choices(int role) const
{
    const EnumText names(m_field->enumeration, largest());
    const quint64 present = number();
    QStringList texts;
    QVariantList data;
    for (const EnumText::Choice& choice : names.choices()) {
        const bool isPresent = names.choiceFor(present) == &choice;
        texts.append(isPresent ? names.text(present, m_base) : names.text(choice, m_base));
        data.append(names.chosen(choice, present));
    }
    if (!data.contains(present)) {
        texts.append(names.text(present, m_base));
        data.append(present);
    }
    return role == nsUI::e_Role_Data ? QVariant(data) : QVariant(texts);
}

} // namespace registers
