// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDerivation.h"
#include "svd/SvdDescription.h"
#include "svd/SvdNameIndex.h"

#include <QStringList>

#include <optional>
#include <unordered_map>
#include <vector>

namespace registers {

class SvdProgressMeter;
class SvdRemarks;

constexpr qint32 kDeviceScope = -1;
constexpr qint32 kNotFound = -1;

/// Gives peripherals, clusters and registers what they derive from their bases: afterwards each has its
/// properties, its children and its fields complete. The children of a base are shared, not copied.
class SvdNodeResolver
{
public:
    SvdNodeResolver(SvdDescription* description, SvdRemarks* remarks, SvdProgressMeter* meter);

    /// False when there was a problem, or when reading was cancelled.
    bool resolve();
    const std::optional<SvdProblem>& problem() const { return m_problem; }

    /// The node at a path below @p scope (a node or kDeviceScope), or kNotFound. Names match as they are
    /// written in the file, or as one of the copies of an array is called.
    qint32 nodeAt(qint32 scope, const QStringList& path, NodeKind kind, qint32 except = kNotFound);

    RawRange childrenOf(qint32 scope) const;

private:
    using Wanted = bool (*)(NodeKind kind);

    bool resolveNode(qint32 id);
    std::optional<qint32> baseOf(qint32 id);
    qint32 findBase(qint32 id, qint32 except);
    bool merge(qint32 id, qint32 baseId);
    void completeName(qint32 id, qint32 baseId);
    void mergeDim(RawNode* node, const RawNode& base);
    bool isWithin(qint32 id, qint32 ancestor) const;

    qint32 childNamed(qint32 scope, const QString& name, Wanted isWanted, qint32 except);
    bool isCopyOf(qint32 id, const QString& name);
    const SvdNameIndex& indexOf(qint32 scope);
    SvdNameIndex makeIndex(RawRange children) const;

    bool checkNesting();
    int heightOf(qint32 id, int depth);
    void failNesting(qint32 id);
    void remarkCycle(qint32 id);
    void fail(const SvdPosition& position, const QString& message);

    SvdDescription& m_description;
    SvdRemarks& m_remarks;
    SvdProgressMeter& m_meter;
    SvdDerivationStates m_states;
    std::unordered_map<qint32, SvdNameIndex> m_indices;
    SvdNameIndex m_busyIndex;
    std::vector<int> m_heights;    ///< 0 while unknown, kBusyHeight while being found
    std::vector<qint32> m_nesting; ///< the nodes from the device down to the one being looked at
    std::optional<SvdProblem> m_problem;
    int m_depth = 0;
};

} // namespace registers
