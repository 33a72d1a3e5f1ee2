// SPDX-License-Identifier: MIT
#include "device/DeviceImport.h"

#include "device/DeviceExport.h"
#include "text/Numbers.h"
#include "text/Quoted.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <cmath>
#include <optional>
#include <utility>

namespace registers {

namespace {

// Explaining a path compares it with all its neighbours, and nobody reads more explanations than these.
constexpr int kMostExplained = 1000;

/// The registers of a device by their paths. Those of one path are handed out one after the other.
class RegistersByPath
{
public:
    explicit RegistersByPath(const Device& device)
        : m_following(device.registerCount())
    {
        m_next.reserve(device.registerCount());
        for (int i = device.registerCount() - 1; i >= 0; --i) {
            const QString& path = device.registerAt(i).path;
            m_following[i] = m_next.value(path, -1);
            m_next.insert(path, i);
        }
    }

    bool contains(const QString& path) const { return m_next.contains(path); }

    /// Index of the next register with @p path, or -1.
    int takeNext(const QString& path)
    {
        const auto next = m_next.find(path);
        if (next == m_next.end() || *next < 0) {
            return -1;
        }
        return std::exchange(*next, m_following.at(*next));
    }

private:
    QHash<QString, int> m_next; ///< -1 when every register of that path was taken
    QVector<int> m_following;   ///< for each register the next one with its path, or -1
};

/// Finds the places of a file's registers, one register after the other.
class Placer
{
public:
    explicit Placer(const DeviceState& state)
        : m_state(state)
        , m_registers(state.device())
    {
    }

    void place(const QJsonValue& entry, int position);

    QVector<RegisterValue> takeValues() { return std::move(m_values); }
    QVector<Unplaced> takeUnplaced() { return std::move(m_unplaced); }

private:
    void placeRegister(const QString& path, const QJsonValue& value);
    QString whyNoPlace(const QString& path) const;
    QString whyNotAllowed(int registerIndex, quint64 value) const;

