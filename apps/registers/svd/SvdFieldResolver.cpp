// SPDX-License-Identifier: MIT
#include "svd/SvdFieldResolver.h"

#include "svd/SvdDim.h"
#include "svd/SvdMerge.h"
#include "svd/SvdProgressMeter.h"
#include "svd/SvdRemarks.h"
#include "text/Quoted.h"

#include <algorithm>
#include <utility>

namespace registers {

namespace {

constexpr qint32 kElementsPerTick = 512;
constexpr int kMaxReferenceDepth = 100;
constexpr qint32 kMaxFieldWidth = 64;

/// How wide a field is, or nothing when it is not said. @p bits has its lsb already.
std::optional<qint32> widthOf(const RawBits& bits, bool hasOwnLsb, const RawField* base)
{
    if (bits.msb >= 0) {
        return bits.msb - bits.lsb + 1;
    }
    if (bits.width >= 0) {
        return bits.width;
    }
    if (base) {
        if (base->bits.width < 0) {
            return std::nullopt; // it is left out
        }
        // An own <lsb> stays paired with the base's msb, an own <bitOffset> with its width.
        const bool keepsMsb = hasOwnLsb && !bits.lsbIsOffset;
        return keepsMsb ? base->bits.lsb + base->bits.width - bits.lsb : base->bits.width;
    }
    return bits.lsbIsOffset ? std::optional<qint32>(1) : std::nullopt;
}

} // namespace

SvdFieldResolver::SvdFieldResolver(SvdDescription* description, SvdNodeResolver* nodes, SvdRemarks* remarks,
                                   SvdProgressMeter* meter)
    : m_description(*description)
    , m_nodes(*nodes)
    , m_remarks(*remarks)
    , m_meter(*meter)
    , m_fieldStates(description->fields.size(), SvdDerivationState::Open)
{
}

bool SvdFieldResolver::resolve()
{
    const qint32 fieldCount = qint32(m_description.fields.size());
    for (qint32 id = 0; id < fieldCount; ++id) {
        if (!resolveField(id) || (id % kElementsPerTick == 0 && !m_meter.expanded(0, 1))) {
            return false;
        }
    }
    return true;
}

bool SvdFieldResolver::resolveField(qint32 id)
{
    if (m_fieldStates[size_t(id)] == SvdDerivationState::Done) {
        return true;
    }
    const auto cycle = [this](qint32 at) { remarkReference(at, true); };
    if (++m_depth > kMaxReferenceDepth) {
        fail(m_description.field(id).position,
             QStringLiteral("references lead through more than %1 elements that are derived themselves")
                 .arg(kMaxReferenceDepth));
    }
    const auto base = [this](qint32 at) { return fieldBaseOf(at); };
    const auto merge = [this](qint32 at, qint32 baseId) { return mergeField(at, baseId); };
    const bool isResolved = !m_problem && followDerivation(id, &m_fieldStates, base, merge, cycle);
    --m_depth;
    return isResolved;
}

std::optional<qint32> SvdFieldResolver::fieldBaseOf(qint32 id)
{
    const RawField& field = m_description.field(id);
    if (field.derivedFrom.isEmpty()) {
        return kNoBase;
    }
    const qint32 base = findFieldBase(id, id);
    if (m_problem || m_nodes.problem()) {
        return std::nullopt;
    }
    if (base != kNotFound) {
        return base;
    }
    remarkReference(id, findFieldBase(id, kNotFound) == id);
    return kNoBase;
}

qint32 SvdFieldResolver::findFieldBase(qint32 id, qint32 except)
{
    const RawField& field = m_description.field(id);
    const qint32 sibling = fieldNamed(field.reg, field.derivedFrom, except);
    if (sibling != kNotFound || m_problem) {
        return sibling;
    }
    const QStringList path = field.derivedFrom.split(QLatin1Char('.'));
    qint32 found = fieldAt(kDeviceScope, path, except);
    for (qint32 scope = m_description.node(field.reg).parent; found == kNotFound && scope != kDeviceScope;
         scope = m_description.node(scope).parent) {
        found = fieldAt(scope, path, except);
    }
    return found;
}

/// The field at a path below @p scope: nodes, the last of which is a register, and the field's name.
qint32 SvdFieldResolver::fieldAt(qint32 scope, const QStringList& path, qint32 except)
{
    const qint32 reg = registerAt(scope, path.mid(0, path.size() - 1));
    return reg == kNotFound ? kNotFound : fieldNamed(reg, path.constLast(), except);
}

qint32 SvdFieldResolver::fieldNamed(qint32 reg, const QString& name, qint32 except)
{
    const SvdNameIndex& index = indexOf(reg);
    const QVector<qint32> named = index.named(name);
    const auto exact = std::find_if(named.cbegin(), named.cend(), [except](qint32 id) { return id != except; });
    if (exact != named.cend()) {
        return *exact;
    }
    const std::vector<qint32> arrays = index.arraysFor(name);
    const auto found =
        std::find_if(arrays.cbegin(), arrays.cend(), [&](qint32 id) { return id != except && isCopyOf(id, name); });
    return found == arrays.cend() ? kNotFound : *found;
}

const SvdNameIndex& SvdFieldResolver::indexOf(qint32 reg)
{
    const auto known = m_indices.find(reg);
    if (known != m_indices.end()) {
        return known->second;
    }
    SvdNameIndex index;
    const RawRange fields = m_description.node(reg).fields;
    for (qint32 i = fields.first; i < fields.end(); ++i) {
        const qint32 id = m_description.fieldId(i);
        const RawField& field = m_description.field(id);
        index.add(field.name, field.dim >= 0, id);
    }
    return m_indices.emplace(reg, std::move(index)).first->second;
}

/// True when one of the copies of the array @p id is called @p name.
bool SvdFieldResolver::isCopyOf(qint32 id, const QString& name)
{
    const RawField& field = m_description.field(id);
    const bool isBusy = m_fieldStates[size_t(id)] == SvdDerivationState::Busy;
    if ((!isBusy && !resolveField(id)) || field.dim < 0) {
        return false;
    }
    return isCopyName(m_description.dim(field.dim), field.name, name);
}

bool SvdFieldResolver::mergeField(qint32 id, qint32 baseId)
{
    RawField& field = m_description.field(id);
    const RawField* const base = baseId == kNoBase ? nullptr : &m_description.field(baseId);
    completeName(&field, base);
    if (base) {
        field.description = field.description.isEmpty() ? base->description : field.description;
        field.access = field.access ? field.access : base->access;
        field.hasReadAction = field.hasReadAction || base->hasReadAction;
        field.inheritedEnumerations = base->enumerations.count > 0 ? base->enumerations : base->inheritedEnumerations;
        if (field.enumerations.count == 0) {
            field.enumerations = field.inheritedEnumerations;
        }
        if (hasPlaceholder(field.name)) {
            field.dim = inheritedDim(&m_description, field.dim, base->dim);
        }
    }
    completeBits(&field, base);
    return true;
}

void SvdFieldResolver::completeName(RawField* field, const RawField* base)
{
    if (!field->name.isEmpty()) {
        return;
    }
    if (base) {
        field->name = base->name;
    }
    const bool isNamed = !field->name.isEmpty();
    m_remarks.add(field->position, QStringLiteral("this <field> has no name, and a <name> was expected in it"),
                  isNamed ? kNameOfBase : kFieldLeftOut, field->reg);
    field->isLeftOut = field->isLeftOut || !isNamed;
}

/// Brings the three ways of stating bits to one: lsb and width. A field that states none has neither afterwards.
void SvdFieldResolver::completeBits(RawField* field, const RawField* base)
{
    const QString problem = field->isLeftOut ? QString() : problemOfBits(field, base);
    if (!problem.isEmpty()) {
        m_remarks.add(field->position, problem, kFieldLeftOut, field->reg);
        field->isLeftOut = true;
    }
    if (field->isLeftOut) {
        field->bits = RawBits();
    }
}

/// As completeBits(); says what is wrong with the bits, or nothing.
QString SvdFieldResolver::problemOfBits(RawField* field, const RawField* base)
{
    RawBits& bits = field->bits;
    const bool hasOwnLsb = bits.lsb >= 0;
    if (!hasOwnLsb && base) {
        bits.lsb = base->bits.lsb;
    }
    const std::optional<qint32> width = bits.lsb >= 0 ? widthOf(bits, hasOwnLsb, base) : std::nullopt;
    if (!width) {
        return QStringLiteral("the field %1 does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or "
                              "<bitRange> was expected in it")
            .arg(quoted(field->name));
    }
    if (*width < 1 || *width > kMaxFieldWidth) {
        return QStringLiteral("the field %1 is %2 bits wide, and 1 to %3 bits were expected, with the msb not below "
                              "the lsb")
            .arg(quoted(field->name))
            .arg(*width)
            .arg(kMaxFieldWidth);
    }
    bits.width = *width;
    bits.msb = -1;
    return QString();
}

qint32 SvdFieldResolver::registerAt(qint32 scope, const QStringList& path)
{
    return path.isEmpty() ? kNotFound : m_nodes.nodeAt(scope, path, NodeKind::Register);
}

void SvdFieldResolver::remarkReference(qint32 id, bool isCycle)
{
    const RawField& field = m_description.field(id);
    m_remarks.add(field.position,
                  isCycle ? cyclicReference(field.derivedFrom)
                          : deadReference(field.derivedFrom, QLatin1String("field")),
                  kNotSaid, field.reg);
}

void SvdFieldResolver::fail(const SvdPosition& position, const QString& message)
{
    if (!m_problem) {
        m_problem = SvdProblem{position, message};
    }
}

} // namespace registers
