// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "text/NumberText.h"

#include <Tessera/views/ItemRoles.h>

#include <QString>
#include <QVariant>

#include <optional>

namespace registers {

class DeviceState;

/// The value of a register or a field as a cell of the tree: its kind, how it reads, and what its editor needs.
///
/// | what                       | kind                       | value under Qt::EditRole |
/// |----------------------------|----------------------------|--------------------------|
/// | a field with named values  | nsUI::e_Item_DataComboBox  | quint64                  |
/// | a field of one bit         | nsUI::e_Item_CheckBox      | bool                     |
/// | all others                 | nsUI::e_Item_ISpinBox      | quint64                  |
///
/// The value is always one that the editor can show: every present value is among the choices, named or not.
class ValueCell
{
public:
    /// @p state must live as long as this object.
    ValueCell(const DeviceState& state, const PathTarget& target, NumberBase base);

    nsUI::e_ItemType kind() const;
    bool isWritable() const;
    bool isModified() const;

    QVariant value() const;
    /// What the cell's editor, a check box or a program gives as a number; nothing when it is none, or does not fit.
    std::optional<quint64> toNumber(const QVariant& value) const;

    QString text() const;
    QString resetText() const;
    /// The value in all three bases, and what there is to know before it is read or written.
    QString toolTip() const;
    /// What the editor asks for under one of nsUI::e_ItemRole.
    QVariant setting(int role) const;

private:
    quint64 number() const;
    quint64 largest() const;
    QString text(quint64 number) const;
    QVariant choices(int role) const;

    const DeviceState& m_state;
    const Register& m_register;
    const Field* m_field; ///< null for the register itself
    int m_registerIndex;
    NumberBase m_base;
};

} // namespace registers
