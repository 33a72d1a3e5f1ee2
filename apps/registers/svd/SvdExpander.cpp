// SPDX-License-Identifier: MIT
#include "svd/SvdExpander.h"

#include "svd/SvdProgressMeter.h"
#include "svd/SvdRemarks.h"
#include "text/Quoted.h"

#include <algorithm>
#include <utility>

namespace registers {

namespace {

constexpr quint64 kStepsPerTick = 256;
constexpr quint64 kDefaultSize = 32;
constexpr quint64 kMaxRegisterSize = 64;
constexpr quint64 kMaxLsb = 63;

/// What a node hands down: its own properties, and those of its parents where it has none.
RawProperties combined(const RawProperties& own, const RawProperties& inherited)
{
    RawProperties result = own;
    if (!result.size) {
        result.size = inherited.size;
        result.sizePosition = inherited.sizePosition;
    }
    result.resetValue = result.resetValue ? result.resetValue : inherited.resetValue;
    result.resetMask = result.resetMask ? result.resetMask : inherited.resetMask;
    result.access = result.access ? result.access : inherited.access;
    return result;
}

/// The text for one copy; most texts have no place for the index and stay shared.
QString copyText(const QString& text, const QString* index)
{
    return index && hasPlaceholder(text) ? withIndex(text, *index) : text;
}

RawUsage usageOf(const RawEnumeration& enumeration)
{
    return enumeration.usage.value_or(RawUsage::ReadWrite);
}

} // namespace

SvdExpander::SvdExpander(SvdDescription* description, SvdRemarks* remarks, SvdProgressMeter* meter)
    : m_description(*description)
    , m_remarks(*remarks)
    , m_meter(*meter)
    , m_dims(description->dims.size())
    , m_extents(description->nodes.size())
    , m_enumerations(description->enumerations.size())
{
}

bool SvdExpander::expand(Device* device)
{
    m_device = device;
    if (!prepareDims() || !measure()) {
        return false;
    }
    device->name = m_description.name;
    device->description = m_description.description;
    device->vendor = m_description.vendor;
    device->version = m_description.version;
    device->reserve(int(m_total.registers), int(m_total.nodes));
    Place place;
    place.inherited = m_description.properties;
    expandChildren(m_description.peripherals, place);
    return !m_isOver;
}

bool SvdExpander::prepareDims()
{
    for (qint32 id = 0; id < qint32(m_description.nodes.size()); ++id) {
        const RawNode& node = m_description.node(id);
        if (!node.isLeftOut) {
            prepareDim(node.dim, node.name, id, true);
        }
    }
    for (const RawField& field : m_description.fields) {
        if (!field.isLeftOut) {
            prepareDim(field.dim, field.name, field.reg, false);
        }
    }
    return !m_isOver;
}

void SvdExpander::prepareDim(qint32 dimId, const QString& name, qint32 node, bool needsIncrement)
{
    if (dimId < 0 || m_dims[size_t(dimId)]) {
        return;
    }
    const RawDim& dim = m_description.dim(dimId);
    const QString place = QStringLiteral("in the array %1 ").arg(quoted(name));
    SvdDimProblem problem;
    std::optional<SvdDimIndices> indices = SvdDimIndices::of(dim, &problem);
    if (!indices) {
        fail(problem.position, place + problem.found);
        return;
    }
    if (!problem.found.isEmpty()) {
        m_remarks.add(problem.position, place + problem.found, problem.taken, node);
    }
    if (needsIncrement && !dim.increment && indices->count() > 1) {
        m_remarks.add(dim.position, place + QStringLiteral("there is no <dimIncrement>, and one was expected"),
                      kOneCopy, node);
        indices->keepFirst();
    }
    m_dims[size_t(dimId)] = std::move(indices);
}

quint64 SvdExpander::copiesOf(qint32 dim) const
{
    return dim < 0 ? 1 : m_dims[size_t(dim)]->count();
}

bool SvdExpander::measure()
{
    const RawRange peripherals = m_description.peripherals;
    for (qint32 i = peripherals.first; i < peripherals.end() && !m_isOver; ++i) {
        const qint32 id = m_description.childId(i);
        add(&m_total, extentOf(id));
        checkExtent(m_total, m_description.node(id).position);
    }
    return !m_isOver;
}

const SvdExpander::Extent& SvdExpander::extentOf(qint32 id)
{
    Extent& extent = m_extents[size_t(id)];
    if (extent.isKnown || m_isOver) {
        return extent;
    }
    const RawNode& node = m_description.node(id);
    if (node.isLeftOut) {
        extent.isKnown = true;
        return extent;
    }
    Extent one;
    one.nodes = 1;
    if (node.kind == NodeKind::Register) {
        one.registers = 1;
        one.fields = fieldCountOf(node);
    }
    for (qint32 i = node.children.first; i < node.children.end() && !m_isOver; ++i) {
        add(&one, extentOf(m_description.childId(i)));
    }
    checkExtent(one, node.position);
    const quint64 copies = copiesOf(node.dim);
    extent = {one.nodes * copies, one.registers * copies, one.fields * copies, true};
    checkExtent(extent, node.position);
    return extent;
}

quint64 SvdExpander::fieldCountOf(const RawNode& reg) const
{
    quint64 count = 0;
    for (qint32 i = reg.fields.first; i < reg.fields.end(); ++i) {
        const RawField& field = m_description.field(m_description.fieldId(i));
        count += field.isLeftOut ? 0 : copiesOf(field.dim);
    }
    return count;
}

void SvdExpander::add(Extent* sum, const Extent& part)
{
    sum->nodes += part.nodes;
    sum->registers += part.registers;
    sum->fields += part.fields;
}

void SvdExpander::checkExtent(const Extent& extent, const SvdPosition& position)
{
    if (extent.nodes > kMaxElements || extent.fields > kMaxElements) {
        fail(position, QStringLiteral("with all copies of arrays this comes to %1 registers and clusters and %2 "
                                      "fields, and at most %3 of each were expected")
                           .arg(extent.nodes)
                           .arg(extent.fields)
                           .arg(kMaxElements));
    }
}

void SvdExpander::expandChildren(RawRange children, const Place& place)
{
    for (qint32 i = children.first; i < children.end() && !m_isOver; ++i) {
        expandNode(m_description.node(m_description.childId(i)), place);
    }
}

void SvdExpander::expandNode(const RawNode& node, const Place& place)
{
    if (node.isLeftOut) {
        return;
    }
    if (node.dim < 0) {
        expandCopy(node, place, nullptr, 0);
        return;
    }
    const SvdDimIndices& indices = *m_dims[size_t(node.dim)];
    for (quint64 i = 0; i < indices.count() && !m_isOver; ++i) {
        const QString index = indices.at(i);
        expandCopy(node, place, &index, i);
    }
}

void SvdExpander::expandCopy(const RawNode& node, const Place& place, const QString* index, quint64 number)
{
    tick();
    const quint64 increment = node.dim < 0 ? 0 : m_description.dim(node.dim).increment.value_or(0);
    Register reg;
    reg.name = index ? copyName(node.name, *index, copiesOf(node.dim)) : node.name;
    reg.description = copyText(node.description, index);
    reg.address = place.address + node.offset.value_or(0) + number * increment;
    reg.path = place.path.isEmpty() ? reg.name : place.path + QLatin1Char('.') + reg.name;
    const RawProperties properties = combined(node.properties, place.inherited);
    if (node.kind == NodeKind::Register) {
        reg.displayName = copyText(node.displayName, index);
        expandRegister(node, place, std::move(reg), properties);
        return;
    }
    Place below;
    below.treeNode = m_device->addGroup(place.treeNode, node.kind, reg.name, reg.description, reg.address);
    below.path = reg.path;
    below.address = reg.address;
    below.inherited = properties;
    expandChildren(node.children, below);
}

void SvdExpander::expandRegister(const RawNode& node, const Place& place, Register&& reg,
                                 const RawProperties& properties)
{
    const quint64 size = properties.size.value_or(kDefaultSize);
    if (size < 1 || size > kMaxRegisterSize) {
        fail(properties.sizePosition, QStringLiteral("the register %1 has %2 bits, and a <size> of 1 to %3 was "
                                                     "expected")
                                          .arg(quoted(reg.path))
                                          .arg(size)
                                          .arg(kMaxRegisterSize));
        return;
    }
    reg.size = quint8(size);
    reg.access = properties.access.value_or(Access::ReadWrite);
    reg.resetValue = properties.resetValue.value_or(0) & reg.valueMask();
    reg.resetMask = properties.resetMask.value_or(~quint64(0)) & reg.valueMask();
    reg.fields = fieldsOf(node.fields, reg);
    reg.hasReadAction = node.hasReadAction || std::any_of(reg.fields.cbegin(), reg.fields.cend(),
                                                          [](const Field& field) { return field.hasReadAction; });
    m_device->addRegister(place.treeNode, std::move(reg));
}

/// The fields of a register, made once for all the registers that share them.
const QVector<Field>& SvdExpander::fieldsOf(RawRange range, const Register& reg)
{
    static const QVector<Field> none;
    if (range.count == 0) {
        return none;
    }
    const quint64 key = (quint64(range.first) * kAccessCount + quint64(reg.access)) * (kMaxRegisterSize + 1) + reg.size;
    const auto known = m_fields.constFind(key);
    if (known != m_fields.constEnd()) {
        return *known;
    }
    QVector<Field> fields;
    fields.reserve(range.count);
    for (qint32 i = range.first; i < range.end() && !m_isOver; ++i) {
        expandField(m_description.fieldId(i), reg, &fields);
    }
    return *m_fields.insert(key, fields);
}

void SvdExpander::expandField(qint32 id, const Register& reg, QVector<Field>* fields)
{
    const RawField& raw = m_description.field(id);
    if (raw.isLeftOut) {
        return;
    }
    Field field;
    field.enumeration = enumerationOf(raw);
    field.access = raw.access.value_or(reg.access);
    field.hasReadAction = raw.hasReadAction;
    field.width = quint8(raw.bits.width);
    const quint64 copies = copiesOf(raw.dim);
    const quint64 increment = raw.dim < 0 ? 0 : m_description.dim(raw.dim).increment.value_or(quint64(raw.bits.width));
    for (quint64 i = 0; i < copies; ++i) {
        const QString index = raw.dim < 0 ? QString() : m_dims[size_t(raw.dim)]->at(i);
        const QString* const copyIndex = raw.dim < 0 ? nullptr : &index;
        field.name = copyIndex ? copyName(raw.name, index, copies) : raw.name;
        field.description = copyText(raw.description, copyIndex);
        // A larger increment than this leaves the register at once; it must not wrap around into it.
        const quint64 lsb = quint64(raw.bits.lsb) + i * std::min(increment, kMaxLsb + 1);
        if (lsb >= reg.size) {
            remarkOutside(id, field, lsb, reg);
            return;
        }
        field.lsb = quint8(lsb);
        fields->append(field);
    }
}

/// Said once of a field, however many registers share it.
void SvdExpander::remarkOutside(qint32 id, const Field& field, quint64 lsb, const Register& reg)
{
    if (m_outside.contains(id)) {
        return;
    }
    m_outside.insert(id);
    const RawField& raw = m_description.field(id);
    m_remarks.add(raw.position,
                  QStringLiteral("the field %1 begins at bit %2, and a bit from 0 to %3 was expected")
                      .arg(quoted(field.name))
                      .arg(lsb)
                      .arg(reg.size - 1),
                  raw.dim < 0 ? kFieldLeftOut : "this copy and those behind it are left out", raw.reg);
}

/// The first of the enumerations that is for @p wanted, or -1.
qint32 SvdExpander::enumerationFor(RawUsage wanted, RawRange enumerations) const
{
    for (qint32 id = enumerations.first; id < enumerations.end(); ++id) {
        if (usageOf(m_description.enumeration(id)) == wanted) {
            return id;
        }
    }
    return -1;
}

/// The values that a field is shown with: those for reading if there are any, else those for both, else those
/// for writing. What the field has of its own comes before what its base has for the same use.
QSharedPointer<const Enumeration> SvdExpander::enumerationOf(const RawField& raw)
{
    qint32 chosen = -1;
    for (const RawRange enumerations : {raw.enumerations, raw.inheritedEnumerations}) {
        for (const RawUsage wanted : {RawUsage::Read, RawUsage::ReadWrite}) {
            chosen = chosen < 0 ? enumerationFor(wanted, enumerations) : chosen;
        }
    }
    chosen = chosen < 0 ? enumerationFor(RawUsage::Write, raw.enumerations) : chosen;
    if (chosen < 0) {
        return {};
    }
    QSharedPointer<const Enumeration>& made = m_enumerations[size_t(chosen)];
    if (!made) {
        made = makeEnumeration(m_description.enumeration(chosen));
    }
    return made;
}

QSharedPointer<const Enumeration> SvdExpander::makeEnumeration(const RawEnumeration& raw) const
{
    const auto enumeration = QSharedPointer<Enumeration>::create();
    enumeration->name = raw.name;
    enumeration->forWritingOnly = usageOf(raw) == RawUsage::Write;
    enumeration->values.reserve(raw.values.count);
    for (qint32 i = raw.values.first; i < raw.values.end(); ++i) {
        enumeration->values.append(m_description.enumValues[size_t(i)]);
    }
    return enumeration;
}

void SvdExpander::tick()
{
    if (++m_steps % kStepsPerTick == 0 && !m_meter.expanded(qint64(m_steps), qint64(m_total.nodes))) {
        m_isOver = true;
    }
}

void SvdExpander::fail(const SvdPosition& position, const QString& message)
{
    if (!m_isOver) {
        m_isOver = true;
        m_problem = SvdProblem{position, message};
    }
}

} // namespace registers
