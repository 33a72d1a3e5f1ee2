// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>
#include <QVariant>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QRect)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace nsUI {

/*!
    What StyledItemDelegate does with cells of one kind. Whatever is null here, or declines, is left to
    QStyledItemDelegate.
*/
struct CellKind
{
    //! An editor, set up from the cell's roles; null when the cell does not go together with it.
    QWidget* (*make)(QWidget* pParent, const QModelIndex& index);
    //! Shows the cell's value; false in an editor of another class, which is not touched.
    bool (*fill)(QWidget* pEditor, const QModelIndex& index);
    //! What is to be written; nothing from an editor of another class.
    std::optional<QVariant> (*take)(const QWidget* pEditor, const QModelIndex& index);
    //! Whether an editor that was made for the cell still goes with it; null where that is all a matter of the kind.
    bool (*fits)(const QWidget* pEditor, const QModelIndex& index);
    void (*place)(QWidget* pEditor, const QRect& rect);
    void (*paint)(QPainter* painter, const QRect& rect, const QModelIndex& index);

    //! There is one object for each kind, so two cells are of the same kind when they have the same one.
    static const CellKind& of(const QModelIndex& index);
};

} // namespace nsUI
