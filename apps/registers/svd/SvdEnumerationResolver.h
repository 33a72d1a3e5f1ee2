// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDerivation.h"
#include "svd/SvdDescription.h"
#include "svd/SvdEnumerationIndex.h"
#include "svd/SvdFieldResolver.h"
#include "svd/SvdNodeResolver.h"

#include <QStringList>

#include <optional>

namespace registers {

/// Gives enumerations what they derive from their bases. The fields must be resolved before.
class SvdEnumerationResolver
{
public:
    SvdEnumerationResolver(SvdDescription* description, SvdNodeResolver* nodes, SvdFieldResolver* fields,
                           SvdRemarks* remarks, SvdProgressMeter* meter);

    /// False when there was a problem, which the nodes or the fields tell, or when reading was cancelled.
    bool resolve();

private:
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
    void remarkReference(qint32 id, bool isCycle);

    SvdDescription& m_description;
    SvdNodeResolver& m_nodes;
    SvdFieldResolver& m_fields;
    SvdRemarks& m_remarks;
    SvdProgressMeter& m_meter;
    SvdEnumerationIndex m_index;
    SvdDerivationStates m_states;
};

} // namespace registers
