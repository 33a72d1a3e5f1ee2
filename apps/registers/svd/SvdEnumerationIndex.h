// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"
#include "svd/SvdNodeResolver.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

#include <unordered_map>

namespace registers {

/// The enumerations of a description by their names. Made for a node when it is first asked for, since few
/// descriptions look so far.
class SvdEnumerationIndex
{
public:
    using OfNames = QHash<QString, QVector<qint32>>;

    SvdEnumerationIndex(SvdDescription* description, SvdNodeResolver* nodes);

    /// Those below a node, or of the whole device, with one name in the description's order.
    const OfNames& below(qint32 scope);

private:
    void add(qint32 node, OfNames* index, QSet<qint32>* visited) const;

    SvdDescription& m_description;
    SvdNodeResolver& m_nodes;
    std::unordered_map<qint32, OfNames> m_indices;
};

} // namespace registers