    const DeviceState& m_state;
    RegistersByPath m_registers;
    QVector<RegisterValue> m_values;
    QVector<Unplaced> m_unplaced;
};

/// The bits of @p reg that can be written: all of them, or those of its writable fields.
quint64 writableBits(const Register& reg)
{
    if (isWritable(reg.access)) {
        return reg.valueMask();
    }
    quint64 bits = 0;
    for (const Field& field : reg.fields) {
        if (isWritable(field.access)) {
            bits = withFieldValue(field, bits, ~quint64(0));
        }
    }
    return bits;
}

std::optional<quint64> exactInteger(double number)
{
    const bool isExact = number >= 0 && number < double(kExactNumberLimit) && std::floor(number) == number;
    return isExact ? std::optional<quint64>(quint64(number)) : std::nullopt;
}

std::optional<quint64> readValue(const QJsonValue& value)
{
    return value.isDouble() ? exactInteger(value.toDouble()) : parsePlainNumber(value.toString());
}

QString whyNoNumber(const QJsonValue& value)
{
    if (value.isUndefined()) {
        return QStringLiteral("has no value");
    }
    if (value.isDouble()) {
        return QStringLiteral("its value is not a whole number from 0 to %1; larger ones have to be written as text")
            .arg(kExactNumberLimit - 1);
    }
    const QString expected = QStringLiteral("a decimal number, 0x... or 0b... of at most 64 bits was expected");
    return value.isString() ? QStringLiteral("its value %1 is not a number; ").arg(quoted(value.toString())) + expected
                            : QStringLiteral("its value is not a number; ") + expected;
}

void Placer::place(const QJsonValue& entry, int position)
{
    const QJsonObject object = entry.toObject();
    const QString path = object.value(QLatin1String("path")).toString();
    if (path.isEmpty()) {
        m_unplaced.append({QStringLiteral("register %1 of the file").arg(position),
                           entry.isObject() ? QStringLiteral("has no path") : QStringLiteral("is not an object")});
    } else {
        placeRegister(path, object.value(QLatin1String("value")));
    }
}

void Placer::placeRegister(const QString& path, const QJsonValue& value)
{
    const int index = m_registers.takeNext(path);
    if (index < 0) {
        m_unplaced.append({path, whyNoPlace(path)});
        return;
    }
    const std::optional<quint64> number = readValue(value);
    const QString reason = number ? whyNotAllowed(index, *number) : whyNoNumber(value);
    if (reason.isEmpty()) {
        m_values.append({index, *number});
    } else {
        m_unplaced.append({path, reason});
    }
}

QString Placer::whyNoPlace(const QString& path) const
{
    if (m_registers.contains(path)) {
        return QStringLiteral("the file has it more often than the device");
    }
    if (m_unplaced.size() >= kMostExplained) {
        return QStringLiteral("the device has no such register");
    }
    const QString missing = m_state.device().explainMissing(path);
    return missing.isEmpty() ? QStringLiteral("is a field, and a register was expected") : missing;
}

/// Empty when the register can take @p value.
QString Placer::whyNotAllowed(int registerIndex, quint64 value) const
{
    const Register& reg = m_state.device().registerAt(registerIndex);
    const int digits = hexDigits(reg.size);
    if (value > reg.valueMask()) {
        return QStringLiteral("%1 does not fit; the register holds at most %2")
            .arg(hexNumber(value, 1), hexNumber(reg.valueMask(), digits));
    }
    const quint64 present = m_state.value(registerIndex);
    if (((value ^ present) & ~writableBits(reg)) != 0) {
        return QStringLiteral("is read-only and holds %1, which cannot become %2")
            .arg(hexNumber(present, digits), hexNumber(value, digits));
    }
    return QString();
}

/// @p message with what is known of "file:line:column" in front.
QString located(const QString& fileName, const QString& place, const QString& message)
{
    QStringList parts{fileName, place};
    parts.removeAll(QString());
    return parts.isEmpty() ? message : parts.join(QLatin1Char(':')) + QLatin1String(": ") + message;
}

/// "line:column" of a byte, both counted from 1.
QString placeOf(const QByteArray& json, int offset)
{
    const QByteArray before = json.left(offset);
    const auto lineStart = before.lastIndexOf('\n') + 1;
    const auto column = QString::fromUtf8(before.mid(lineStart)).size() + 1;
    return QStringLiteral("%1:%2").arg(before.count('\n') + 1).arg(column);
}

ImportResult failed(const QString& fileName, const QString& place, const QString& reason)
{
    ImportResult result;
    result.error = located(fileName, place, reason + QStringLiteral("; an export of registers was expected"));
    return result;
}

ImportResult readRegisters(const QJsonArray& list, const DeviceState& state)
{
    Placer placer(state);
    for (int i = 0; i < list.size(); ++i) {
        placer.place(list.at(i), i + 1);
    }
    ImportResult result;
    result.values = placer.takeValues();
    result.unplaced = placer.takeUnplaced();
    return result;
}

ImportResult read(const QByteArray& json, const QString& fileName, const DeviceState& state)
{
    if (json.trimmed().isEmpty()) {
        return failed(fileName, QString(), QStringLiteral("is empty"));
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return failed(fileName, placeOf(json, error.offset), error.errorString());
    }
    const QJsonObject file = document.object();
    const QJsonValue list = file.value(QLatin1String("registers"));
    if (!list.isArray()) {
        return failed(fileName, QString(), QStringLiteral("holds no list \"registers\""));
    }
    ImportResult result = readRegisters(list.toArray(), state);
    result.deviceName = file.value(QLatin1String("device")).toString();
    return result;
}

} // namespace

ImportResult readExport(const QByteArray& json, const DeviceState& state)
{
    return read(json, QString(), state);
}

ImportResult readExportFile(const QString& fileName, const DeviceState& state)
{
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray json = file.readAll();
        if (file.error() == QFileDevice::NoError) {
            return read(json, fileName, state);
        }
    }
    return failed(fileName, QString(), QStringLiteral("cannot be read: %1").arg(file.errorString()));
}

QString unplacedText(const QVector<Unplaced>& unplaced)
{
    QStringList lines;
    lines.reserve(unplaced.size());
    for (const Unplaced& one : unplaced) {
        lines.append(one.path + QLatin1String(": ") + one.reason);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace registers
