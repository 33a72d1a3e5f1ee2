// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "device/DeviceState.h"
#include "svd/SvdReader.h"

#include <QString>
#include <QVector>

#include <memory>

namespace registers {

/// The resource that holds the built-in sample device.
QString sampleFileName();

/// A device that is open, with its values and what is to be selected in it.
struct Session
{
    DevicePtr device;
    std::unique_ptr<DeviceState> state;
    PathTarget selection;          ///< invalid when nothing was asked for
    QVector<SvdMessage> remarks{}; ///< on the description
    qint64 remarkCount = 0;        ///< how many there are; not all may be kept
};

/// The session of a description that is read, with its reset values.
Session sessionOf(const SvdResult& read);

} // namespace registers
