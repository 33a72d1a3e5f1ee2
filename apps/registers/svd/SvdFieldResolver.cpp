// SPDX-License-Identifier: MIT
#include "svd/SvdFieldResolver.h"

#include "svd/SvdDim.h"
#include "svd/SvdMerge.h"
#include "svd/SvdProgressMeter.h"
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
        // An own <lsb> stays paired with the base's msb, an own <bitOffset> with its width.
        const bool keepsMsb = hasOwnLsb && !bits.lsbIsOffset;
        return keepsMsb ? base->bits.lsb + base->bits.width - bits.lsb : base->bits.width;
    }
    return bits.lsbIsOffset ? std::optional<qint32>(1) : std::nullopt;
}

} // namespace

SvdFieldResolver::SvdFieldResolver(SvdDescription* description, SvdNodeResolver* nodes, SvdProgressMeter* meter)
    : m_description(*description)
    , m_nodes(*nodes)
    , m_meter(*meter)
    , m_enumerations(description, nodes)
    , m_fieldStates(description->fields.size(), SvdDerivationState::Open)
    , m_enumerationStates(description->enumerations.size(), SvdDerivationState::Open)
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
    const qint32 enumerationCount = qint32(m_description.enumerations.size());
    for (qint32 id = 0; id < enumerationCount; ++id) {
        if (!resolveEnumeration(id) || (id % kElementsPerTick == 0 && !m_meter.expanded(0, 1))) {
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
    const auto cycle = [this](qint32 at) {
        const RawField& field = m_description.field(at);
        failCycle(field.position, field.derivedFrom);
    };
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
    if (base != kNotFound && !m_problem) {
        return base;
    }
    if (findFieldBase(id, kNotFound) == id) {
        failCycle(field.position, field.derivedFrom);
    } else {
        failReference(field.position, field.derivedFrom, "field");
    }
    return std::nullopt;
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
    const RawRange fields = m_description.node(reg).fields;
    for (qint32 i = fields.first; i < fields.end(); ++i) {
        const qint32 id = m_description.fieldId(i);
        if (id != except && m_description.field(id).name == name) {
            return id;
        }
    }
    for (qint32 i = fields.first; i < fields.end(); ++i) {
        const qint32 id = m_description.fieldId(i);
        if (id != except && isCopyOf(id, name)) {
            return id;
        }
    }
    return kNotFound;
}

bool SvdFieldResolver::isCopyOf(qint32 id, const QString& name)
{
    const RawField& field = m_description.field(id);
    const auto fixedLength = field.name.indexOf(QLatin1String("%s"));
    if ((fixedLength < 0 && field.dim < 0) ||
        !name.startsWith(fixedLength < 0 ? field.name : field.name.left(fixedLength))) {
        return false;
    }
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
    return completeBits(&field, base);
}

/// Brings the three ways of stating bits to one: lsb and width.
bool SvdFieldResolver::completeBits(RawField* field, const RawField* base)
{
    RawBits& bits = field->bits;
    const bool hasOwnLsb = bits.lsb >= 0;
    if (!hasOwnLsb && base) {
        bits.lsb = base->bits.lsb;
    }
    const std::optional<qint32> width = bits.lsb >= 0 ? widthOf(bits, hasOwnLsb, base) : std::nullopt;
    if (!width) {
        fail(field->position, QStringLiteral("the field %1 does not say which bits it has, and <bitOffset>, "
                                             "<lsb> and <msb>, or <bitRange> was expected in it")
                                  .arg(quoted(field->name)));
        return false;
    }
    if (*width < 1 || *width > kMaxFieldWidth) {
        fail(field->position, QStringLiteral("the field %1 is %2 bits wide, and 1 to %3 bits were expected, with "
                                             "the msb not below the lsb")
                                  .arg(quoted(field->name))
                                  .arg(*width)
                                  .arg(kMaxFieldWidth));
        return false;
    }
    bits.width = *width;
    bits.msb = -1;
    return true;
}

bool SvdFieldResolver::resolveEnumeration(qint32 id)
{
    const auto cycle = [this](qint32 at) {
        const RawEnumeration& enumeration = m_description.enumeration(at);
        failCycle(enumeration.position, enumeration.derivedFrom);
    };
    const auto base = [this](qint32 at) { return enumerationBaseOf(at); };
    const auto merge = [this](qint32 at, qint32 baseId) { return mergeEnumeration(at, baseId); };
    return followDerivation(id, &m_enumerationStates, base, merge, cycle);
}

std::optional<qint32> SvdFieldResolver::enumerationBaseOf(qint32 id)
{
    const RawEnumeration& enumeration = m_description.enumeration(id);
    if (enumeration.derivedFrom.isEmpty()) {
        return kNoBase;
    }
    const qint32 base = findEnumerationBase(id, id);
    if (base != kNotFound && !m_problem) {
        return base;
    }
    if (findEnumerationBase(id, kNotFound) != kNotFound) {
        failCycle(enumeration.position, enumeration.derivedFrom);
    } else {
        failReference(enumeration.position, enumeration.derivedFrom, "enumeratedValues");
    }
    return std::nullopt;
}

qint32 SvdFieldResolver::findEnumerationBase(qint32 id, qint32 except)
{
    const RawEnumeration& enumeration = m_description.enumeration(id);
    const QString& name = enumeration.derivedFrom;
    const qint32 reg = m_description.field(enumeration.field).reg;
    qint32 found = enumerationInField(enumeration.field, name, except);
    if (found == kNotFound) {
        found = enumerationInRegister(reg, name, except);
    }
    qint32 scope = reg;
    while (found == kNotFound && scope != kDeviceScope) {
        scope = m_description.node(scope).parent;
        found = enumerationInScope(scope, name, except);
    }
    return found;
}

qint32 SvdFieldResolver::enumerationInField(qint32 field, const QString& name, qint32 except) const
{
    const RawRange enumerations = m_description.field(field).enumerations;
    for (qint32 id = enumerations.first; id < enumerations.end(); ++id) {
        if (m_description.enumeration(id).name == name && isPossibleBase(id, except)) {
            return id;
        }
    }
    return kNotFound;
}

/// Looks through a register's fields: for the enumeration's name, for "field.name", and for a field's name.
qint32 SvdFieldResolver::enumerationInRegister(qint32 reg, const QString& name, qint32 except)
{
    const RawRange fields = m_description.node(reg).fields;
    for (qint32 i = fields.first; i < fields.end(); ++i) {
        const qint32 found = enumerationInField(m_description.fieldId(i), name, except);
        if (found != kNotFound) {
            return found;
        }
    }
    const auto dot = name.indexOf(QLatin1Char('.'));
    const qint32 field = fieldNamed(reg, dot < 0 ? name : name.left(dot), kNotFound);
    if (field == kNotFound) {
        return kNotFound;
    }
    return dot < 0 ? firstEnumerationOf(field, except) : enumerationInField(field, name.mid(dot + 1), except);
}

/// Looks through all that a node or the device holds: for the enumeration's name, and for a path from there.
qint32 SvdFieldResolver::enumerationInScope(qint32 scope, const QString& name, qint32 except)
{
    const QVector<qint32> named = m_enumerations.below(scope).value(name);
    const auto found =
        std::find_if(named.cbegin(), named.cend(), [&](qint32 id) { return isPossibleBase(id, except); });
    if (found != named.cend()) {
        return *found;
    }
    return enumerationAt(scope, name.split(QLatin1Char('.')), except);
}

/// The enumeration at a path below @p scope. The path may end with a field, and then means its first one.
qint32 SvdFieldResolver::enumerationAt(qint32 scope, const QStringList& path, qint32 except)
{
    const auto size = path.size();
    if (size >= 3) {
        const qint32 reg = registerAt(scope, path.mid(0, size - 2));
        const qint32 field = reg == kNotFound ? kNotFound : fieldNamed(reg, path.at(size - 2), kNotFound);
        const qint32 found = field == kNotFound ? kNotFound : enumerationInField(field, path.at(size - 1), except);
        if (found != kNotFound) {
            return found;
        }
    }
    const qint32 field = size >= 2 ? fieldAt(scope, path, kNotFound) : kNotFound;
    return field == kNotFound ? kNotFound : firstEnumerationOf(field, except);
}

qint32 SvdFieldResolver::firstEnumerationOf(qint32 field, qint32 except) const
{
    const RawRange enumerations = m_description.field(field).enumerations;
    for (qint32 id = enumerations.first; id < enumerations.end(); ++id) {
        if (isPossibleBase(id, except)) {
            return id;
        }
    }
    return kNotFound;
}

/// False for @p asker itself, for what is being derived at the moment, and for what asks for the same base under the
/// same name: several fields may each have a copy that keeps the name. Without an asker everything is possible.
bool SvdFieldResolver::isPossibleBase(qint32 id, qint32 asker) const
{
    if (asker == kNotFound) {
        return true;
    }
    const RawEnumeration& candidate = m_description.enumeration(id);
    const RawEnumeration& asking = m_description.enumeration(asker);
    const bool isAlike = candidate.name == asking.name && candidate.derivedFrom == asking.derivedFrom;
    return id != asker && !isAlike && m_enumerationStates[size_t(id)] != SvdDerivationState::Busy;
}

bool SvdFieldResolver::mergeEnumeration(qint32 id, qint32 baseId)
{
    if (baseId != kNoBase) {
        RawEnumeration& enumeration = m_description.enumeration(id);
        const RawEnumeration& base = m_description.enumeration(baseId);
        enumeration.usage = enumeration.usage ? enumeration.usage : base.usage;
        enumeration.values = mergedValues(enumeration.values, base.values);
    }
    return true;
}

/// The base's values, of which own ones with their names take the place, then the own ones with new names.
RawRange SvdFieldResolver::mergedValues(RawRange own, RawRange base)
{
    std::vector<EnumValue>& values = m_description.enumValues;
    if (own.count == 0) {
        return base;
    }
    std::vector<EnumValue> left(values.cbegin() + own.first, values.cbegin() + own.end());
    const RawRange range{qint32(values.size()), base.count};
    for (qint32 i = base.first; i < base.end(); ++i) {
        EnumValue entry = values[size_t(i)];
        const auto replacement = std::find_if(
            left.begin(), left.end(), [&entry](const EnumValue& candidate) { return candidate.name == entry.name; });
        if (replacement != left.end()) {
            entry = *replacement;
            left.erase(replacement);
        }
        values.push_back(std::move(entry));
    }
    values.insert(values.end(), left.cbegin(), left.cend());
    return {range.first, qint32(values.size()) - range.first};
}

qint32 SvdFieldResolver::registerAt(qint32 scope, const QStringList& path)
{
    return path.isEmpty() ? kNotFound : m_nodes.nodeAt(scope, path, NodeKind::Register);
}

void SvdFieldResolver::failCycle(const SvdPosition& position, const QString& reference)
{
    fail(position, QStringLiteral("derivedFrom=%1 leads back to where it stands, and a base that does not was "
                                  "expected")
                       .arg(quoted(reference)));
}

void SvdFieldResolver::failReference(const SvdPosition& position, const QString& reference, const char* element)
{
    fail(position, QStringLiteral("derivedFrom=%1 leads to no <%2>, and the name or the dotted path of one was "
                                  "expected")
                       .arg(quoted(reference), QLatin1String(element)));
}

void SvdFieldResolver::fail(const SvdPosition& position, const QString& message)
{
    if (!m_problem) {
        m_problem = SvdProblem{position, message};
    }
}

} // namespace registers
