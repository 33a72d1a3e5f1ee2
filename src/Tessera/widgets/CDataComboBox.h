// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QComboBox>
#include <QVariant>

namespace nsUI {

/*!
    A combo box that is told what to show by an item's data, not its index: an enumeration code or an identifier can
    be bound to it with one connection.
*/
class TESSERA_EXPORT CDataComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CDataComboBox(QWidget* parent = nullptr);

public Q_SLOTS:
    /*!
        Makes the first item whose data for \a nRole equals \a tData the current one. Nothing happens, and nothing is
        signalled, when the current item has that data already or when no item has it.
    */
    void setCurrentData(const QVariant& tData, int nRole = Qt::UserRole);
};

} // namespace nsUI
