// SPDX-License-Identifier: MIT
#include "editors/RegisterBits.h"

#include "look/Access.h"

#include <QCoreApplication>

namespace registers {

namespace {

constexpr int kBitsOfByte = 8;

QString tr(const char* text)
{
    return QCoreApplication::translate("registers::RegisterBits", text);
}

int byteCount(const Register& reg)
{
    return (reg.size + kBitsOfByte - 1) / kBitsOfByte;
}

QString bitName(const Register& reg, const Field& field, int bit)
{
    const QString name = field.width == 1 ? field.name : QStringLiteral("%1[%2]").arg(field.name).arg(bit);
    return field.access == reg.access ? name : QStringLiteral("%1 (%2)").arg(name, accessText(field.access));
}

} // namespace

QByteArray registerBytes(const Register& reg, quint64 value)
{
    QByteArray bytes(byteCount(reg), '\0');
    for (int i = byteCount(reg) - 1; i >= 0; --i, value >>= kBitsOfByte) {
        bytes[i] = static_cast<char>(value & 0xFF);
    }
    return bytes;
}

quint64 valueOfBytes(const QByteArray& bytes)
{
    quint64 value = 0;
    for (const char byte : bytes) {
        value = value << kBitsOfByte | static_cast<quint8>(byte);
    }
    return value;
}

QMap<int, QString> bitDescriptions(const Register& reg)
{
    QMap<int, QString> descriptions;
    for (const Field& field : reg.fields) {
        for (int bit = 0; bit < usableWidth(reg, field); ++bit) {
            QString& text = descriptions[field.lsb + bit];
            text += (text.isEmpty() ? QString() : QStringLiteral(", ")) + bitName(reg, field, bit);
        }
    }
    for (int bit = reg.size; bit < byteCount(reg) * kBitsOfByte; ++bit) {
        descriptions.insert(bit, tr("not in the register"));
    }
    return descriptions;
}

} // namespace registers
