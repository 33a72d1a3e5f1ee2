// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace registers {

/// The element names that matter; everything else is read past.
enum class SvdTag : quint8 {
    Other,
    Access,
    AddressOffset,
    BaseAddress,
    BitOffset,
    BitRange,
    BitWidth,
    Cluster,
    Description,
    Device,
    Dim,
    DimIncrement,
    DimIndex,
    DisplayName,
    EnumeratedValue,
    EnumeratedValues,
    Field,
    Fields,
    IsDefault,
    Lsb,
    Msb,
    Name,
    Peripheral,
    Peripherals,
    ReadAction,
    Register,
    Registers,
    ResetMask,
    ResetValue,
    Size,
    Usage,
    Value,
    Vendor,
    Version,
};

/// The tag called @p name, whatever its case.
SvdTag svdTag(QStringView name);

} // namespace registers
