// SPDX-License-Identifier: MIT
#include "cards/RoomKeeper.h"
#include "cards/TextLabel.h"
#include "samples/Samples.h"

#include <Tessera/CISpinBox/CI16SpinBox.h>
#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/CISpinBox/CI64SpinBox.h>
#include <Tessera/CISpinBox/CI8SpinBox.h>
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/CISpinBox/CU8SpinBox.h>

#include <QGridLayout>

#include <limits>

namespace gallery {

namespace {

constexpr int kMostBits =
    34; // that the column of base 2 has room for at least

//! [bases]
/// A box for all of its type, in a base of its own.
template <class Box, class Value>
Box* fullRangeBox(int base, const QString& prefix)
{
    auto* box = new Box;
    box->setRange(std::numeric_limits<Value>::min(),
                  std::numeric_limits<Value>::max());
    box->setPrefix(prefix);
    box->setDisplayIntegerBase(base);
    return box;
}

/// Lets two boxes show one number.
template <class Box>
void tie(Box* one, Box* other)
{
    QObject::connect(one, &Box::valueChanged, other, &Box::setValue);
    QObject::connect(other, &Box::valueChanged, one, &Box::setValue);
}
//! [bases]

/// One number in three bases.
template <class Box, class Value>
void addRow(QGridLayout* grid, const char* name, Value value)
{
    const int row = grid->rowCount();
    auto* decimal = fullRangeBox<Box, Value>(10, QString());
    auto* hexadecimal = fullRangeBox<Box, Value>(16, QStringLiteral("0x"));
    auto* binary = fullRangeBox<Box, Value>(2, QStringLiteral("0b"));
    tie(decimal, hexadecimal);
    tie(decimal, binary);
    decimal->setValue(value);

    constexpr int kBits = 8 * int(sizeof(Value));
    keepRoom(decimal, QString::number(std::numeric_limits<Value>::min()) +
                          QLatin1Char('0'));
    keepRoom(hexadecimal, QString(kBits / 4 + 2, QLatin1Char('0')));
    keepRoom(binary, QString(qMin(kBits + 2, kMostBits), QLatin1Char('0')));
    int column = 0;
    grid->addWidget(new TextLabel(QString::fromLatin1(name)), row, column);
    for (Box* box : {decimal, hexadecimal, binary}) {
        box->setAccessibleName(QStringLiteral("%1, %2").arg(
            QString::fromLatin1(name),
            QString::number(box->displayIntegerBase())));
        grid->addWidget(box, row, ++column);
    }
}

void addHeader(QGridLayout* grid)
{
    grid->addWidget(new TextLabel(QT_TRANSLATE_NOOP("gallery", "Base 10")), 0,
                    1);
    grid->addWidget(new TextLabel(QT_TRANSLATE_NOOP("gallery", "Base 16")), 0,
                    2);
    grid->addWidget(new TextLabel(QT_TRANSLATE_NOOP("gallery", "Base 2")), 0,
                    3);
}

} // namespace

QWidget* makeIntegerBases()
{
    auto* sample = new QWidget;
    auto* grid = new QGridLayout(sample);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(3, 1);
    addHeader(grid);
    addRow<nsUI::CI8SpinBox, signed char>(grid, "CI8SpinBox", -2);
    addRow<nsUI::CU8SpinBox, unsigned char>(grid, "CU8SpinBox", 0xA5);
    addRow<nsUI::CI16SpinBox, short>(grid, "CI16SpinBox", -2);
    addRow<nsUI::CU16SpinBox, unsigned short>(grid, "CU16SpinBox", 0xBEEF);
    addRow<nsUI::CI32SpinBox, int>(grid, "CI32SpinBox", -2);
    addRow<nsUI::CU32SpinBox, unsigned int>(grid, "CU32SpinBox", 0xC0FFEE42);
    addRow<nsUI::CI64SpinBox, qint64>(grid, "CI64SpinBox", 0x123456789AB);
    addRow<nsUI::CU64SpinBox, quint64>(grid, "CU64SpinBox", 0xC0FFEEC0FFEE);
    return sample;
}

} // namespace gallery
