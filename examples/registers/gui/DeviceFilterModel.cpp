// SPDX-License-Identifier: MIT
#include "gui/DeviceFilterModel.h"

#include "device/DeviceExport.h"
#include "gui/DeviceTreeModel.h"

#include <algorithm>

namespace registers {

namespace {

constexpr int kAddressDigits = 8;

} // namespace

DeviceFilterModel::DeviceFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(false);
}

void DeviceFilterModel::setDeviceModel(DeviceTreeModel* model)
{
    m_model = model;
    m_paths.clear();
    m_paths.reserve(model->device().nodes().size());
    for (int node = 0; node < model->device().nodes().size(); ++node) {
        m_paths.append(model->device().nodePath(node));
    }
    judgeNodes();
    setSourceModel(model);
}

void DeviceFilterModel::setText(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words == m_words) {
        return;
    }
    m_words = words;
    if (m_model) {
        judgeNodes();
        invalidateFilter();
    }
}

bool DeviceFilterModel::matches(const QString& path, const QString& address) const
{
    return std::all_of(m_words.begin(), m_words.end(), [&](const QString& word) {
        return path.contains(word, Qt::CaseInsensitive) || (word.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) &&
                                                            address.contains(word, Qt::CaseInsensitive));
    });
}

void DeviceFilterModel::judgeNodes()
{
    const Device& device = m_model->device();
    m_hits.clear();
    m_registerCount = device.registerCount();
    m_accepted.fill(m_words.isEmpty(), device.nodes().size());
    if (m_words.isEmpty()) {
        return;
    }
    m_registerCount = 0;
    QVector<bool> matched(device.nodes().size(), false);
    for (int node = Device::kRootNode + 1; node < device.nodes().size(); ++node) {
        const Node& judged = device.node(node);
        const bool inherited = matched.at(judged.parent);
        if (!inherited && !matches(m_paths.at(node), hexNumber(judged.address, kAddressDigits))) {
            continue;
        }
        matched[node] = true;
        m_accepted[node] = true;
        m_registerCount += judged.kind == NodeKind::Register ? 1 : 0;
        if (!inherited) {
            m_hits.append(node);
            acceptParents(node);
        }
    }
}

void DeviceFilterModel::acceptParents(int node)
{
    for (int above = m_model->device().node(node).parent; above >= 0 && !m_accepted.at(above);
         above = m_model->device().node(above).parent) {
        m_accepted[above] = true;
    }
}

bool DeviceFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const Node& parent = m_model->device().node(DeviceTreeModel::nodeOf(sourceParent));
    return m_accepted.at(parent.children.at(sourceRow));
}

QModelIndex DeviceFilterModel::indexOfNode(int node) const
{
    return m_model ? mapFromSource(m_model->indexOfNode(node)) : QModelIndex();
}

int DeviceFilterModel::nodeOf(const QModelIndex& index) const
{
    return DeviceTreeModel::nodeOf(mapToSource(index));
}

} // namespace registers
