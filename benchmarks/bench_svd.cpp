// SPDX-License-Identifier: MIT

// How long reading a description takes, against the least it can take: one pass of QXmlStreamReader over the
// same bytes that does nothing with what it sees.

#include "device/DeviceExport.h"
#include "device/DeviceState.h"
#include "svd/SvdReader.h"

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QByteArray>
#include <QElapsedTimer>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

constexpr int kDescriptionSize = 4 * 1024 * 1024;
constexpr int kRegistersPerPeripheral = 40;
constexpr int kFieldsPerRegister = 6;

enum class Layout { Indented, Dense };

/// Writes elements, on lines of their own or not.
class Writer
{
public:
    explicit Writer(Layout layout)
        : m_layout(layout)
    {
        m_bytes.reserve(kDescriptionSize + 100000);
    }

    void open(const char* name)
    {
        indent();
        m_bytes.append('<').append(name).append('>');
        ++m_depth;
    }

    void close(const char* name)
    {
        --m_depth;
        indent();
        m_bytes.append("</").append(name).append('>');
    }

    void leaf(const char* name, const QByteArray& text)
    {
        indent();
        m_bytes.append('<').append(name).append('>').append(text);
        m_bytes.append("</").append(name).append('>');
    }

    /// Only in the indented layout, as files without indentation mostly have few remarks either.
    void remark(const char* name, const QByteArray& text)
    {
        if (m_layout == Layout::Indented) {
            leaf(name, text);
        }
    }

    int size() const { return static_cast<int>(m_bytes.size()); }
    QByteArray take() { return std::move(m_bytes); }

private:
    void indent()
    {
        if (m_layout == Layout::Indented) {
            m_bytes.append('\n').append(QByteArray(2 * m_depth, ' '));
        }
    }

    Layout m_layout;
    QByteArray m_bytes;
    int m_depth = 0;
};

QByteArray numbered(const char* text, int number)
{
    return QByteArray(text) + QByteArray::number(number);
}

void writeEnumeration(Writer& out)
{
    out.open("enumeratedValues");
    for (int i = 0; i < 3; ++i) {
        out.open("enumeratedValue");
        out.leaf("name", numbered("Mode", i));
        out.remark("description", "The unit works in mode " + QByteArray::number(i));
        out.leaf("value", QByteArray::number(i));
        out.close("enumeratedValue");
    }
    out.close("enumeratedValues");
}

void writeField(Writer& out, int number)
{
    out.open("field");
    out.leaf("name", numbered("FIELD", number));
    out.remark("description", "Bits that say how part " + QByteArray::number(number) +
                                  " of the unit\n            works while the unit is turned on");
    out.leaf("bitOffset", QByteArray::number(number * 5));
    out.leaf("bitWidth", "4");
    out.leaf("access", number % 3 == 0 ? "read-only" : "read-write");
    if (number == 2) {
        writeEnumeration(out);
    }
    out.close("field");
}

void writeRegister(Writer& out, int number)
{
    out.open("register");
    out.leaf("name", numbered("REG", number));
    out.leaf("displayName", numbered("REG", number));
    out.remark("description", "Register " + QByteArray::number(number) + " of the unit");
    out.leaf("addressOffset", "0x" + QByteArray::number(4 * number, 16));
    out.leaf("size", "0x20");
    out.leaf("access", "read-write");
    out.leaf("resetValue", "0x00000000");
    out.open("fields");
    for (int i = 0; i < kFieldsPerRegister; ++i) {
        writeField(out, i);
    }
    out.close("fields");
    out.close("register");
}

QByteArray makeDescription(Layout layout)
{
    Writer out(layout);
    out.open("device");
    out.leaf("name", "BENCH");
    out.open("peripherals");
    for (int number = 0; out.size() < kDescriptionSize; ++number) {
        out.open("peripheral");
        out.leaf("name", numbered("UNIT", number));
        out.leaf("baseAddress", "0x" + QByteArray::number(0x40000000 + 0x1000 * number, 16));
        out.open("registers");
        for (int i = 0; i < kRegistersPerPeripheral; ++i) {
            writeRegister(out, i);
        }
        out.close("registers");
        out.close("peripheral");
    }
    out.close("peripherals");
    out.close("device");
    return out.take();
}

const QByteArray& description(Layout layout)
{
    static const QByteArray indented = makeDescription(Layout::Indented);
    static const QByteArray dense = makeDescription(Layout::Dense);
    return layout == Layout::Indented ? indented : dense;
}

Layout layoutOf(const benchmark::State& state)
{
    return state.range(0) == 0 ? Layout::Indented : Layout::Dense;
}

void barePass(benchmark::State& state)
{
    QByteArray bytes = description(layoutOf(state));
    for (auto _ : state) {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        QXmlStreamReader reader(&buffer);
        int tokens = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            ++tokens;
        }
        benchmark::DoNotOptimize(tokens);
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * bytes.size());
}

void readDescription(benchmark::State& state)
{
    QByteArray bytes = description(layoutOf(state));
    qint64 longestPause = 0;
    for (auto _ : state) {
        QBuffer buffer(&bytes);
        QElapsedTimer pause;
        pause.start();
        const registers::SvdResult result =
            registers::readSvd(buffer, QStringLiteral("bench.svd"), [&](qint64, qint64) {
                longestPause = std::max(longestPause, pause.nsecsElapsed());
                pause.start();
                return true;
            });
        if (!result.isOk()) {
            state.SkipWithError("the description cannot be read");
            return;
        }
        state.counters["registers"] = double(result.device->registerCount());
        state.counters["fields"] = double(result.device->fieldCount());
    }
    state.counters["longestPauseMs"] = double(longestPause) / 1e6;
    state.SetBytesProcessed(int64_t(state.iterations()) * bytes.size());
}

void exportDevice(benchmark::State& state)
{
    QByteArray bytes = description(layoutOf(state));
    QBuffer buffer(&bytes);
    const registers::SvdResult result = registers::readSvd(buffer, QStringLiteral("bench.svd"));
    const registers::DeviceState values(result.device);
    for (auto _ : state) {
        benchmark::DoNotOptimize(registers::exportJson(values).size());
    }
}

// Argument 0 is the indented layout, 1 the dense one.
BENCHMARK(barePass)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(readDescription)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(exportDevice)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
