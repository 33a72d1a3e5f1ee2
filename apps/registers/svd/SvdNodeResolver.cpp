// SPDX-License-Identifier: MIT
#include "svd/SvdNodeResolver.h"

#include "svd/SvdDim.h"
#include "svd/SvdMerge.h"
#include "svd/SvdProgressMeter.h"
#include "svd/SvdRemarks.h"
#include "text/Quoted.h"

#include <algorithm>

namespace registers {

namespace {

constexpr qint32 kNodesPerTick = 256;
constexpr int kMaxReferenceDepth = 100;
constexpr int kBusyHeight = -1;
// A peripheral and a register around the clusters.
constexpr int kMaxNodeDepth = kMaxClusterDepth + 2;

bool isPeripheral(NodeKind kind)
{
    return kind == NodeKind::Peripheral;
}

bool isCluster(NodeKind kind)
{
    return kind == NodeKind::Cluster;
}

bool isRegister(NodeKind kind)
{
    return kind == NodeKind::Register;
}

bool isGroup(NodeKind kind)
{
    return kind != NodeKind::Register;
}

using KindTest = bool (*)(NodeKind);

KindTest testFor(NodeKind kind)
{
    return kind == NodeKind::Peripheral ? isPeripheral : (kind == NodeKind::Cluster ? isCluster : isRegister);
}

void inherit(RawProperties* own, const RawProperties& base)
{
    if (!own->size) {
        own->size = base.size;
        own->sizePosition = base.sizePosition;
    }
    own->resetValue = own->resetValue ? own->resetValue : base.resetValue;
    own->resetMask = own->resetMask ? own->resetMask : base.resetMask;
    own->access = own->access ? own->access : base.access;
}

QString cycleText(const RawNode& node)
{
    return QStringLiteral("derivedFrom=%1 makes the %2 %3 derive from itself, and a base that does not lead back was "
                          "expected")
        .arg(quoted(node.derivedFrom), elementName(node.kind), quoted(node.name));
}

void inherit(QString* own, const QString& base)
{
    if (own->isEmpty()) {
        *own = base;
    }
}

} // namespace

SvdNodeResolver::SvdNodeResolver(SvdDescription* description, SvdRemarks* remarks, SvdProgressMeter* meter)
    : m_description(*description)
    , m_remarks(*remarks)
    , m_meter(*meter)
    , m_states(description->nodes.size(), SvdDerivationState::Open)
    , m_heights(description->nodes.size(), 0)
{
}

bool SvdNodeResolver::resolve()
{
    const qint32 count = qint32(m_description.nodes.size());
    for (qint32 id = 0; id < count; ++id) {
        if (!resolveNode(id) || (id % kNodesPerTick == 0 && !m_meter.expanded(0, 1))) {
            return false;
        }
    }
    return checkNesting();
}

RawRange SvdNodeResolver::childrenOf(qint32 scope) const
{
    return scope == kDeviceScope ? m_description.peripherals : m_description.node(scope).children;
}

qint32 SvdNodeResolver::nodeAt(qint32 scope, const QStringList& path, NodeKind kind, qint32 except)
{
    qint32 at = scope;
    for (int i = 0; i < path.size(); ++i) {
        const bool isLast = i + 1 == path.size();
        at = childNamed(at, path.at(i), isLast ? testFor(kind) : isGroup, isLast ? except : kNotFound);
        if (at == kNotFound) {
            return kNotFound;
        }
    }
    return at;
}

bool SvdNodeResolver::resolveNode(qint32 id)
{
    if (m_states[size_t(id)] == SvdDerivationState::Done) {
        return true;
    }
    const SvdPosition& position = m_description.node(id).position;
    if (++m_depth > kMaxReferenceDepth) {
        fail(position, QStringLiteral("references lead through more than %1 elements that are derived themselves")
                           .arg(kMaxReferenceDepth));
    }
    const auto base = [this](qint32 at) { return baseOf(at); };
    const auto mergeBase = [this](qint32 at, qint32 baseId) { return merge(at, baseId); };
    const auto cycle = [this](qint32 at) { remarkCycle(at); };
    const bool isResolved = !m_problem && followDerivation(id, &m_states, base, mergeBase, cycle);
    --m_depth;
    return isResolved;
}

std::optional<qint32> SvdNodeResolver::baseOf(qint32 id)
{
    const RawNode& node = m_description.node(id);
    if (node.derivedFrom.isEmpty()) {
        return kNoBase;
    }
    const qint32 base = findBase(id, id);
    if (m_problem) {
        return std::nullopt;
    }
    if (base != kNotFound && !isWithin(id, base)) {
        return base;
    }
    if (base != kNotFound || findBase(id, kNotFound) == id) {
        remarkCycle(id);
    } else {
        m_remarks.add(node.position, deadReference(node.derivedFrom, elementName(node.kind)), kNotSaid, id);
    }
    return kNoBase;
}

qint32 SvdNodeResolver::findBase(qint32 id, qint32 except)
{
    const RawNode& node = m_description.node(id);
    const qint32 sibling = childNamed(node.parent, node.derivedFrom, testFor(node.kind), except);
    if (sibling != kNotFound || m_problem) {
        return sibling;
    }
    const QStringList path = node.derivedFrom.split(QLatin1Char('.'));
    qint32 found = nodeAt(kDeviceScope, path, node.kind, except);
    for (qint32 scope = node.parent; found == kNotFound && scope != kDeviceScope && !m_problem;
         scope = m_description.node(scope).parent) {
        found = nodeAt(scope, path, node.kind, except);
    }
    return found;
}

bool SvdNodeResolver::merge(qint32 id, qint32 baseId)
{
    RawNode& node = m_description.node(id);
    completeName(id, baseId);
    if (baseId != kNoBase) {
        const RawNode& base = m_description.node(baseId);
        inherit(&node.displayName, base.displayName);
        inherit(&node.description, base.description);
        inherit(&node.properties, base.properties);
        node.offset = node.offset || node.isLeftOut ? node.offset : base.offset;
        node.hasReadAction = node.hasReadAction || base.hasReadAction;
        mergeDim(&node, base);
        node.children = mergedByName(&m_description.childIds, node.children, base.children,
                                     [this](qint32 child) -> const QString& { return m_description.node(child).name; });
        node.fields = mergedByName(&m_description.fieldIds, node.fields, base.fields,
                                   [this](qint32 field) -> const QString& { return m_description.field(field).name; });
    }
    if (!node.offset && !node.isLeftOut) {
        const QLatin1String element(node.kind == NodeKind::Peripheral ? "baseAddress" : "addressOffset");
        m_remarks.add(node.position,
                      QStringLiteral("the %1 %2 has no address, and an <%3> was expected in it")
                          .arg(elementName(node.kind), quoted(node.name), element),
                      leftOut(node.kind), id);
        node.isLeftOut = true;
    }
    return !m_problem;
}

void SvdNodeResolver::completeName(qint32 id, qint32 baseId)
{
    RawNode& node = m_description.node(id);
    if (!node.name.isEmpty()) {
        return;
    }
    if (baseId != kNoBase) {
        node.name = m_description.node(baseId).name;
    }
    const bool isNamed = !node.name.isEmpty();
    m_remarks.add(node.position,
                  QStringLiteral("this <%1> has no name, and a <name> was expected in it").arg(elementName(node.kind)),
                  isNamed ? kNameOfBase : leftOut(node.kind), id);
    node.isLeftOut = node.isLeftOut || !isNamed;
}

void SvdNodeResolver::mergeDim(RawNode* node, const RawNode& base)
{
    if (hasPlaceholder(node->name)) {
        node->dim = inheritedDim(&m_description, node->dim, base.dim);
    }
}

bool SvdNodeResolver::isWithin(qint32 id, qint32 ancestor) const
{
    qint32 at = id;
    while (at != kDeviceScope && at != ancestor) {
        at = m_description.node(at).parent;
    }
    return at == ancestor;
}

qint32 SvdNodeResolver::childNamed(qint32 scope, const QString& name, Wanted isWanted, qint32 except)
{
    const bool isBusy = scope != kDeviceScope && m_states[size_t(scope)] == SvdDerivationState::Busy;
    if (m_problem || (scope != kDeviceScope && !isBusy && !resolveNode(scope))) {
        return kNotFound;
    }
    const auto isPossible = [&](qint32 id) { return id != except && isWanted(m_description.node(id).kind); };
    const SvdNameIndex& index = indexOf(scope); // good until isCopyOf(), which may make others
    const QVector<qint32> named = index.named(name);
    const auto exact = std::find_if(named.cbegin(), named.cend(), isPossible);
    if (exact != named.cend()) {
        return *exact;
    }
    const std::vector<qint32> arrays = index.arraysFor(name);
    const auto found =
        std::find_if(arrays.cbegin(), arrays.cend(), [&](qint32 id) { return isPossible(id) && isCopyOf(id, name); });
    return found == arrays.cend() ? kNotFound : *found;
}

/// True when one of the copies of the array @p id is called @p name.
bool SvdNodeResolver::isCopyOf(qint32 id, const QString& name)
{
    const RawNode& node = m_description.node(id);
    const bool isBusy = m_states[size_t(id)] == SvdDerivationState::Busy;
    if ((!isBusy && !resolveNode(id)) || node.dim < 0) {
        return false;
    }
    return isCopyName(m_description.dim(node.dim), node.name, name);
}

/// The names of a scope's children. They are kept once the scope has all its children.
const SvdNameIndex& SvdNodeResolver::indexOf(qint32 scope)
{
    if (scope != kDeviceScope && m_states[size_t(scope)] != SvdDerivationState::Done) {
        m_busyIndex = makeIndex(childrenOf(scope));
        return m_busyIndex;
    }
    const auto found = m_indices.find(scope);
    return found != m_indices.end() ? found->second
                                    : m_indices.emplace(scope, makeIndex(childrenOf(scope))).first->second;
}

SvdNameIndex SvdNodeResolver::makeIndex(RawRange children) const
{
    SvdNameIndex index;
    for (qint32 i = children.first; i < children.end(); ++i) {
        const qint32 id = m_description.childId(i);
        const RawNode& node = m_description.node(id);
        index.add(node.name, node.dim >= 0, id);
    }
    return index;
}

/// Clusters that derive from each other can contain each other without end. That shows only now, when all
/// have their children.
bool SvdNodeResolver::checkNesting()
{
    const RawRange peripherals = m_description.peripherals;
    for (qint32 i = peripherals.first; i < peripherals.end() && !m_problem; ++i) {
        heightOf(m_description.childId(i), 1);
    }
    return !m_problem;
}

/// How many levels of nodes there are from @p id, which lies at @p depth, downwards.
int SvdNodeResolver::heightOf(qint32 id, int depth)
{
    int& height = m_heights[size_t(id)];
    m_nesting.push_back(id);
    if (height == kBusyHeight) {
        failNesting(id);
    } else if (depth + std::max(height, 1) - 1 > kMaxNodeDepth) {
        fail(m_description.node(id).position,
             QStringLiteral("clusters are nested more than %1 deep").arg(kMaxClusterDepth));
    } else if (height == 0) {
        height = kBusyHeight;
        int below = 0;
        const RawRange children = m_description.node(id).children;
        for (qint32 i = children.first; i < children.end() && !m_problem; ++i) {
            below = std::max(below, heightOf(m_description.childId(i), depth + 1));
        }
        height = below + 1;
    }
    m_nesting.pop_back();
    return height;
}

/// @p id ends up in itself; says so at the nearest element that derives from another.
void SvdNodeResolver::failNesting(qint32 id)
{
    const auto derived = std::find_if(m_nesting.crbegin(), m_nesting.crend(),
                                      [this](qint32 at) { return !m_description.node(at).derivedFrom.isEmpty(); });
    const RawNode& node = m_description.node(derived == m_nesting.crend() ? id : *derived);
    fail(node.position, cycleText(node));
}

/// What @p id derives from derives from it.
void SvdNodeResolver::remarkCycle(qint32 id)
{
    const RawNode& node = m_description.node(id);
    m_remarks.add(node.position, cycleText(node), kNotSaid, id);
}

void SvdNodeResolver::fail(const SvdPosition& position, const QString& message)
{
    if (!m_problem) {
        m_problem = SvdProblem{position, message};
    }
}

} // namespace registers
