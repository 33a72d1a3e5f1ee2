// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "svd/SvdReader.h"

#include <QBuffer>
#include <QByteArray>
#include <QString>
#include <QStringList>

// Short ways to write descriptions down and to look at what came of them.

namespace svdtest {

inline registers::SvdResult read(QByteArray xml, const registers::SvdProgress& progress = {})
{
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly);
    return registers::readSvd(buffer, QStringLiteral("test.svd"), progress);
}

inline QByteArray device(const QByteArray& peripherals, const QByteArray& properties = QByteArray())
{
    return "<device><name>Dev</name>" + properties + "<peripherals>" + peripherals + "</peripherals></device>";
}

inline QByteArray peripheral(const QByteArray& name, const QByteArray& registersXml,
                             const QByteArray& more = QByteArray())
{
    return "<peripheral><name>" + name + "</name><baseAddress>0x1000</baseAddress>" + more + "<registers>" +
           registersXml + "</registers></peripheral>";
}

inline QByteArray reg(const QByteArray& name, const QByteArray& more = QByteArray(),
                      const QByteArray& fields = QByteArray())
{
    return "<register><name>" + name + "</name><addressOffset>0</addressOffset>" + more + "<fields>" + fields +
           "</fields></register>";
}

inline QByteArray field(const QByteArray& name, const QByteArray& bits = "<bitOffset>0</bitOffset>",
                        const QByteArray& more = QByteArray())
{
    return "<field><name>" + name + "</name>" + bits + more + "</field>";
}

/// A device with one peripheral P, whose registers are @p registersXml.
inline QByteArray deviceOf(const QByteArray& registersXml)
{
    return device(peripheral("P", registersXml));
}

/// A device with the one register P.R, whose fields are @p fields.
inline QByteArray deviceOfFields(const QByteArray& fields)
{
    return deviceOf(reg("R", QByteArray(), fields));
}

inline QStringList paths(const registers::Device& device)
{
    QStringList result;
    for (const registers::Register& each : device.registers()) {
        result.append(each.path);
    }
    return result;
}

/// Each register as "path@address", the address in hexadecimal digits.
inline QStringList places(const registers::Device& device)
{
    QStringList result;
    for (const registers::Register& each : device.registers()) {
        result.append(each.path + QLatin1Char('@') + QString::number(each.address, 16));
    }
    return result;
}

/// Each field as "name[msb:lsb]".
inline QStringList fieldPlaces(const registers::Register& each)
{
    QStringList result;
    for (const registers::Field& f : each.fields) {
        result.append(QStringLiteral("%1[%2:%3]").arg(f.name).arg(f.msb()).arg(int(f.lsb)));
    }
    return result;
}

/// The values of a field's enumeration as "name=value" in hexadecimal digits, "*" behind a default one.
inline QStringList valueNames(const registers::Field& f)
{
    QStringList result;
    if (f.enumeration) {
        for (const registers::EnumValue& entry : f.enumeration->values) {
            result.append(entry.name + QLatin1Char('=') + QString::number(entry.value, 16) +
                          QLatin1String(entry.isDefault ? "*" : ""));
        }
    }
    return result;
}

} // namespace svdtest

/// Ends the test function with the reader's message when @p result, a variable, holds no device.
#define VERIFY_READ(result) QVERIFY2((result).isOk(), qPrintable((result).error.text()))
