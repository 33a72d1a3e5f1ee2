// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

namespace registers {

/// One named value of a field.
struct EnumValue
{
    QString name;
    QString description;
    quint64 value = 0;          ///< don't-care bits are 0
    quint64 mask = ~quint64(0); ///< the bits that count; 0 where the description does not care
    bool isDefault = false;     ///< stands for every value that no other entry matches
    bool hasValue = true;       ///< false for a default entry without a value of its own

    bool matches(quint64 fieldValue) const { return hasValue && (fieldValue & mask) == value; }
};

/// The named values of a field, shared by all the fields that use them.
struct Enumeration
{
    QString name;
    QVector<EnumValue> values; ///< in the description's order
    /// True when the description names values for writing only: good as choices, but a value that is
    /// read has no name.
    bool forWritingOnly = false;

    /// The entry that names @p fieldValue: the first one that matches and is not the default, else the
    /// default one, else null.
    const EnumValue* find(quint64 fieldValue) const;
};

} // namespace registers
