// SPDX-License-Identifier: MIT
#include "cards/Captioned.h"
#include "cards/RoomKeeper.h"
#include "samples/Samples.h"

#include <Tessera/CISpinBox/CU8SpinBox.h>
#include <Tessera/widgets/CDataComboBox.h>

namespace gallery {

QWidget* makeDataComboBox()
{
    auto* sample = new Captioned;
    //! [combo]
    auto* clock = new nsUI::CDataComboBox;
    clock->addItem(QStringLiteral("HSI 16 MHz"), 0x01);
    clock->addItem(QStringLiteral("HSE 25 MHz"), 0x02);
    clock->addItem(QStringLiteral("PLL 168 MHz"), 0x08);

    auto* code = new nsUI::CU8SpinBox;
    QObject::connect(
        code, &nsUI::CU8SpinBox::valueChanged, clock,
        [clock](unsigned char value) { clock->setCurrentData(int(value)); });
    code->setValue(8);
    //! [combo]
    keepRoom(code, QStringLiteral("255"));
    sample->add(QT_TRANSLATE_NOOP("gallery", "Code"), code);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Clock"), clock);
    return sample;
}

} // namespace gallery
