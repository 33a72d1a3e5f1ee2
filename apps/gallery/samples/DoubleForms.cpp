// SPDX-License-Identifier: MIT
#include "cards/Captioned.h"
#include "cards/RoomKeeper.h"
#include "samples/Samples.h"

#include <Tessera/widgets/CDSpinBox.h>

namespace gallery {

namespace {

//! [formats]
nsUI::CDSpinBox* doubleBox(char format, int decimals)
{
    auto* box = new nsUI::CDSpinBox;
    box->setRange(-1e9, 1e9);
    box->setDecimals(decimals);
    // Before the value: a format shows with the next change.
    box->setFmtChar(QLatin1Char(format));
    box->setValue(12345.678);
    return box;
}
//! [formats]

} // namespace

QWidget* makeDoubleFormats()
{
    auto* sample = new Captioned;
    sample->add(QStringLiteral("'f', 3"), doubleBox('f', 3));
    sample->add(QStringLiteral("'e', 4"), doubleBox('e', 4));
    sample->add(QStringLiteral("'g', 6"), doubleBox('g', 6));
    const QList<QAbstractSpinBox*> boxes =
        sample->findChildren<QAbstractSpinBox*>();
    for (QAbstractSpinBox* box : boxes) {
        keepRoom(box, QStringLiteral("-1000000000.000"));
    }
    return sample;
}

QWidget* makeRatioStep()
{
    auto* sample = new Captioned;
    //! [ratio]
    auto* frequency = new nsUI::CDSpinBox;
    frequency->setRange(1, 1e6);
    frequency->setStepType(nsUI::CDSpinBox::RatioStepType);
    frequency->setSingleStep(0.5); // half as much again, or two thirds
    frequency->setValue(1000);
    //! [ratio]
    keepRoom(frequency, QStringLiteral("1000000.00"));
    sample->add(QT_TRANSLATE_NOOP("gallery", "Frequency in Hz"), frequency);
    return sample;
}

} // namespace gallery
