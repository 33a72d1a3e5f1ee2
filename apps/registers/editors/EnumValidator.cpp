// SPDX-License-Identifier: MIT
#include "editors/EnumValidator.h"

#include "text/EnumText.h"

namespace registers {

EnumValidator::EnumValidator(const EnumText& names, QObject* parent)
    : QValidator(parent)
    , m_names(names)
{
}

QValidator::State EnumValidator::validate(QString& input, int& position) const
{
    Q_UNUSED(position)
    switch (m_names.state(input)) {
    case TextState::Acceptable:
        return Acceptable;
    case TextState::Intermediate:
        return Intermediate;
    case TextState::Invalid:
        break;
    }
    return Invalid;
}

} // namespace registers
