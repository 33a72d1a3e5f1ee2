// SPDX-License-Identifier: MIT

// How long the window takes over a large device, 10,000 registers with 60,000 fields, beside reading its description.
// Every step is what a user does, up to and with the repaint; the medians of several runs are printed.

#include "session/DeviceEdits.h"
#include "svd/SvdReader.h"
#include "tree/DevicePanel.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace registers;

namespace {

constexpr int kRuns = 5;
constexpr int kPeripherals = 100;
constexpr int kRegistersOfEach = 100;
constexpr int kFieldsOfEach = 6;
constexpr int kFieldBits = 5;
constexpr int kScrollSteps = 50;

QByteArray number(int value)
{
    return QByteArray::number(value);
}

QByteArray fieldText(int index)
{
    const QByteArray names = index != 1 ? QByteArray()
                                        : "<enumeratedValues><enumeratedValue><name>OFF</name><value>0</value>"
                                          "</enumeratedValue><enumeratedValue><name>ON</name><value>1</value>"
                                          "</enumeratedValue></enumeratedValues>";
    return "<field><name>FIELD" + number(index) + "</name><description>A field</description><bitOffset>" +
           number(index * kFieldBits) + "</bitOffset><bitWidth>" + number(index == 0 ? 1 : kFieldBits - 1) +
           "</bitWidth>" + names + "</field>\n";
}

QByteArray description()
{
    QByteArray text = "<device><name>LARGE</name><addressUnitBits>8</addressUnitBits><width>32</width><size>32</size>"
                      "<peripherals>\n";
    QByteArray fields;
    for (int i = 0; i < kFieldsOfEach; ++i) {
        fields += fieldText(i);
    }
    for (int peripheral = 0; peripheral < kPeripherals; ++peripheral) {
        text += "<peripheral><name>BLOCK" + number(peripheral) + "</name><baseAddress>" + number(peripheral * 4096) +
                "</baseAddress><registers>\n";
        for (int reg = 0; reg < kRegistersOfEach; ++reg) {
            text += "<register><name>REG" + number(reg) + "</name><description>A register</description>" +
                    "<addressOffset>" + number(reg * 4) + "</addressOffset><fields>\n" + fields +
                    "</fields></register>\n";
        }
        text += "</registers></peripheral>\n";
    }
    return text + "</peripherals></device>\n";
}

/// Steps with the times that they have taken.
class Laps
{
public:
    void lap(const char* name, const std::function<void()>& step)
    {
        QElapsedTimer timer;
        timer.start();
        step();
        QCoreApplication::processEvents();
        const double elapsed = double(timer.nsecsElapsed()) / 1e6;
        auto found = std::find_if(m_laps.begin(), m_laps.end(), [name](const Lap& one) { return one.name == name; });
        if (found == m_laps.end()) {
            found = m_laps.insert(m_laps.end(), {name, {}});
        }
        found->times.push_back(elapsed);
    }

    void print()
    {
        for (Lap& one : m_laps) {
            std::sort(one.times.begin(), one.times.end());
            std::printf("%-44s %8.1f ms\n", one.name.c_str(), one.times[one.times.size() / 2]);
        }
    }

private:
    struct Lap
    {
        std::string name;
        std::vector<double> times;
    };

    std::vector<Lap> m_laps;
};

void filter(DevicePanel* panel, const char* text)
{
    panel->filterEdit()->setText(QLatin1String(text));
    panel->findNext();
}

void run(Laps& laps, QByteArray text)
{
    DevicePtr device;
    laps.lap("reading the description", [&] {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        device = readSvd(buffer, QStringLiteral("large.svd")).device;
    });
    MainWindow window;
    window.show();
    QCoreApplication::processEvents();
    laps.lap("showing the device", [&] { window.setSession({device, std::make_unique<DeviceState>(device), {}}); });
    DevicePanel* panel = window.devicePanel();
    QTreeView* view = panel->view();
    laps.lap("expanding all", [&] { view->expandAll(); });
    laps.lap("scrolling, 50 steps from top to bottom", [&] {
        for (int i = 1; i <= kScrollSteps; ++i) {
            view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum() / kScrollSteps * i);
            view->viewport()->repaint();
        }
    });
    laps.lap("filtering by a register's name", [&] { filter(panel, "REG99"); });
    laps.lap("filtering by a field's name", [&] { filter(panel, "FIELD5"); });
    laps.lap("showing all again", [&] { panel->filterEdit()->clear(), panel->findNext(); });
    laps.lap("editing one register", [&] { window.edits().setRegister(5000, 1); });
    QVector<RegisterValue> values;
    for (int i = 0; i < device->registerCount(); ++i) {
        values.append({i, quint64(i) * 77});
    }
    laps.lap("setting all registers", [&] { window.edits().setAll(values, QStringLiteral("a file")); });
    laps.lap("undoing that", [&] { window.edits().history().undo(); });
    laps.lap("redoing that", [&] { window.edits().history().redo(); });
    laps.lap("changes only", [&] { panel->setChangesOnly(true); });
    laps.lap("all rows again", [&] { panel->setChangesOnly(false); });
    laps.lap("another base", [&] { panel->setBase(NumberBase::Binary); });
}

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication app(argc, argv);
    const QByteArray text = description();
    Laps laps;
    for (int i = 0; i < kRuns; ++i) {
        run(laps, text);
    }
    laps.print();
    return 0;
}
