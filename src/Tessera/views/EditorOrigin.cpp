// SPDX-License-Identifier: MIT
#include "EditorOrigin_p.h"

#include "CellKinds_p.h"

#include <QWidget>

namespace nsUI {

EditorOrigin::EditorOrigin(QWidget* pEditor, const QModelIndex& index, const CellKind& kind)
    : QObject(pEditor)
    , m_cell(index)
    , m_kind(kind)
{
}

bool EditorOrigin::isOutdated(const QWidget* pEditor, const QModelIndex& index, const CellKind& kind)
{
    const auto* const pOrigin =
        pEditor != nullptr ? pEditor->findChild<EditorOrigin*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    if (pOrigin == nullptr)
        return false;
    if (!pOrigin->m_cell.isValid()) // another row may stand at the index now
        return true;
    if (pOrigin->m_cell != index)
        return false;
    return &kind != &pOrigin->m_kind || (kind.fits != nullptr && !kind.fits(pEditor, index));
}

} // namespace nsUI
