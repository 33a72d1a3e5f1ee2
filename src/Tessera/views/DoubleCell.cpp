// SPDX-License-Identifier: MIT
#include "DoubleCell_p.h"

#include "DoubleSession_p.h"

#include <Tessera/Tessera.h>
#include <Tessera/views/ItemRoles.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QAbstractItemModel>
#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QSignalBlocker>

namespace nsUI {
namespace {

bool isWithin(const QModelIndex& index, const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    const QModelIndex parent = index.parent();
    return parent == topLeft.parent() && parent == bottomRight.parent() && topLeft.row() <= index.row() &&
           index.row() <= bottomRight.row() && topLeft.column() <= index.column() &&
           index.column() <= bottomRight.column();
}

// The cell may move or go away while its editor is open: what is captured follows it, and is invalid after it.
void writeAtOnce(CDSpinBox* pBox, QAbstractItemModel* pModel, const QPersistentModelIndex& cell)
{
    DoubleSession* const pSession = &DoubleSession::of(pBox);
    QObject::connect(pBox, qOverload<double>(&QDoubleSpinBox::valueChanged), pModel,
                     [pSession, pModel, cell](double val) { pSession->write(pModel, cell, val); });
}

//! A box with a new step writes out its value, but a number that is being typed stays as it is.
void setSingleStep(CDSpinBox* pBox, double step)
{
    if (step == pBox->singleStep())
        return;
    auto* const pEdit = pBox->findChild<QLineEdit*>();
    const QString sText = pEdit->text();
    const int nCursor = pEdit->cursorPosition();
    const int nSelected = pEdit->selectionLength();
    const int nStart = pEdit->selectionStart();
    pBox->setSingleStep(step);
    if (pEdit->text() == sText)
        return;
    const QSignalBlocker blocker(pEdit);
    pEdit->setText(sText);
    pEdit->setCursorPosition(nCursor);
    if (nSelected > 0)
        pEdit->setSelection(nCursor == nStart ? nStart + nSelected : nStart,
                            nCursor == nStart ? -nSelected : nSelected);
}

void followStep(CDSpinBox* pBox, const QAbstractItemModel* pModel, const QPersistentModelIndex& cell)
{
    QObject::connect(pModel, &QAbstractItemModel::dataChanged, pBox,
                     [pBox, cell](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                         if (!cell.isValid() || !isWithin(cell, topLeft, bottomRight))
                             return;
                         setSingleStep(pBox, cell.data(e_Role_DSpxStep).toDouble());
                     });
}

void applyOptions(CDSpinBox* pBox, quint64 nOptions, const QModelIndex& index)
{
    if (index.model() == nullptr)
        return;
    if ((nOptions & e_DSpx_WriteAtOnce) != 0)
        writeAtOnce(pBox, const_cast<QAbstractItemModel*>(index.model()), index);
    if ((nOptions & e_DSpx_FollowStep) != 0)
        followStep(pBox, index.model(), index);
}

} // namespace

QWidget* makeDoubleBox(QWidget* pParent, const QModelIndex& index)
{
    auto* const pBox = new CDSpinBox(pParent);
    if (const QVariant tData = index.data(e_Role_DSpxMinimum); tData.isValid())
        pBox->setMinimum(tData.toDouble());
    if (const QVariant tData = index.data(e_Role_DSpxMaximum); tData.isValid())
        pBox->setMaximum(tData.toDouble());
    if (const QVariant tData = index.data(e_Role_DSpxDecimals); tData.isValid())
        pBox->setDecimals(tData.toInt());
    if (const QVariant tData = index.data(e_Role_DSpxFormat); tData.isValid())
        pBox->setFmtChar(tData.toChar());
    if (const QVariant tData = index.data(e_Role_DSpxStep); tData.isValid())
        pBox->setSingleStep(tData.toDouble());
    if (const QVariant tData = index.data(e_Role_DSpxOptions); tData.isValid())
        applyOptions(pBox, tData.toULongLong(), index);
    TesseraGlobal::instance().autoSetToolTips(pBox, QString());
    return pBox;
}

bool fillDoubleBox(QWidget* pEditor, const QModelIndex& index)
{
    auto* const pBox = qobject_cast<CDSpinBox*>(pEditor);
    if (pBox == nullptr)
        return false;
    DoubleSession::of(pBox).fill(index);
    return true;
}

std::optional<QVariant> takeDouble(const QWidget* pEditor, const QModelIndex& index)
{
    const auto* const pBox = qobject_cast<const CDSpinBox*>(pEditor);
    if (pBox == nullptr)
        return std::nullopt;
    DoubleSession* const pSession = DoubleSession::find(pBox);
    const std::optional<double> val = pSession != nullptr ? pSession->taken(index) : pBox->value();
    return val ? std::optional<QVariant>(*val) : std::nullopt;
}

} // namespace nsUI
