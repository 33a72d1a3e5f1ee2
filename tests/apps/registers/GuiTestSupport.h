// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "device/DeviceState.h"

#include <QApplication>
#include <QtTest>
#include <QWheelEvent>

#include <initializer_list>
#include <utility>

/// Devices that are made without a description, and input as a user gives it.
namespace GuiTestSupport {

using namespace registers;

inline Field makeField(const QString& name, int lsb, int width, Access access = Access::ReadWrite)
{
    Field field;
    field.name = name;
    field.description = QStringLiteral("What %1 is for").arg(name);
    field.lsb = static_cast<quint8>(lsb);
    field.width = static_cast<quint8>(width);
    field.access = access;
    return field;
}

inline EnumValue makeName(const QString& name, quint64 value)
{
    EnumValue entry;
    entry.name = name;
    entry.description = QStringLiteral("What %1 means").arg(name);
    entry.value = value;
    return entry;
}

inline QSharedPointer<Enumeration> makeEnumeration(std::initializer_list<EnumValue> values)
{
    auto enumeration = QSharedPointer<Enumeration>::create();
    enumeration->values = values;
    return enumeration;
}

inline Register makeRegister(const QString& name, int size, QVector<Field> fields = {})
{
    Register reg;
    reg.name = name;
    reg.path = QStringLiteral("BLOCK.") + name;
    reg.description = QStringLiteral("What %1 is for").arg(name);
    reg.size = static_cast<quint8>(size);
    reg.resetMask = bitMask(size);
    reg.fields = std::move(fields);
    return reg;
}

/// A device with one peripheral, BLOCK.
inline DevicePtr makeDevice(const QVector<Register>& registers)
{
    auto device = QSharedPointer<Device>::create();
    device->name = QStringLiteral("TEST");
    device->sourceFile = QStringLiteral("test.svd");
    const int block = device->addGroup(Device::kRootNode, NodeKind::Peripheral, QStringLiteral("BLOCK"),
                                       QStringLiteral("A block"), 0x40000000);
    quint64 address = 0x40000000;
    for (Register reg : registers) {
        reg.address = address;
        address += 8;
        device->addRegister(block, std::move(reg));
    }
    return device;
}

/// One notch of a real wheel, away from the user for +1: what the widget leaves goes on to its parents.
inline void turnWheel(QWidget* widget, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPoint center = widget->rect().center();
    QWheelEvent event(center, widget->mapToGlobal(center), QPoint(), QPoint(0, notches * 120), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

/// Replaces the text of @p edit the way a user does: select everything, then type.
inline void typeOver(QWidget* edit, const QString& text)
{
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(edit, text);
}

inline bool showAndActivate(QWidget* window)
{
    window->show();
    QApplication::setActiveWindow(window);
    return QTest::qWaitForWindowActive(window);
}

} // namespace GuiTestSupport
