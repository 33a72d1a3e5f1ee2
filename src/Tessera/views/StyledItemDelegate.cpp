// SPDX-License-Identifier: MIT
#include "StyledItemDelegate.h"

#include "CellKinds_p.h"
#include "EditorOrigin_p.h"

#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QMetaProperty>
#include <QPersistentModelIndex>
#include <QPointer>

namespace nsUI {
namespace {

/*!
    Asks the view to close an editor, but not at once: a view that is placing its editors cannot do without one of them. One
    that commits on a key closes it by itself, which hides it.
*/
void close(const QAbstractItemDelegate* pDelegate, QWidget* pEditor)
{
    auto* const pSender = const_cast<QAbstractItemDelegate*>(pDelegate);
    const auto closeUnlessGone = [pSender, pEditor = QPointer<QWidget>(pEditor)] {
        if (pEditor && !pEditor->isHidden())
            Q_EMIT pSender->closeEditor(pEditor);
    };
    // Not posted to the editor: a view that closes one sends first what is posted to it.
    QMetaObject::invokeMethod(pSender, closeUnlessGone, Qt::QueuedConnection);
}

//! The integer boxes have no user property, and Qt's delegate would write an invalid variant for them.
bool hasValueForQtsDelegate(const QWidget* pEditor)
{
    return qobject_cast<const QAbstractSpinBox*>(pEditor) == nullptr || pEditor->metaObject()->userProperty().isValid();
}

} // namespace

StyledItemDelegate::StyledItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void StyledItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const CellKind& kind = CellKind::of(index);
    if (kind.paint != nullptr)
        kind.paint(painter, option.rect, index);
    else
        QStyledItemDelegate::paint(painter, option, index);
}

QSize StyledItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index);
}

QWidget* StyledItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const
{
    const CellKind& kind = CellKind::of(index);
    QWidget* pEditor = kind.make != nullptr ? kind.make(parent, index) : nullptr;
    if (pEditor == nullptr)
        pEditor = QStyledItemDelegate::createEditor(parent, option, index);
    if (pEditor != nullptr)
        new EditorOrigin(pEditor, index, kind);
    return pEditor;
}

// The editor's class counts besides the cell's kind: a cell can have got the default editor.
void StyledItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const CellKind& kind = CellKind::of(index);
    if (EditorOrigin::isOutdated(editor, index, kind))
        close(this, editor);
    else if (kind.fill == nullptr || !kind.fill(editor, index))
        QStyledItemDelegate::setEditorData(editor, index);
}

void StyledItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const CellKind& kind = CellKind::of(index);
    if (EditorOrigin::isOutdated(editor, index, kind)) {
        close(this, editor);
        return;
    }
    const QPointer<QWidget> pEditor(editor); // a box may read first what was typed, and tell of it
    const QPersistentModelIndex cell(index);
    const auto tValue = kind.take != nullptr ? kind.take(editor, index) : std::nullopt;
    if (tValue)
        model->setData(cell, *tValue, Qt::EditRole);
    else if (pEditor && hasValueForQtsDelegate(editor))
        QStyledItemDelegate::setModelData(editor, model, index);
}

void StyledItemDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                              const QModelIndex& index) const
{
    const CellKind& kind = CellKind::of(index);
    if (EditorOrigin::isOutdated(editor, index, kind)) {
        close(this, editor);
        editor->setGeometry(option.rect); // a persistent editor stays
    } else if (kind.place == nullptr) {
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
    } else if (editor != nullptr) {
        kind.place(editor, option.rect);
    }
}

} // namespace nsUI
