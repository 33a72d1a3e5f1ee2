// SPDX-License-Identifier: MIT
#include "DoubleSession_p.h"

#include <Tessera/views/ItemRoles.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QAbstractItemModel>
#include <QLineEdit>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <limits>

namespace nsUI {
namespace {

//! A model may keep floats, and then answers something else than it was given.
bool isSame(double first, double second)
{
    const double largest = std::max(std::abs(first), std::abs(second));
    return first == second || std::abs(first - second) <= largest * double(std::numeric_limits<float>::epsilon());
}

} // namespace

DoubleSession::DoubleSession(CDSpinBox* pBox)
    : QObject(pBox)
    , m_pBox(pBox)
{
    connect(pBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &DoubleSession::touch);
    // What was typed is the user's even where it is the value that was shown.
    if (auto* const pEdit = pBox->findChild<QLineEdit*>())
        connect(pEdit, &QLineEdit::textEdited, this, [this] { m_isTouched = true; });
}

DoubleSession& DoubleSession::of(CDSpinBox* pBox)
{
    auto* const pSession = pBox->findChild<DoubleSession*>(QString(), Qt::FindDirectChildrenOnly);
    return pSession != nullptr ? *pSession : *new DoubleSession(pBox);
}

DoubleSession* DoubleSession::find(const CDSpinBox* pBox)
{
    return pBox->findChild<DoubleSession*>(QString(), Qt::FindDirectChildrenOnly);
}

void DoubleSession::fill(const QModelIndex& index)
{
    const double val = index.data(Qt::EditRole).toDouble();
    if (m_cell == index && isOwn(val))
        return;
    m_cell = index;
    m_fFilled = val;
    m_written.clear();

    const QPointer<DoubleSession> pSelf(this);
    ++m_nFilling;
    m_pBox->setValue(val);
    if (!pSelf) // a slot has deleted the box
        return;
    --m_nFilling;
    m_fShown = m_pBox->value();
    m_isTouched = false;
    m_pBox->selectAll();
}

//! A box also sends the value that it has, on Enter.
void DoubleSession::touch(double val)
{
    if (m_nFilling == 0 && val != m_fShown)
        m_isTouched = true;
}

std::optional<double> DoubleSession::taken(const QModelIndex& index)
{
    if (m_isTouched && !m_pBox->keyboardTracking()) { // such a box has not read yet what was typed
        const QPointer<DoubleSession> pSelf(this);
        m_pBox->interpretText();
        if (!pSelf) // a slot has deleted the box
            return std::nullopt;
    }
    const double val = m_pBox->value();
    return m_isTouched || m_cell != index || val != m_fShown ? val : m_fFilled;
}

void DoubleSession::write(QAbstractItemModel* pModel, const QPersistentModelIndex& cell, double val)
{
    if (m_nFilling > 0 || !m_isTouched || cell.data(e_Role_ItemType).toInt() != e_Item_DSpinBox)
        return;
    m_written.append(val); // its report can come from within
    const QPointer<DoubleSession> pSelf(this);
    const bool isTaken = pModel->setData(cell, QVariant(val), Qt::EditRole);
    if (pSelf && !isTaken && !m_written.isEmpty() && m_written.last() == val)
        m_written.removeLast();
}

//! True for a value that this box has written. Reports come in order, so none comes any more of what is older.
bool DoubleSession::isOwn(double val)
{
    const auto own =
        std::find_if(m_written.begin(), m_written.end(), [val](double written) { return isSame(val, written); });
    if (own == m_written.end())
        return false;
    m_written.erase(m_written.begin(), own);
    return true;
}

} // namespace nsUI
