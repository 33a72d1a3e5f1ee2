// SPDX-License-Identifier: MIT
#include "window/Navigator.h"

#include "form/FormView.h"
#include "form/RegisterForm.h"
#include "session/OpenDevice.h"
#include "tree/DevicePanel.h"

namespace registers {

Navigator::Navigator(DevicePanel* panel, FormView* view)
    : QObject(panel)
    , m_panel(panel)
    , m_view(view)
{
    connect(panel, &DevicePanel::currentPlaceChanged, this, &Navigator::showPlace);
}

void Navigator::setDevice(OpenDevice* device)
{
    m_device = device;
    connect(&device->edits(), &DeviceEdits::stepped, this, &Navigator::showStep);
}

void Navigator::showFirst(const PathTarget& selection)
{
    if (selection.isValid()) {
        select(selection);
        m_panel->expandCurrent();
    } else if (m_device->device().registerCount() > 0) {
        select({0, -1});
    }
}

void Navigator::select(const PathTarget& target)
{
    m_panel->setCurrentPlace({m_device->device().registerAt(target.registerIndex).node, target.fieldIndex});
    if (target.isField()) {
        m_view->showField(target.fieldIndex);
    }
}

bool Navigator::isShown(int registerIndex) const
{
    return m_view->form() && m_view->form()->registerIndex() == registerIndex;
}

void Navigator::showPlace(const TreePlace& place)
{
    const int registerIndex = m_device->device().node(place.node).registerIndex;
    if (registerIndex < 0 || !isShown(registerIndex)) {
        m_view->showNode(m_device->edits(), place.node);
    }
    m_view->markField(place.field);
    Q_EMIT moved();
}

/// What an undone edit has changed is shown, unless it is already.
void Navigator::showStep(const PathTarget& target)
{
    if (target.isValid() && !isShown(target.registerIndex)) {
        m_panel->setCurrentPlace({m_device->device().registerAt(target.registerIndex).node, target.fieldIndex});
    }
}

void Navigator::goToAddress(quint64 address)
{
    const int index = m_device->device().findAddress(address);
    if (index >= 0) {
        select({index, -1});
    } else {
        Q_EMIT notFound(address);
    }
}

void Navigator::goToRegister(const QString& path)
{
    const int index = m_device->device().findRegister(path);
    if (index >= 0) {
        select({index, -1});
    }
}

} // namespace registers
