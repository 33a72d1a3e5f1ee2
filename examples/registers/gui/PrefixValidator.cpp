// SPDX-License-Identifier: MIT
#include "gui/PrefixValidator.h"

#include <utility>

namespace registers {

PrefixValidator::PrefixValidator(const QAbstractSpinBox& box, QString prefix, QObject* parent)
    : QValidator(parent)
    , m_box(box)
    , m_prefix(std::move(prefix))
{
}

QValidator::State PrefixValidator::validate(QString& input, int& position) const
{
    const bool lacksPrefix = !input.startsWith(m_prefix);
    const State state = m_box.validate(input, position);
    if (lacksPrefix && input.startsWith(m_prefix)) {
        position += m_prefix.size();
    }
    return state;
}

} // namespace registers
