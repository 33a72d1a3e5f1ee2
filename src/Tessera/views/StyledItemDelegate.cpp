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

void close(const QAbstractItemDelegate* pDelegate, QWidget* pEditor)
{
    Q_EMIT const_cast<QAbstractItemDelegate*>(pDelegate)->closeEditor(pEditor);
}

//! A view that is placing its editors cannot do without one of them at once.
void closeLater(const QAbstractItemDelegate* pDelegate, QWidget* pEditor)
{
    const auto closeUnlessGone = [pDelegate = QPointer<const QAbstractItemDelegate>(pDelegate), pEditor] {
        if (pDelegate)
            close(pDelegate, pEditor);
    };
    QMetaObject::invokeMethod(pEditor, closeUnlessGone, Qt::QueuedConnection);
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
        closeLater(this, editor);
        editor->setGeometry(option.rect); // a persistent editor stays
    } else if (kind.place == nullptr) {
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
    } else if (editor != nullptr) {
        kind.place(editor, option.rect);
    }
}

} // namespace nsUI
