// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace registers {

class DeviceState;

/// The largest integers that every JSON reader keeps exactly lie below this one.
constexpr quint64 kExactNumberLimit = quint64(1) << 53;

/// All registers and fields with their present values as JSON text: UTF-8, one line per register.
QByteArray exportJson(const DeviceState& state);

/// "0x" and at least @p digits upper-case hexadecimal digits.
QString hexNumber(quint64 value, int digits);
/// An address, in eight digits or more.
QString addressText(quint64 address);
/// How many hexadecimal digits a register of @p size bits needs.
constexpr int hexDigits(int size)
{
    return (size + 3) / 4;
}

/// Writes @p bytes to @p path. An existing file is replaced only when the new one is complete.
bool saveExport(const QString& path, const QByteArray& bytes, QString* error);

struct OutputFile
{
    QString path;
    QByteArray bytes;
};

/// Writes all files. None is put in place before all are written completely.
bool saveFiles(const QVector<OutputFile>& files, QString* error);

} // namespace registers
