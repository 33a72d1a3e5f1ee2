// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

namespace registers {

/// True while the focus is in an editor of @p view, or in its open list.
bool isEditing(const QTreeView& view);

/// Commits what stands in an open editor, which would be lost with its row.
void finishEditing(QTreeView& view);

} // namespace registers
