// SPDX-License-Identifier: MIT
#include "svd/SvdTag.h"

#include <array>

namespace registers {

namespace {

struct TagName
{
    const char* name; ///< in lower case
    SvdTag tag;
};

constexpr TagName kTagNames[] = {
    {"access", SvdTag::Access},
    {"addressoffset", SvdTag::AddressOffset},
    {"baseaddress", SvdTag::BaseAddress},
    {"bitoffset", SvdTag::BitOffset},
    {"bitrange", SvdTag::BitRange},
    {"bitwidth", SvdTag::BitWidth},
    {"cluster", SvdTag::Cluster},
    {"description", SvdTag::Description},
    {"device", SvdTag::Device},
    {"dim", SvdTag::Dim},
    {"dimincrement", SvdTag::DimIncrement},
    {"dimindex", SvdTag::DimIndex},
    {"displayname", SvdTag::DisplayName},
    {"enumeratedvalue", SvdTag::EnumeratedValue},
    {"enumeratedvalues", SvdTag::EnumeratedValues},
    {"field", SvdTag::Field},
    {"fields", SvdTag::Fields},
    {"isdefault", SvdTag::IsDefault},
    {"lsb", SvdTag::Lsb},
    {"msb", SvdTag::Msb},
    {"name", SvdTag::Name},
    {"peripheral", SvdTag::Peripheral},
    {"peripherals", SvdTag::Peripherals},
    {"readaction", SvdTag::ReadAction},
    {"register", SvdTag::Register},
    {"registers", SvdTag::Registers},
    {"resetmask", SvdTag::ResetMask},
    {"resetvalue", SvdTag::ResetValue},
    {"size", SvdTag::Size},
    {"usage", SvdTag::Usage},
    {"value", SvdTag::Value},
    {"vendor", SvdTag::Vendor},
    {"version", SvdTag::Version},
};

constexpr size_t kSlotCount = 128; // a power of two, and sparse, so that most look-ups need one step

constexpr quint32 addToHash(quint32 hash, quint32 code)
{
    // Setting this bit makes the two cases of a letter equal; what else it makes equal, comparing tells.
    return (hash ^ (code | 0x20)) * 16777619u;
}

constexpr size_t slotOf(quint32 hash)
{
    return (hash ^ (hash >> 15)) & (kSlotCount - 1);
}

struct SlotTable
{
    std::array<qint8, kSlotCount> slots{}; ///< 1 + an index of kTagNames; 0 is free

    constexpr SlotTable()
    {
        qint8 number = 1;
        for (const TagName& entry : kTagNames) {
            quint32 hash = 0;
            for (const char* c = entry.name; *c != '\0'; ++c) {
                hash = addToHash(hash, quint32(*c));
            }
            size_t slot = slotOf(hash);
            while (slots[slot] != 0) {
                slot = (slot + 1) % kSlotCount;
            }
            slots[slot] = number++;
        }
    }
};

constexpr SlotTable kTable;

bool matches(QStringView name, const char* lowerCaseName)
{
    for (const QChar c : name) {
        const char16_t code = c.unicode();
        const char16_t lower = code >= u'A' && code <= u'Z' ? char16_t(code | 0x20) : code;
        if (*lowerCaseName == '\0' || lower != char16_t(*lowerCaseName)) {
            return false;
        }
        ++lowerCaseName;
    }
    return *lowerCaseName == '\0';
}

} // namespace

SvdTag svdTag(QStringView name)
{
    quint32 hash = 0;
    for (const QChar c : name) {
        hash = addToHash(hash, c.unicode());
    }
    for (size_t slot = slotOf(hash); kTable.slots[slot] != 0; slot = (slot + 1) % kSlotCount) {
        const TagName& entry = kTagNames[kTable.slots[slot] - 1];
        if (matches(name, entry.name)) {
            return entry.tag;
        }
    }
    return SvdTag::Other;
}

} // namespace registers
