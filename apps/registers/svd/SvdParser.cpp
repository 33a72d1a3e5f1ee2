// SPDX-License-Identifier: MIT
#include "svd/SvdParser.h"

#include "svd/SvdDim.h"
#include "svd/SvdNumber.h"
#include "svd/SvdProgressMeter.h"
#include "text/Quoted.h"

#include <utility>

namespace registers {

bool SvdParser::parse(SvdDescription* description)
{
    m_out = description;
    findRoot();
    if (!isOver()) {
        const SvdPosition begin = childPosition();
        parseDevice();
        readToEnd();
        if (m_out->peripherals.count == 0) {
            fail(begin, QStringLiteral("this <device> has no <peripheral>, and at least one was expected in it"));
        }
    }
    return !isOver();
}

void SvdParser::parseDevice()
{
    const SvdPosition begin = childPosition();
    Children peripherals;
    while (nextChild()) {
        const SvdTag tag = childTag();
        switch (tag) {
        case SvdTag::Name:
            m_out->name = readName();
            break;
        case SvdTag::Description:
            m_out->description = readDescription();
            break;
        case SvdTag::Vendor:
            m_out->vendor = readName();
            break;
        case SvdTag::Version:
            m_out->version = readName();
            break;
        case SvdTag::Peripherals:
            parsePeripherals(&peripherals);
            break;
        default:
            if (!parseProperty(tag, &m_out->properties)) {
                skipElement();
            }
        }
    }
    m_out->peripherals = storeChildren(peripherals);
    if (m_out->name.isEmpty()) {
        remark(begin, QStringLiteral("this <device> has no name, and a <name> was expected in it"), "it stays without");
    }
}

void SvdParser::parsePeripherals(Children* peripherals)
{
    while (nextChild()) {
        if (childTag() == SvdTag::Peripheral) {
            peripherals->push_back(parseNode(NodeKind::Peripheral, -1, 0));
        } else {
            skipElement();
        }
    }
}

qint32 SvdParser::parseNode(NodeKind kind, qint32 parent, int clusterDepth)
{
    const qint32 id = qint32(m_out->nodes.size());
    RawNode& node = m_out->nodes.emplace_back();
    node.kind = kind;
    node.parent = parent;
    node.position = childPosition();
    node.derivedFrom = readReference();
    node.fields.first = qint32(m_out->fieldIds.size());
    if (clusterDepth > kMaxClusterDepth) {
        fail(childPosition(), QStringLiteral("clusters are nested more than %1 deep").arg(kMaxClusterDepth));
    }
    const qint32 outer = presentNode();
    setPresentNode(id);
    Children children;
    while (nextChild()) {
        parseNodeChild(id, childTag(), &children, clusterDepth);
    }
    setPresentNode(outer);
    node.children = storeChildren(children);
    if (kind == NodeKind::Register) {
        node.fields.count = qint32(m_out->fieldIds.size()) - node.fields.first;
    }
    return id;
}

void SvdParser::parseNodeChild(qint32 id, SvdTag tag, Children* children, int clusterDepth)
{
    RawNode& node = m_out->node(id);
    const bool isGroup = node.kind != NodeKind::Register;
    if (tag == SvdTag::Name) {
        node.name = readName();
    } else if (tag == SvdTag::DisplayName) {
        node.displayName = readName();
    } else if (tag == SvdTag::Description) {
        node.description = readDescription();
    } else if (tag == SvdTag::BaseAddress || tag == SvdTag::AddressOffset) {
        node.offset = readNumber(leftOut(node.kind));
        node.isLeftOut = node.isLeftOut || !node.offset;
    } else if (tag == SvdTag::ReadAction && !isGroup) {
        node.hasReadAction = readReadAction();
    } else if (tag == SvdTag::Fields && !isGroup) {
        parseFields(id);
    } else if (tag == SvdTag::Registers && isGroup) {
        parseRegisters(id, children, clusterDepth);
    } else if (tag == SvdTag::Register && node.kind == NodeKind::Cluster) {
        children->push_back(parseNode(NodeKind::Register, id, clusterDepth));
    } else if (tag == SvdTag::Cluster && node.kind == NodeKind::Cluster) {
        children->push_back(parseNode(NodeKind::Cluster, id, clusterDepth + 1));
    } else if (!parseProperty(tag, &node.properties) && !parseDim(tag, &node.dim)) {
        skipElement();
    }
}

void SvdParser::parseRegisters(qint32 parent, Children* children, int clusterDepth)
{
    while (nextChild()) {
        const SvdTag tag = childTag();
        if (tag == SvdTag::Register) {
            children->push_back(parseNode(NodeKind::Register, parent, clusterDepth));
        } else if (tag == SvdTag::Cluster) {
            children->push_back(parseNode(NodeKind::Cluster, parent, clusterDepth + 1));
        } else {
            skipElement();
        }
    }
}

void SvdParser::parseFields(qint32 reg)
{
    while (nextChild()) {
        if (childTag() == SvdTag::Field) {
            parseField(reg);
        } else {
            skipElement();
        }
    }
}

void SvdParser::parseField(qint32 reg)
{
    const qint32 id = qint32(m_out->fields.size());
    RawField& field = m_out->fields.emplace_back();
    m_out->fieldIds.push_back(id);
    field.reg = reg;
    field.position = childPosition();
    field.derivedFrom = readReference();
    field.enumerations.first = qint32(m_out->enumerations.size());
    while (nextChild()) {
        const SvdTag tag = childTag();
        switch (tag) {
        case SvdTag::Name:
            field.name = readName();
            break;
        case SvdTag::Description:
            field.description = readDescription();
            break;
        case SvdTag::Access:
            field.access = readAccess();
            break;
        case SvdTag::ReadAction:
            field.hasReadAction = readReadAction();
            break;
        case SvdTag::EnumeratedValues:
            parseEnumeration(id);
            break;
        default:
            if (!parseFieldBits(tag, &field) && !parseDim(tag, &field.dim)) {
                skipElement();
            }
        }
    }
    field.enumerations.count = qint32(m_out->enumerations.size()) - field.enumerations.first;
}

bool SvdParser::parseFieldBits(SvdTag tag, RawField* field)
{
    RawBits& bits = field->bits;
    bool isReadable = true;
    switch (tag) {
    case SvdTag::BitOffset:
    case SvdTag::Lsb:
        bits.lsb = readBit(kBitLimit - 1);
        bits.lsbIsOffset = tag == SvdTag::BitOffset;
        isReadable = bits.lsb >= 0;
        break;
    case SvdTag::Msb:
        bits.msb = readBit(2 * kBitLimit - 2);
        isReadable = bits.msb >= 0;
        break;
    case SvdTag::BitWidth:
        bits.width = readWidth();
        isReadable = bits.width >= 0;
        break;
    case SvdTag::BitRange:
        isReadable = readBitRange(&bits);
        break;
    default:
        return false;
    }
    field->isLeftOut = field->isLeftOut || !isReadable;
    return true;
}

void SvdParser::parseEnumeration(qint32 field)
{
    RawEnumeration& enumeration = m_out->enumerations.emplace_back();
    enumeration.field = field;
    enumeration.position = childPosition();
    enumeration.derivedFrom = readReference();
    enumeration.values.first = qint32(m_out->enumValues.size());
    while (nextChild()) {
        switch (childTag()) {
        case SvdTag::Name:
            enumeration.name = readName();
            break;
        case SvdTag::Usage:
            enumeration.usage = readUsage();
            break;
        case SvdTag::EnumeratedValue:
            parseEnumValue();
            break;
        default:
            skipElement();
        }
    }
    enumeration.values.count = qint32(m_out->enumValues.size()) - enumeration.values.first;
}

void SvdParser::parseEnumValue()
{
    EnumValue entry;
    entry.hasValue = false;
    QString valueText;
    bool isReadable = true;
    while (nextChild()) {
        switch (childTag()) {
        case SvdTag::Name:
            entry.name = readName();
            break;
        case SvdTag::Description:
            entry.description = readDescription();
            break;
        case SvdTag::IsDefault:
            entry.isDefault = readBool();
            break;
        case SvdTag::Value: {
            const std::optional<MaskedNumber> number = parseSvdMaskedNumber(readText());
            if (!number) {
                remarkOnText(QStringLiteral("a number such as 2, 0x2, #10 or #1x"), "the name is left out");
                isReadable = false;
                break;
            }
            entry.hasValue = true;
            entry.value = number->value;
            entry.mask = number->mask;
            valueText = lastText();
            break;
        }
        default:
            skipElement();
        }
    }
    // Vendors list reserved values without saying which they are: such an entry names nothing.
    if (!isReadable || (!entry.hasValue && !entry.isDefault)) {
        return;
    }
    if (entry.name.isEmpty()) {
        entry.name = entry.hasValue ? valueText : QStringLiteral("default");
    }
    m_out->enumValues.push_back(std::move(entry));
}

bool SvdParser::parseProperty(SvdTag tag, RawProperties* properties)
{
    switch (tag) {
    case SvdTag::Size:
        properties->sizePosition = childPosition();
        properties->size = readNumber(kInherited, 1);
        return true;
    case SvdTag::Access:
        properties->access = readAccess();
        return true;
    case SvdTag::ResetValue:
        properties->resetValue = readNumber(kInherited);
        return true;
    case SvdTag::ResetMask:
        properties->resetMask = readNumber(kInherited);
        return true;
    default:
        return false;
    }
}

bool SvdParser::parseDim(SvdTag tag, qint32* dim)
{
    if (tag != SvdTag::Dim && tag != SvdTag::DimIncrement && tag != SvdTag::DimIndex) {
        return false;
    }
    if (*dim < 0) {
        *dim = qint32(m_out->dims.size());
        m_out->dims.emplace_back().position = childPosition();
    }
    RawDim& raw = m_out->dim(*dim);
    if (tag == SvdTag::Dim) {
        raw.position = childPosition();
        raw.count = readNumber(kOneCopy, 1).value_or(1);
    } else if (tag == SvdTag::DimIncrement) {
        raw.increment = readNumber(kNotSaid);
    } else {
        raw.indexPosition = childPosition();
        raw.index = readName();
    }
    return true;
}

RawRange SvdParser::storeChildren(const Children& children)
{
    const RawRange range{qint32(m_out->childIds.size()), qint32(children.size())};
    m_out->childIds.insert(m_out->childIds.end(), children.cbegin(), children.cend());
    return range;
}

} // namespace registers
