// SPDX-License-Identifier: MIT
//
// The spin boxes beside Qt's own and beside what any such box has to do at least.
//
//   bench_spinboxes [--benchmark_filter=REGEX]     on the offscreen platform unless QT_QPA_PLATFORM says
//   otherwise

#include "HeapCount.h"

#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

using nsUI::CDSpinBox;
using nsUI::CI32SpinBox;

namespace {

constexpr int c_nMaximum = 1000000000;
constexpr int c_nFirst = 123456789;
constexpr int c_nSecond = 987654321;

// Protected in Qt's boxes, public in ours.
template <class Box>
struct Open : Box
{
    using Box::lineEdit;
    using Box::validate;
};

using OurInt = Open<CI32SpinBox>;
using QtInt = Open<QSpinBox>;
using OurDouble = Open<CDSpinBox>;
using QtDouble = Open<QDoubleSpinBox>;

template <class Box>
void configure(Box& box, int nBase)
{
    box.setRange(0, c_nMaximum);
    if constexpr (std::is_same_v<Box, OurInt> || std::is_same_v<Box, QtInt>)
        box.setDisplayIntegerBase(nBase);
}

// Shown and painted once, as a box in a form is.
void showOnScreen(QWidget& widget)
{
    widget.resize(160, 24);
    widget.show();
    QApplication::processEvents();
}

template <class Box>
void visibleSetValue(benchmark::State& state)
{
    Box box;
    configure(box, static_cast<int>(state.range(0)));
    showOnScreen(box);
    bool first = false;
    for (auto _ : state) {
        first = !first;
        box.setValue(first ? c_nFirst : c_nSecond);
    }
}

// The floor of a visible set: the text of the same two values set on a bare line edit.
template <class Box>
void bareSetText(benchmark::State& state)
{
    Box box;
    configure(box, static_cast<int>(state.range(0)));
    box.setValue(c_nFirst);
    const QString sFirst = box.lineEdit()->text();
    box.setValue(c_nSecond);
    const QString sSecond = box.lineEdit()->text();
    QLineEdit edit;
    showOnScreen(edit);
    bool first = false;
    for (auto _ : state) {
        first = !first;
        edit.setText(first ? sFirst : sSecond);
    }
}

void press(QLineEdit& edit, int nKey, const QString& sText)
{
    QKeyEvent event(QEvent::KeyPress, nKey, Qt::NoModifier, sText);
    QApplication::sendEvent(&edit, &event);
}

// One digit typed, validated and taken over, and taken back again.
template <class Edit, class Box>
void typeAndErase(benchmark::State& state, Edit& edit, Box&)
{
    const QString sDigit = QStringLiteral("7");
    for (auto _ : state) {
        press(edit, Qt::Key_7, sDigit);
        press(edit, Qt::Key_Backspace, QString());
    }
}

template <class Box>
void typedDigit(benchmark::State& state)
{
    Box box;
    configure(box, 10);
    box.setValue(12);
    showOnScreen(box);
    box.lineEdit()->setFocus();
    box.lineEdit()->end(false);
    typeAndErase(state, *box.lineEdit(), box);
}

void typedDigitBare(benchmark::State& state)
{
    QLineEdit edit(QStringLiteral("12"));
    showOnScreen(edit);
    typeAndErase(state, edit, edit);
}

// Two texts in turn, so that neither box can answer from what it remembers of the last one.
template <class Box>
void validation(benchmark::State& state)
{
    Box box;
    configure(box, static_cast<int>(state.range(0)));
    const QString sFirst = QStringLiteral("12345678");
    const QString sSecond = QStringLiteral("87654321");
    bool first = false;
    for (auto _ : state) {
        first = !first;
        QString sText = first ? sFirst : sSecond;
        int nPos = static_cast<int>(sText.size());
        benchmark::DoNotOptimize(box.validate(sText, nPos));
    }
}

void bareToLongLong(benchmark::State& state)
{
    const QString sFirst = QStringLiteral("12345678");
    const QString sSecond = QStringLiteral("87654321");
    const int nBase = static_cast<int>(state.range(0));
    bool first = false;
    for (auto _ : state) {
        first = !first;
        bool ok = false;
        benchmark::DoNotOptimize((first ? sFirst : sSecond).toLongLong(&ok, nBase));
    }
}

void bareToDouble(benchmark::State& state)
{
    const QString sText = QStringLiteral("12345678");
    for (auto _ : state) {
        bool ok = false;
        benchmark::DoNotOptimize(sText.toDouble(&ok));
    }
}

template <class Box>
void construction(benchmark::State& state)
{
    for (auto _ : state) {
        Box box;
        benchmark::DoNotOptimize(&box);
    }
}

// Heap bytes of a box beyond its own object, over many boxes so that shared parts do not count.
template <class Box>
void heapPerBox(benchmark::State& state)
{
    constexpr std::size_t nBoxes = 500;
    double bytes = 0;
    for (auto _ : state) {
        std::vector<std::unique_ptr<Box>> boxes;
        boxes.reserve(nBoxes);
        boxes.push_back(std::make_unique<Box>());
        const std::size_t nBefore = heapBytes();
        while (boxes.size() < nBoxes)
            boxes.push_back(std::make_unique<Box>());
        bytes = static_cast<double>(heapBytes() - nBefore) / static_cast<double>(nBoxes - 1);
    }
    state.counters["bytes"] = bytes;
}

} // namespace

