// SPDX-License-Identifier: MIT
#include "cards/Captioned.h"
#include "cards/RoomKeeper.h"
#include "cards/TextLabel.h"
#include "samples/Samples.h"

#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/Tessera.h>
#include <Tessera/views/ItemRoles.h>

namespace gallery {

QWidget* makeSpinBoxFactory()
{
    auto* sample = new Captioned;
    auto* answer = new TextLabel(QString());
    //! [factory]
    const QHash<int, QVariant> settings{
        {nsUI::e_Role_ISpxType, nsUI::e_ISpx_U16},
        {nsUI::e_Role_ISpxMaximum, 0x3FFF},
        {nsUI::e_Role_ISpxPrefix, QStringLiteral("0x")},
        {nsUI::e_Role_ISpxBase, 16},
    };
    QWidget* box = nsUI::TesseraGlobal::ISP_create(sample, settings);
    const auto showValue = [box, answer] {
        const QVariant value =
            nsUI::TesseraGlobal::ISP_getData(box, nsUI::e_ISpx_U16);
        answer->setFixedText(value.toString());
    };
    //! [factory]
    QObject::connect(static_cast<nsUI::CU16SpinBox*>(box),
                     &nsUI::CU16SpinBox::valueChanged, answer, showValue);
    //! [factory]
    nsUI::TesseraGlobal::ISP_setData(box, nsUI::e_ISpx_U16, 0x2A5, false);
    //! [factory]
    keepRoom(static_cast<QAbstractSpinBox*>(box), QStringLiteral("0x3FFF"));
    sample->add(QStringLiteral("ISP_create()"), box);
    sample->add(QStringLiteral("ISP_getData()"), answer);
    return sample;
}

} // namespace gallery
