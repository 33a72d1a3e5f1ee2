// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "look/Theme.h"

#include <QString>
#include <QVector>

namespace registers {

/// Something to know before reading or writing: a few words, and a sentence for the tool tip.
struct Note
{
    QString text;
    QString explanation;
    Accent accent = Accent::Plain;
};

/// The access in words, such as "read-write".
QString accessText(Access access);

/// What is special about a register; nothing for a plain one that is read and written.
QVector<Note> registerNotes(const Register& reg);

/// What is special about a field. An access that the register has as well is not repeated.
QVector<Note> fieldNotes(const Register& reg, const Field& field);

/// Such as "[7:4]", or "[3]" for a single bit.
QString bitRangeText(int msb, int lsb);

} // namespace registers
