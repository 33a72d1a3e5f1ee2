// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

namespace registers {

class DeviceTreeModel;

/// How far a row is indented below its parent.
constexpr int kIndentation = 16;

/// Gives the columns of @p view room for addresses and values of @p model, and for names of a usual length.
void fitColumns(QTreeView& view, const DeviceTreeModel& model);

} // namespace registers
