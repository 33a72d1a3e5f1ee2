// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace registers {

class DeviceState;

/// What there is to say about a peripheral or cluster.
class GroupPage : public QWidget
{
    Q_OBJECT

public:
    GroupPage(const DeviceState& state, int node, QWidget* parent = nullptr);
};

} // namespace registers
