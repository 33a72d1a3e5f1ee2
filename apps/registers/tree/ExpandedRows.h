// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

namespace registers {

class DeviceFilterModel;

/// Which rows of the tree are open: what a filter has found, and after it what was open before.
class ExpandedRows
{
public:
    /// @p view must live as long as this object.
    explicit ExpandedRows(QTreeView& view)
        : m_view(view)
    {
    }

    /// Takes note of the open rows, unless the filter hides some already.
    void remember(const DeviceFilterModel& filter);
    void forget() { m_nodes.clear(); }
    /// Opens what is around the first of the filter's hits.
    void expandHits(const DeviceFilterModel& filter);
    /// The rows have just been read anew, and all of them are closed.
    void restore(const DeviceFilterModel& filter);

private:
    QTreeView& m_view;
    QVector<int> m_nodes; ///< that were open before the filter
};

} // namespace registers
