// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDerivation.h"
#include "svd/SvdDescription.h"
#include "svd/SvdEnumerationIndex.h"
#include "svd/SvdNodeResolver.h"

#include <QStringList>

#include <optional>

namespace registers {

/// Gives fields and their enumerations what they derive from their bases, and works out which bits each field
/// has. The nodes must be resolved before.
class SvdFieldResolver
{
public:
    SvdFieldResolver(SvdDescription* description, SvdNodeResolver* nodes, SvdProgressMeter* meter);

    /// False when there was a problem, or when reading was cancelled.
    bool resolve();
    const std::optional<SvdProblem>& problem() const { return m_problem; }

private:
    // Fields.
    bool resolveField(qint32 id);
    std::optional<qint32> fieldBaseOf(qint32 id);
    qint32 findFieldBase(qint32 id, qint32 except);
    qint32 fieldAt(qint32 scope, const QStringList& path, qint32 except);
    qint32 fieldNamed(qint32 reg, const QString& name, qint32 except);
    bool isCopyOf(qint32 id, const QString& name);
    bool mergeField(qint32 id, qint32 baseId);
    bool completeBits(RawField* field, const RawField* base);

    // Enumerations.
    bool resolveEnumeration(qint32 id);
    std::optional<qint32> enumerationBaseOf(qint32 id);
    qint32 findEnumerationBase(qint32 id, qint32 except);
    qint32 enumerationInField(qint32 field, const QString& name, qint32 except) const;
    qint32 enumerationInRegister(qint32 reg, const QString& name, qint32 except);
    qint32 enumerationInScope(qint32 scope, const QString& name, qint32 except);
    qint32 enumerationAt(qint32 scope, const QStringList& path, qint32 except);
    qint32 firstEnumerationOf(qint32 field, qint32 except) const;
    bool isPossibleBase(qint32 id, qint32 asker) const;
    bool mergeEnumeration(qint32 id, qint32 baseId);
    RawRange mergedValues(RawRange own, RawRange base);

    qint32 registerAt(qint32 scope, const QStringList& path);
    void failCycle(const SvdPosition& position, const QString& reference);
    void failReference(const SvdPosition& position, const QString& reference, const char* element);
    void fail(const SvdPosition& position, const QString& message);

    SvdDescription& m_description;
    SvdNodeResolver& m_nodes;
    SvdProgressMeter& m_meter;
    SvdEnumerationIndex m_enumerations;
    SvdDerivationStates m_fieldStates;
    SvdDerivationStates m_enumerationStates;
    std::optional<SvdProblem> m_problem;
    int m_depth = 0;
};

} // namespace registers
