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
