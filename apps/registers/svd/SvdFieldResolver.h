// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDerivation.h"
#include "svd/SvdDescription.h"
#include "svd/SvdNameIndex.h"
#include "svd/SvdNodeResolver.h"

#include <QStringList>

#include <optional>
#include <unordered_map>

namespace registers {

/// Gives fields what they derive from their bases, and works out which bits each has. The nodes must be resolved
/// before.
class SvdFieldResolver
{
public:
    SvdFieldResolver(SvdDescription* description, SvdNodeResolver* nodes, SvdRemarks* remarks, SvdProgressMeter* meter);

    /// False when there was a problem, or when reading was cancelled.
    bool resolve();
    const std::optional<SvdProblem>& problem() const { return m_problem; }

    /// The field of a register, or of a copy of one, or kNotFound; so is the next.
    qint32 fieldNamed(qint32 reg, const QString& name, qint32 except = kNotFound);
    /// The field at a path below @p scope (a node or kDeviceScope): nodes, the last of which is a register, and the
    /// field's name.
    qint32 fieldAt(qint32 scope, const QStringList& path, qint32 except = kNotFound);
    qint32 registerAt(qint32 scope, const QStringList& path);

private:
    bool resolveField(qint32 id);
    std::optional<qint32> fieldBaseOf(qint32 id);
    qint32 findFieldBase(qint32 id, qint32 except);
    bool isCopyOf(qint32 id, const QString& name);
    const SvdNameIndex& indexOf(qint32 reg);
    bool mergeField(qint32 id, qint32 baseId);
    void completeName(RawField* field, const RawField* base);
    void completeBits(RawField* field, const RawField* base);
    static QString problemOfBits(RawField* field, const RawField* base);

    void remarkReference(qint32 id, bool isCycle);
    void fail(const SvdPosition& position, const QString& message);

    SvdDescription& m_description;
    SvdNodeResolver& m_nodes;
    SvdRemarks& m_remarks;
    SvdProgressMeter& m_meter;
    SvdDerivationStates m_fieldStates;
    std::unordered_map<qint32, SvdNameIndex> m_indices; ///< of the registers' fields
    std::optional<SvdProblem> m_problem;
    int m_depth = 0;
};

} // namespace registers
