// SPDX-License-Identifier: MIT
#include "gui/EnumValidator.h"

#include "gui/EnumText.h"

namespace registers {

EnumValidator::EnumValidator(const EnumText& names, QObject* parent)
    : QValidator(parent)
    , m_names(names)
{
}

QValidator::State EnumValidator::validate(QString& input, int& position) const
{
    Q_UNUSED(position)
    return m_names.state(input);
}

} // namespace registers
