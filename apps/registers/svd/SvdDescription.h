// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"

#include <QString>

#include <deque>
#include <optional>
#include <vector>

// A description as the file states it, before derivation and expansion. Elements of one kind lie together in
// one store and refer to each other by their index in it, so reading makes few allocations, and a derived
// element shares what it takes from its base by naming the same indices.

namespace registers {

/// Where an element begins; both count from 1.
struct SvdPosition
{
    qint32 line = 0;
    qint32 column = 0;
};

struct SvdProblem
{
    SvdPosition position;
    QString message;
};

/// Some elements of a list, which follow one another.
struct RawRange
{
    qint32 first = 0;
    qint32 count = 0;

    qint32 end() const { return first + count; }
};

/// The properties that lower levels inherit.
struct RawProperties
{
    std::optional<quint64> size;
    std::optional<quint64> resetValue;
    std::optional<quint64> resetMask;
    std::optional<Access> access;
    SvdPosition sizePosition;
};

/// What turns an element into an array or a list.
struct RawDim
{
    std::optional<quint64> count;
    std::optional<quint64> increment;
    QString index;
    SvdPosition position;      ///< of <dim>, or without one of what stands for it
    SvdPosition indexPosition; ///< of <dimIndex>
};

enum class RawUsage : quint8 { Read, Write, ReadWrite };

struct RawEnumeration
{
    QString name;
    QString derivedFrom;
    SvdPosition position;
    std::optional<RawUsage> usage;
    qint32 field = -1; ///< the field it stands in
    RawRange values;   ///< into SvdDescription::enumValues
};

/// The bits of a field as far as they are stated; -1 where they are not.
struct RawBits
{
    qint32 lsb = -1;
    qint32 msb = -1;
    qint32 width = -1;
    bool lsbIsOffset = false; ///< from <bitOffset>, which goes with a width, not from <lsb>
};

struct RawField
{
    QString name;
    QString description;
    QString derivedFrom;
    SvdPosition position;
    RawBits bits;
    qint32 reg = -1;                ///< the register it stands in, a node
    qint32 dim = -1;                ///< into SvdDescription::dims
    RawRange enumerations;          ///< into SvdDescription::enumerations
    RawRange inheritedEnumerations; ///< those of the field that this one derives from
    std::optional<Access> access;
    bool hasReadAction = false;
    bool isLeftOut = false; ///< it makes no sense, and is not shown
};

/// A peripheral, a cluster or a register.
struct RawNode
{
    QString name;
    QString displayName;
    QString description;
    QString derivedFrom;
    std::optional<quint64> offset; ///< the base address of a peripheral
    RawProperties properties;
    SvdPosition position;
    qint32 parent = -1; ///< the node it stands in; -1 for a peripheral
    qint32 dim = -1;    ///< into SvdDescription::dims
    RawRange children;  ///< into SvdDescription::childIds
    RawRange fields;    ///< into SvdDescription::fieldIds
    NodeKind kind = NodeKind::Register;
    bool hasReadAction = false;
    bool isLeftOut = false; ///< it makes no sense, and is not shown, with all that stands in it
};

/// The name of the elements of a kind.
inline QLatin1String elementName(NodeKind kind)
{
    switch (kind) {
    case NodeKind::Peripheral:
        return QLatin1String("peripheral");
    case NodeKind::Cluster:
        return QLatin1String("cluster");
    default:
        return QLatin1String("register");
    }
}

struct SvdDescription
{
    QString name;
    QString description;
    QString vendor;
    QString version;
    RawProperties properties;
    RawRange peripherals; ///< into childIds

    // Deques, because they grow without moving what they hold.
    std::deque<RawNode> nodes;
    std::deque<RawField> fields;
    std::deque<RawEnumeration> enumerations;
    std::deque<RawDim> dims;
    std::vector<EnumValue> enumValues;

    // The lists that the ranges above point into: indices of nodes and of fields.
    std::vector<qint32> childIds;
    std::vector<qint32> fieldIds;

    RawNode& node(qint32 id) { return nodes[size_t(id)]; }
    const RawNode& node(qint32 id) const { return nodes[size_t(id)]; }
    RawField& field(qint32 id) { return fields[size_t(id)]; }
    const RawField& field(qint32 id) const { return fields[size_t(id)]; }
    RawEnumeration& enumeration(qint32 id) { return enumerations[size_t(id)]; }
    const RawEnumeration& enumeration(qint32 id) const { return enumerations[size_t(id)]; }
    RawDim& dim(qint32 id) { return dims[size_t(id)]; }
    const RawDim& dim(qint32 id) const { return dims[size_t(id)]; }
    qint32 childId(qint32 place) const { return childIds[size_t(place)]; }
    qint32 fieldId(qint32 place) const { return fieldIds[size_t(place)]; }
};

/// Clusters within clusters, and elements within elements, are refused beyond these depths.
constexpr int kMaxClusterDepth = 64;
constexpr int kMaxXmlDepth = 256;

/// A description that comes to more registers and clusters, or to more fields, is refused.
constexpr quint64 kMaxElements = 1000000;

} // namespace registers
