// SPDX-License-Identifier: MIT
#include "svd/SvdEnumerationResolver.h"

#include "svd/SvdProgressMeter.h"
#include "svd/SvdRemarks.h"

#include <algorithm>
#include <utility>

namespace registers {

namespace {

constexpr qint32 kElementsPerTick = 512;

} // namespace

SvdEnumerationResolver::SvdEnumerationResolver(SvdDescription* description, SvdNodeResolver* nodes,
                                               SvdFieldResolver* fields, SvdRemarks* remarks, SvdProgressMeter* meter)
    : m_description(*description)
    , m_nodes(*nodes)
    , m_fields(*fields)
    , m_remarks(*remarks)
    , m_meter(*meter)
    , m_index(description, nodes)
    , m_states(description->enumerations.size(), SvdDerivationState::Open)
{
}

bool SvdEnumerationResolver::resolve()
{
    const qint32 count = qint32(m_description.enumerations.size());
    for (qint32 id = 0; id < count; ++id) {
        if (!resolveEnumeration(id) || (id % kElementsPerTick == 0 && !m_meter.expanded(0, 1))) {
            return false;
        }
    }
    return true;
}

bool SvdEnumerationResolver::resolveEnumeration(qint32 id)
{
    const auto cycle = [this](qint32 at) { remarkReference(at, true); };
    const auto base = [this](qint32 at) { return enumerationBaseOf(at); };
    const auto merge = [this](qint32 at, qint32 baseId) { return mergeEnumeration(at, baseId); };
    return followDerivation(id, &m_states, base, merge, cycle);
}

std::optional<qint32> SvdEnumerationResolver::enumerationBaseOf(qint32 id)
{
    const RawEnumeration& enumeration = m_description.enumeration(id);
    if (enumeration.derivedFrom.isEmpty()) {
        return kNoBase;
    }
    const qint32 base = findEnumerationBase(id, id);
    if (m_nodes.problem() || m_fields.problem()) {
        return std::nullopt;
    }
    if (base != kNotFound) {
        return base;
    }
    remarkReference(id, findEnumerationBase(id, kNotFound) != kNotFound);
    return kNoBase;
}

qint32 SvdEnumerationResolver::findEnumerationBase(qint32 id, qint32 except)
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

qint32 SvdEnumerationResolver::enumerationInField(qint32 field, const QString& name, qint32 except) const
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
qint32 SvdEnumerationResolver::enumerationInRegister(qint32 reg, const QString& name, qint32 except)
{
    const RawRange fields = m_description.node(reg).fields;
    for (qint32 i = fields.first; i < fields.end(); ++i) {
        const qint32 found = enumerationInField(m_description.fieldId(i), name, except);
        if (found != kNotFound) {
            return found;
        }
    }
    const auto dot = name.indexOf(QLatin1Char('.'));
    const qint32 field = m_fields.fieldNamed(reg, dot < 0 ? name : name.left(dot));
    if (field == kNotFound) {
        return kNotFound;
    }
    return dot < 0 ? firstEnumerationOf(field, except) : enumerationInField(field, name.mid(dot + 1), except);
}

/// Looks through all that a node or the device holds: for the enumeration's name, and for a path from there.
qint32 SvdEnumerationResolver::enumerationInScope(qint32 scope, const QString& name, qint32 except)
{
    const QVector<qint32> named = m_index.below(scope).value(name);
    const auto found =
        std::find_if(named.cbegin(), named.cend(), [&](qint32 id) { return isPossibleBase(id, except); });
    if (found != named.cend()) {
        return *found;
    }
    return enumerationAt(scope, name.split(QLatin1Char('.')), except);
}

/// The enumeration at a path below @p scope. The path may end with a field, and then means its first one.
qint32 SvdEnumerationResolver::enumerationAt(qint32 scope, const QStringList& path, qint32 except)
{
    const auto size = path.size();
    if (size >= 3) {
        const qint32 reg = m_fields.registerAt(scope, path.mid(0, size - 2));
        const qint32 field = reg == kNotFound ? kNotFound : m_fields.fieldNamed(reg, path.at(size - 2));
        const qint32 found = field == kNotFound ? kNotFound : enumerationInField(field, path.at(size - 1), except);
        if (found != kNotFound) {
            return found;
        }
    }
    const qint32 field = size >= 2 ? m_fields.fieldAt(scope, path) : kNotFound;
    return field == kNotFound ? kNotFound : firstEnumerationOf(field, except);
}

qint32 SvdEnumerationResolver::firstEnumerationOf(qint32 field, qint32 except) const
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
bool SvdEnumerationResolver::isPossibleBase(qint32 id, qint32 asker) const
{
    if (asker == kNotFound) {
        return true;
    }
    const RawEnumeration& candidate = m_description.enumeration(id);
    const RawEnumeration& asking = m_description.enumeration(asker);
    const bool isAlike = candidate.name == asking.name && candidate.derivedFrom == asking.derivedFrom;
    return id != asker && !isAlike && m_states[size_t(id)] != SvdDerivationState::Busy;
}

bool SvdEnumerationResolver::mergeEnumeration(qint32 id, qint32 baseId)
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
RawRange SvdEnumerationResolver::mergedValues(RawRange own, RawRange base)
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

void SvdEnumerationResolver::remarkReference(qint32 id, bool isCycle)
{
    const RawEnumeration& enumeration = m_description.enumeration(id);
    const QString& reference = enumeration.derivedFrom;
    m_remarks.add(enumeration.position,
                  isCycle ? cyclicReference(reference) : deadReference(reference, QLatin1String("enumeratedValues")),
                  kNotSaid, m_description.field(enumeration.field).reg);
}

} // namespace registers
