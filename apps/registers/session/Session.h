// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "device/DeviceState.h"

#include <QString>

#include <memory>

namespace registers {

/// The resource that holds the built-in sample device.
QString sampleFileName();

/// A device that is open, with its values and what is to be selected in it.
struct Session
{
    DevicePtr device;
    std::unique_ptr<DeviceState> state;
    PathTarget selection; ///< invalid when nothing was asked for
};

} // namespace registers
