// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"

#include <QString>
#include <QVector>

#include <functional>

class QIODevice;

namespace registers {

/// What is wrong with a description: why it could not be read, or a remark.
struct SvdMessage
{
    QString file;
    qint64 line = 0;   ///< from 1; 0 when the file could not be read at all
    qint64 column = 0; ///< from 1
    QString message;   ///< what was wrong, and what was expected; of a remark also what was taken instead
    QString path;      ///< of the register that a remark concerns, when the device has it

    /// "file:line:column: message"; without a line "file: message". All in one line of plain text.
    QString text() const;
};

/// Either a device, or one error, or neither when reading was cancelled. What leaves the rest of a description readable
/// is no error but a remark.
struct SvdResult
{
    DevicePtr device;
    SvdMessage error;
    QVector<SvdMessage> remarks; ///< in the file's order, at most 10,000
    qint64 remarkCount = 0;      ///< how many there are
    bool cancelled = false;

    bool isOk() const { return !device.isNull(); }
};

/// Told how far reading has come, done of total (total may be 0 when it is not known), some dozens of times a
/// second at least. Returning false cancels.
using SvdProgress = std::function<bool(qint64 done, qint64 total)>;

/// Reads a CMSIS-SVD description. @p input is opened for reading when it is not open yet; @p fileName is what
/// errors and Device::sourceFile name. May run in any thread.
SvdResult readSvd(QIODevice& input, const QString& fileName, const SvdProgress& progress = {});

/// As above, of a file.
SvdResult readSvdFile(const QString& fileName, const SvdProgress& progress = {});

} // namespace registers
