// SPDX-License-Identifier: MIT
#include "window/Screenshot.h"

#include "common/Screenshot.h"
#include "window/MainWindow.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPixmap>

#include <utility>

namespace registers {

namespace {

Session copyOf(const Session& session)
{
    Session copy{session.device, std::make_unique<DeviceState>(session.device), session.selection, session.remarks,
                 session.remarkCount};
    for (int i = 0; i < session.device->registerCount(); ++i) {
        copy.state->setValue(i, session.state->value(i));
    }
    return copy;
}

} // namespace

bool renderScreenshot(const Session& session, QByteArray* png, QString* error)
{
    MainWindow window;
    apps::showUnseen(&window);
    window.setSession(copyOf(session));
    QCoreApplication::processEvents(); // the scroll area learns its size, the tree its columns

    QBuffer buffer(png);
    if (!buffer.open(QIODevice::WriteOnly) || !window.grab().save(&buffer, "PNG")) {
        *error = QCoreApplication::translate("registers::Screenshot", "the picture cannot be made");
        return false;
    }
    return true;
}

} // namespace registers
