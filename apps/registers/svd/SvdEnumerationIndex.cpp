// SPDX-License-Identifier: MIT
#include "svd/SvdEnumerationIndex.h"

#include <utility>

namespace registers {

SvdEnumerationIndex::SvdEnumerationIndex(SvdDescription* description, SvdNodeResolver* nodes)
    : m_description(*description)
    , m_nodes(*nodes)
{
}

const SvdEnumerationIndex::OfNames& SvdEnumerationIndex::below(qint32 scope)
{
    const auto known = m_indices.find(scope);
    if (known != m_indices.end()) {
        return known->second;
    }
    OfNames index;
    QSet<qint32> visited;
    const RawRange children = m_nodes.childrenOf(scope);
    for (qint32 i = children.first; i < children.end(); ++i) {
        add(m_description.childId(i), &index, &visited);
    }
    return m_indices.emplace(scope, std::move(index)).first->second;
}

void SvdEnumerationIndex::add(qint32 nodeId, OfNames* index, QSet<qint32>* visited) const
{
    if (visited->contains(nodeId)) {
        return;
    }
    visited->insert(nodeId);
    const RawNode& node = m_description.node(nodeId);
    for (qint32 i = node.fields.first; i < node.fields.end(); ++i) {
        const RawRange enumerations = m_description.field(m_description.fieldId(i)).enumerations;
        for (qint32 id = enumerations.first; id < enumerations.end(); ++id) {
            const QString& name = m_description.enumeration(id).name;
            if (!name.isEmpty()) {
                (*index)[name].append(id);
            }
        }
    }
    for (qint32 i = node.children.first; i < node.children.end(); ++i) {
        add(m_description.childId(i), index, visited);
    }
}

} // namespace registers
