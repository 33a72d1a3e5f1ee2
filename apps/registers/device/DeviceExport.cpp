// SPDX-License-Identifier: MIT
#include "device/DeviceExport.h"

#include "device/DeviceState.h"
#include "text/Numbers.h"

#include <QSaveFile>

#include <memory>
#include <vector>

namespace registers {

namespace {

constexpr int kAddressDigits = 8;

/// Appends JSON text. Keys keep the order in which they are written, which QJsonObject would not do.
class JsonText
{
public:
    explicit JsonText(int expectedSize) { m_bytes.reserve(expectedSize); }

    void raw(const char* text) { m_bytes.append(text); }
    void number(quint64 value) { m_bytes.append(QByteArray::number(value)); }

    void string(const QString& text)
    {
        m_bytes.append('"');
        const QByteArray bytes = text.toUtf8();
        for (const char c : bytes) {
            appendEscaped(c);
        }
        m_bytes.append('"');
    }

    void string(QLatin1String text) { string(QString(text)); }

    void hex(quint64 value, int digits)
    {
        m_bytes.append('"');
        m_bytes.append(hexNumber(value, digits).toLatin1());
        m_bytes.append('"');
    }

    QByteArray take() { return std::move(m_bytes); }

private:
    void appendEscaped(char c)
    {
        if (c == '"' || c == '\\') {
            m_bytes.append('\\');
            m_bytes.append(c);
        } else if (static_cast<unsigned char>(c) < 0x20) {
            m_bytes.append("\\u00");
            m_bytes.append(QByteArray(1, c).toHex());
        } else {
            m_bytes.append(c);
        }
    }

    QByteArray m_bytes;
};

void writeFieldValue(JsonText& json, quint64 value)
{
    if (value < kExactNumberLimit) {
        json.number(value);
    } else {
        json.string(QString::number(value));
    }
}

void writeField(JsonText& json, const Field& field, quint64 registerValue)
{
    const quint64 value = fieldValue(field, registerValue);
    const EnumValue* valueName = field.readName(value);
    json.raw("{\"name\": ");
    json.string(field.name);
    json.raw(", \"lsb\": ");
    json.number(field.lsb);
    json.raw(", \"width\": ");
    json.number(field.width);
    json.raw(", \"value\": ");
    writeFieldValue(json, value);
    json.raw(", \"enum\": ");
    if (valueName) {
        json.string(valueName->name);
    } else {
        json.raw("null");
    }
    json.raw("}");
}

void writeRegister(JsonText& json, const Register& reg, quint64 value)
{
    const int digits = hexDigits(reg.size);
    json.raw("{\"path\": ");
    json.string(reg.path);
    json.raw(", \"address\": ");
    json.hex(reg.address, kAddressDigits);
    json.raw(", \"size\": ");
    json.number(reg.size);
    json.raw(", \"access\": ");
    json.string(accessName(reg.access));
    json.raw(", \"reset\": ");
    json.hex(reg.resetValue, digits);
    json.raw(", \"value\": ");
    json.hex(value, digits);
    json.raw(", \"fields\": [");
    const char* separator = "";
    for (const Field& field : reg.fields) {
        json.raw(separator);
        writeField(json, field, value);
        separator = ", ";
    }
    json.raw("]}");
}

QString couldNotWrite(const QSaveFile& file)
{
    return QStringLiteral("%1: cannot be written: %2").arg(file.fileName(), file.errorString());
}

} // namespace

QByteArray exportJson(const DeviceState& state)
{
    const Device& device = state.device();
    JsonText json(device.registerCount() * 150 + device.fieldCount() * 75 + 100);
    json.raw("{\"device\": ");
    json.string(device.name);
    json.raw(", \"registers\": [");
    const char* separator = "\n";
    for (int i = 0; i < device.registerCount(); ++i) {
        json.raw(separator);
        writeRegister(json, device.registerAt(i), state.value(i));
        separator = ",\n";
    }
    json.raw(device.registerCount() > 0 ? "\n]}\n" : "]}\n");
    return json.take();
}

bool saveExport(const QString& path, const QByteArray& bytes, QString* error)
{
    return saveFiles({{path, bytes}}, error);
}

bool saveFiles(const QVector<OutputFile>& files, QString* error)
{
    // A QSaveFile that is not committed leaves no trace, so every one is written before the first commit.
    std::vector<std::unique_ptr<QSaveFile>> written;
    for (const OutputFile& output : files) {
        auto file = std::make_unique<QSaveFile>(output.path);
        if (!file->open(QIODevice::WriteOnly) || file->write(output.bytes) != output.bytes.size() || !file->flush()) {
            *error = couldNotWrite(*file);
            return false;
        }
        written.push_back(std::move(file));
    }
    for (const auto& file : written) {
        if (!file->commit()) {
            *error = couldNotWrite(*file);
            return false;
        }
    }
    return true;
}

} // namespace registers
