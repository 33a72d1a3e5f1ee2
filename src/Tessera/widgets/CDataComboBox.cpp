// SPDX-License-Identifier: MIT
#include "CDataComboBox.h"

namespace nsUI {

CDataComboBox::CDataComboBox(QWidget* parent)
    : QComboBox(parent)
{
}

void CDataComboBox::setCurrentData(const QVariant& tData, int nRole)
{
    if (currentData(nRole) == tData)
        return;
    for (int i = 0; i < count(); ++i) {
        if (itemData(i, nRole) == tData) {
            setCurrentIndex(i);
            return;
        }
    }
}

} // namespace nsUI