BENCHMARK_TEMPLATE(visibleSetValue, OurInt)->Name("set/CI32SpinBox")->Arg(10)->Arg(16);
BENCHMARK_TEMPLATE(visibleSetValue, QtInt)->Name("set/QSpinBox")->Arg(10)->Arg(16);
BENCHMARK_TEMPLATE(bareSetText, OurInt)->Name("set/QLineEdit::setText")->Arg(10)->Arg(16);
BENCHMARK_TEMPLATE(visibleSetValue, OurDouble)->Name("set/CDSpinBox")->Arg(10);
BENCHMARK_TEMPLATE(visibleSetValue, QtDouble)->Name("set/QDoubleSpinBox")->Arg(10);
BENCHMARK_TEMPLATE(bareSetText, OurDouble)->Name("set/QLineEdit::setText(double)")->Arg(10);

BENCHMARK_TEMPLATE(typedDigit, OurInt)->Name("type/CI32SpinBox");
BENCHMARK_TEMPLATE(typedDigit, QtInt)->Name("type/QSpinBox");
BENCHMARK_TEMPLATE(typedDigit, OurDouble)->Name("type/CDSpinBox");
BENCHMARK_TEMPLATE(typedDigit, QtDouble)->Name("type/QDoubleSpinBox");
BENCHMARK(typedDigitBare)->Name("type/QLineEdit");

BENCHMARK_TEMPLATE(validation, OurInt)->Name("validate/CI32SpinBox")->Arg(10)->Arg(16);
BENCHMARK_TEMPLATE(validation, QtInt)->Name("validate/QSpinBox")->Arg(10)->Arg(16);
BENCHMARK(bareToLongLong)->Name("validate/QString::toLongLong")->Arg(10)->Arg(16);
BENCHMARK_TEMPLATE(validation, OurDouble)->Name("validate/CDSpinBox")->Arg(10);
BENCHMARK_TEMPLATE(validation, QtDouble)->Name("validate/QDoubleSpinBox")->Arg(10);
BENCHMARK(bareToDouble)->Name("validate/QString::toDouble");

BENCHMARK_TEMPLATE(construction, CI32SpinBox)->Name("construct/CI32SpinBox");
BENCHMARK_TEMPLATE(construction, QSpinBox)->Name("construct/QSpinBox");
BENCHMARK_TEMPLATE(construction, CDSpinBox)->Name("construct/CDSpinBox");
BENCHMARK_TEMPLATE(construction, QDoubleSpinBox)->Name("construct/QDoubleSpinBox");

BENCHMARK_TEMPLATE(heapPerBox, CI32SpinBox)->Name("heap/CI32SpinBox")->Iterations(1);
BENCHMARK_TEMPLATE(heapPerBox, QSpinBox)->Name("heap/QSpinBox")->Iterations(1);
BENCHMARK_TEMPLATE(heapPerBox, CDSpinBox)->Name("heap/CDSpinBox")->Iterations(1);
BENCHMARK_TEMPLATE(heapPerBox, QDoubleSpinBox)->Name("heap/QDoubleSpinBox")->Iterations(1);

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
