// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"
#include "tree/DeviceTreeModel.h"

#include <QString>
#include <QVariant>
#include <QVector>

namespace registers {

class DeviceState;

/// What a column says of a register; empty for one whose cell says more than a text.
QString registerText(const DeviceState& state, const PathTarget& target, NumberBase base, int column);

/// The same of a field.
QString fieldText(const DeviceState& state, const PathTarget& target, NumberBase base, int column);

/// What stands above a column.
QVariant columnTitle(int column);

/// Rows as text: one line each, in the tree's order, with a tab between columns.
QString rowsAsText(const DeviceTreeModel& model, QVector<TreePlace> places);

} // namespace registers
