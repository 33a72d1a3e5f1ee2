// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPersistentModelIndex>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace nsUI {

struct CellKind;

/*!
    What an editor was made for, kept with the editor as its child: the delegate has no state. The cell can change its
    kind or go away while its editor is open, and no value may pass between the two then.
*/
class EditorOrigin : public QObject
{
    Q_OBJECT

public:
    EditorOrigin(QWidget* pEditor, const QModelIndex& index, const CellKind& kind);

    /*!
        True when \a pEditor was made for the cell at \a index, and the cell is not what it was then; \a kind is its
        kind now. False for every editor that was not made for a cell, or was made for another one.
    */
    static bool isOutdated(const QWidget* pEditor, const QModelIndex& index, const CellKind& kind);

private:
    QPersistentModelIndex m_cell;
    const CellKind& m_kind;
};

} // namespace nsUI
