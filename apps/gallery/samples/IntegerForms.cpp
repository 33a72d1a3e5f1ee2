// SPDX-License-Identifier: MIT
#include "cards/Captioned.h"
#include "cards/RoomKeeper.h"
#include "samples/Samples.h"

#include <Tessera/CISpinBox/CI16SpinBox.h>
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>

namespace gallery {

QWidget* makeAffixes()
{
    auto* sample = new Captioned;
    //! [affixes]
    auto* offset = new nsUI::CU32SpinBox;
    offset->setRange(0x40000000, 0x5FFFFFFF);
    offset->setPrefix(QStringLiteral("0x"));
    offset->setDisplayIntegerBase(16);

    auto* level = new nsUI::CI16SpinBox;
    level->setRange(-120, 30);
    level->setValue(-42);
    level->setSuffix(QStringLiteral(" dBm"));
    //! [affixes]
    keepRoom(offset, QStringLiteral("0x5FFFFFFF"));
    keepRoom(level, QStringLiteral("-120 dBm"));
    sample->add(QT_TRANSLATE_NOOP("gallery", "Address"), offset);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Level"), level);
    return sample;
}

QWidget* makeWrapping()
{
    auto* sample = new Captioned;
    //! [wrapping]
    auto* phase = new nsUI::CU16SpinBox;
    phase->setRange(0, 359);
    phase->setSingleStep(15);
    phase->setValue(345);
    phase->setWrapping(true);
    //! [wrapping]
    keepRoom(phase, QStringLiteral("359"));
    sample->add(QT_TRANSLATE_NOOP("gallery", "Phase in degrees"), phase);
    return sample;
}

QWidget* makeStepTypes()
{
    auto* sample = new Captioned;
    //! [steps]
    auto* plain = new nsUI::CU32SpinBox;
    plain->setMaximum(1000000);
    plain->setSingleStep(100);
    plain->setValue(25000);

    auto* adaptive = new nsUI::CU32SpinBox;
    adaptive->setMaximum(1000000);
    adaptive->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    adaptive->setValue(25000);
    //! [steps]
    keepRoom(plain, QStringLiteral("1000000"));
    keepRoom(adaptive, QStringLiteral("1000000"));
    sample->add(QT_TRANSLATE_NOOP("gallery", "Steps of 100"), plain);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Adaptive steps"), adaptive);
    return sample;
}

QWidget* makeStates()
{
    auto* sample = new Captioned;
    //! [states]
    auto* readOnly = new nsUI::CU16SpinBox;
    readOnly->setMaximum(0xFFFF);
    readOnly->setDisplayIntegerBase(16);
    readOnly->setValue(0x1D0F);
    readOnly->setReadOnly(true);

    auto* disabled = new nsUI::CU16SpinBox;
    disabled->setEnabled(false);

    auto* special = new nsUI::CU16SpinBox;
    special->setSpecialValueText(QStringLiteral("auto")); // for the minimum
    special->setValue(1);
    special->setValue(0); // a special text shows with the next change
    //! [states]
    for (auto* box : {readOnly, disabled, special}) {
        keepRoom(box, QStringLiteral("0000000"));
    }
    sample->add(QT_TRANSLATE_NOOP("gallery", "Read-only"), readOnly);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Disabled"), disabled);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Special value"), special);
    return sample;
}

} // namespace gallery
