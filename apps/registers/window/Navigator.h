// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"

#include <QObject>

namespace registers {

class DevicePanel;
class FormView;
class OpenDevice;
struct TreePlace;

/// Keeps the tree and the form at one place of the device.
class Navigator : public QObject
{
    Q_OBJECT

public:
    /// Belongs to @p panel; @p view must live as long.
    Navigator(DevicePanel* panel, FormView* view);

    /// What the tree is going to show; it must live until the next call.
    void setDevice(OpenDevice* device);
    /// Where a device that has just been opened begins: at @p selection, or at its first register.
    void showFirst(const PathTarget& selection);
    void goToAddress(quint64 address);
    void goToRegister(const QString& path);

Q_SIGNALS:
    /// The form shows what is current in the tree now.
    void moved();
    void notFound(quint64 address);

private:
    void select(const PathTarget& target);
    void showPlace(const TreePlace& place);
    void showStep(const PathTarget& target);
    bool isShown(int registerIndex) const;

    DevicePanel* m_panel;
    FormView* m_view;
    OpenDevice* m_device = nullptr;
};

} // namespace registers
