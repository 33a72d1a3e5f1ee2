// SPDX-License-Identifier: MIT
#include "tree/ExpandedRows.h"

#include "tree/DeviceFilterModel.h"

#include <QTreeView>

#include <algorithm>

namespace registers {

namespace {

constexpr int kMostHitsToOpen = 400;

} // namespace

void ExpandedRows::remember(const DeviceFilterModel& filter)
{
    if (filter.isFiltering()) {
        return;
    }
    m_nodes.clear();
    for (int node = 0; node < filter.device().nodes().size(); ++node) {
        if (m_view.isExpanded(filter.indexOf({node}))) {
            m_nodes.append(node);
        }
    }
}

void ExpandedRows::expandHits(const DeviceFilterModel& filter)
{
    const int count = std::min(static_cast<int>(filter.hits().size()), kMostHitsToOpen);
    for (int i = 0; i < count; ++i) {
        const TreePlace& hit = filter.hits().at(i);
        const bool showsFields = hit.field >= 0 || filter.changesOnly();
        for (int node = showsFields ? hit.node : filter.device().node(hit.node).parent; node > Device::kRootNode;
             node = filter.device().node(node).parent) {
            m_view.expand(filter.indexOf({node}));
        }
    }
}

void ExpandedRows::restore(const DeviceFilterModel& filter)
{
    for (const int node : qAsConst(m_nodes)) {
        m_view.expand(filter.indexOf({node}));
    }
}

} // namespace registers
