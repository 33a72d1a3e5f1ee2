// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QVector>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QAbstractItemModel)

namespace nsUI {

class CDSpinBox;

/*!
    What has passed between a double cell and the box that edits it, kept with the box as its child. A box rounds what
    it shows, so it has to be known whether what stands in it is the cell's value or the user's, and which of the
    model's reports tell only what the box itself wrote.
*/
class DoubleSession : public QObject
{
    Q_OBJECT

public:
    //! The session of \a pBox, begun when there is none.
    static DoubleSession& of(CDSpinBox* pBox);
    static DoubleSession* find(const CDSpinBox* pBox); //!< null when there is none

    //! Shows the value of the cell, unless this box has written it.
    void fill(const QModelIndex& index);

    //! What the cell at \a index is to hold: the value that it was filled from, or the user's. Nothing if a slot of the
    //! box has deleted it.
    std::optional<double> taken(const QModelIndex& index);

    //! Writes a value of the user's at once. The box, the model or both may be gone after it.
    void write(QAbstractItemModel* pModel, const QPersistentModelIndex& cell, double val);

private:
    explicit DoubleSession(CDSpinBox* pBox);

    void touch(double val);
    bool isOwn(double val);

    CDSpinBox* m_pBox;
    QPersistentModelIndex m_cell; //!< what was filled from; invalid before that
    double m_fFilled = 0.0;       //!< the value that it had then, in full
    double m_fShown = 0.0;        //!< what the box made of that
    bool m_isTouched = true;      //!< what stands in the box is not what it was filled with
    int m_nFilling = 0;           //!< fillings that are under way, one within the other
    QVector<double> m_written;    //!< values since the last filling whose reports can still come, oldest first
};

} // namespace nsUI
