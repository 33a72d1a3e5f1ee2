// SPDX-License-Identifier: MIT
#include "window/WindowText.h"

#include "session/OpenDevice.h"
#include "text/NumberText.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace registers {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("registers::MainWindow", text);
}

} // namespace

QString titleText(const OpenDevice& device)
{
    const QString file = device.isSample() ? tr("built-in sample") : QFileInfo(device.device().sourceFile).fileName();
    return QStringLiteral("%1 – %2[*] – %3").arg(device.device().name, file, tr("Tessera Registers"));
}

QString changedText(int count)
{
    switch (count) {
    case 0:
        return tr("No register changed");
    case 1:
        return tr("Changed: 1 register");
    default:
        return tr("Changed: %1 registers").arg(count);
    }
}

QString remarksText(qint64 count)
{
    return count == 1 ? tr("1 remark") : tr("%1 remarks").arg(count);
}

QString noRegisterText(quint64 address)
{
    return tr("No register at %1").arg(numberText(address, NumberBase::Hexadecimal));
}

} // namespace registers
