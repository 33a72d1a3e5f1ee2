// SPDX-License-Identifier: MIT
#include "look/Access.h"

#include <QCoreApplication>

namespace registers {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("registers::Access", text);
}

void addAccessNote(QVector<Note>& notes, Access access)
{
    switch (access) {
    case Access::ReadOnly:
        notes.append({accessText(access), tr("It can be read, but not written."), Accent::Plain});
        break;
    case Access::WriteOnly:
        notes.append({accessText(access),
                      tr("It can only be written. What the device gives when it is read is not this value."),
                      Accent::Caution});
        break;
    case Access::WriteOnce:
        notes.append(
            {accessText(access), tr("Only the first write after a reset counts. It cannot be read."), Accent::Caution});
        break;
    case Access::ReadWriteOnce:
        notes.append({accessText(access), tr("It can be read, but only the first write after a reset counts."),
                      Accent::Caution});
        break;
    case Access::ReadWrite:
        notes.append({accessText(access), tr("It can be read and written."), Accent::Plain});
        break;
    }
}

Note readActionNote()
{
    return {tr("reading has side effects"), tr("Reading it changes something in the device."), Accent::Caution};
}

} // namespace

QString accessText(Access access)
{
    switch (access) {
    case Access::ReadOnly:
        return tr("read-only");
    case Access::WriteOnly:
        return tr("write-only");
    case Access::WriteOnce:
        return tr("write once");
    case Access::ReadWriteOnce:
        return tr("read, write once");
    case Access::ReadWrite:
        break;
    }
    return tr("read-write");
}

QVector<Note> registerNotes(const Register& reg)
{
    QVector<Note> notes;
    if (reg.access != Access::ReadWrite) {
        addAccessNote(notes, reg.access);
    }
    if (reg.hasReadAction) {
        notes.append(readActionNote());
    }
    return notes;
}

QVector<Note> fieldNotes(const Register& reg, const Field& field)
{
    QVector<Note> notes;
    if (field.access != reg.access) {
        addAccessNote(notes, field.access);
    }
    if (field.hasReadAction) {
        notes.append(readActionNote());
    }
    if (field.enumeration && field.enumeration->forWritingOnly) {
        notes.append({tr("names for writing"),
                      tr("The names tell what a written value does. A value that is read has no name."),
                      Accent::Plain});
    }
    if (usableWidth(reg, field) < field.width) {
        notes.append({tr("reaches beyond the register"),
                      tr("The description gives it more bits than the register has; those are left out."),
                      Accent::Caution});
    }
    return notes;
}

QString bitRangeText(int msb, int lsb)
{
    return msb == lsb ? QStringLiteral("[%1]").arg(lsb) : QStringLiteral("[%1:%2]").arg(msb).arg(lsb);
}

} // namespace registers
