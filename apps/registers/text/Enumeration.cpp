// SPDX-License-Identifier: MIT
#include "text/Enumeration.h"

namespace registers {

const EnumValue* Enumeration::find(quint64 fieldValue) const
{
    const EnumValue* fallback = nullptr;
    for (const EnumValue& entry : values) {
        if (entry.isDefault) {
            fallback = fallback ? fallback : &entry;
        } else if (entry.matches(fieldValue)) {
            return &entry;
        }
    }
    return fallback;
}

} // namespace registers
