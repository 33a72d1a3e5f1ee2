// SPDX-License-Identifier: MIT
//
// Any bytes as a device description: reading ends with a device whose export works, or with one error; never worse.

#include "device/DeviceExport.h"
#include "device/DeviceState.h"
#include "svd/SvdReader.h"

#include <QBuffer>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    QByteArray tBytes = QByteArray::fromRawData(reinterpret_cast<const char*>(pData), static_cast<int>(nSize));
    QBuffer buffer(&tBytes);
    const registers::SvdResult result = registers::readSvd(buffer, QStringLiteral("fuzz.svd"));
    if (result.isOk() == !result.error.message.isEmpty())
        std::abort();
    if (result.isOk())
        registers::exportJson(registers::DeviceState(result.device));
    return 0;
}
