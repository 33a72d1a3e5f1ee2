// SPDX-License-Identifier: MIT
#include "gui/DeviceTreeModel.h"

#include "device/DeviceExport.h"
#include "device/DeviceState.h"
#include "gui/ChangeMark.h"

namespace registers {

namespace {

constexpr int kAddressDigits = 8;

MarkShape markShape(const Node& node, int changed)
{
    if (changed == 0) {
        return MarkShape::None;
    }
    return node.kind == NodeKind::Register ? MarkShape::Dot : MarkShape::Ring;
}

const QIcon& sharedMarkIcon(MarkShape shape)
{
    static const QIcon none = markIcon(MarkShape::None);
    static const QIcon dot = markIcon(MarkShape::Dot);
    static const QIcon ring = markIcon(MarkShape::Ring);
    return shape == MarkShape::None ? none : (shape == MarkShape::Dot ? dot : ring);
}

} // namespace

DeviceTreeModel::DeviceTreeModel(const DeviceState& state, QObject* parent)
    : QAbstractItemModel(parent)
    , m_state(state)
{
    countAll();
    connect(&m_state, &DeviceState::registerChanged, this, &DeviceTreeModel::updateRegister);
    connect(&m_state, &DeviceState::allChanged, this, &DeviceTreeModel::updateAll);
}

const Device& DeviceTreeModel::device() const
{
    return m_state.device();
}

int DeviceTreeModel::nodeOf(const QModelIndex& index)
{
    return index.isValid() ? static_cast<int>(index.internalId()) : Device::kRootNode;
}

QModelIndex DeviceTreeModel::indexOfNode(int node, int column) const
{
    if (node == Device::kRootNode) {
        return QModelIndex();
    }
    return createIndex(device().node(node).row, column, static_cast<quintptr>(node));
}

QModelIndex DeviceTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return QModelIndex();
    }
    return createIndex(row, column, static_cast<quintptr>(device().node(nodeOf(parent)).children.at(row)));
}

QModelIndex DeviceTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? indexOfNode(device().node(nodeOf(child)).parent) : QModelIndex();
}

int DeviceTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > NameColumn ? 0 : device().node(nodeOf(parent)).children.size();
}

int DeviceTreeModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

QVariant DeviceTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const int nodeIndex = nodeOf(index);
    const Node& node = device().node(nodeIndex);
    const int changed = changedCount(nodeIndex);
    switch (role) {
    case Qt::DisplayRole:
        return text(node, changed, index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(sharedMarkIcon(markShape(node, changed))) : QVariant();
    case Qt::FontRole: {
        const bool isNumber =
            index.column() != NameColumn && (index.column() == AddressColumn || node.kind == NodeKind::Register);
        QFont font = isNumber ? m_numberFont : QFont();
        font.setBold(changed > 0 && node.kind == NodeKind::Register && index.column() != AddressColumn);
        return font;
    }
    case Qt::ToolTipRole:
        return toolTip(nodeIndex);
    case Qt::AccessibleTextRole:
        return index.column() == NameColumn && changed > 0 ? tr("%1, changed").arg(node.name)
                                                           : text(node, changed, index.column());
    case ChangedRole:
        return changed > 0;
    default:
        return QVariant();
    }
}

QString DeviceTreeModel::text(const Node& node, int changed, int column) const
{
    switch (column) {
    case NameColumn:
        return node.name;
    case AddressColumn:
        return hexNumber(node.address, kAddressDigits);
    case ValueColumn:
        if (node.kind == NodeKind::Register) {
            return hexNumber(m_state.value(node.registerIndex),
                             hexDigits(device().registerAt(node.registerIndex).size));
        }
        return changed > 0 ? tr("%n changed", nullptr, changed) : QString();
    default:
        return QString();
    }
}

QString DeviceTreeModel::toolTip(int node) const
{
    const Node& shown = device().node(node);
    const QString path = device().nodePath(node);
    return shown.description.isEmpty() ? path : path + QLatin1Char('\n') + shown.description;
}

QVariant DeviceTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case NameColumn:
        return tr("Name");
    case AddressColumn:
        return tr("Address");
    case ValueColumn:
        return tr("Value");
    default:
        return QVariant();
    }
}

void DeviceTreeModel::countAll()
{
    m_changedBelow.fill(0, device().nodes().size());
    m_changed.fill(false, device().registerCount());
    for (int i = 0; i < device().registerCount(); ++i) {
        if (m_state.isModified(i)) {
            addChange(i, 1);
        }
    }
}

void DeviceTreeModel::addChange(int registerIndex, int difference)
{
    m_changed[registerIndex] = difference > 0;
    for (int node = device().registerAt(registerIndex).node; node >= 0; node = device().node(node).parent) {
        m_changedBelow[node] += difference;
    }
}

void DeviceTreeModel::updateRegister(int registerIndex)
{
    const int node = device().registerAt(registerIndex).node;
    const bool changed = m_state.isModified(registerIndex);
    if (changed == m_changed.at(registerIndex)) {
        const QModelIndex value = indexOfNode(node, ValueColumn);
        Q_EMIT dataChanged(value, value, {Qt::DisplayRole, Qt::AccessibleTextRole});
        return;
    }
    addChange(registerIndex, changed ? 1 : -1);
    for (int shown = node; shown != Device::kRootNode; shown = device().node(shown).parent) {
        Q_EMIT dataChanged(indexOfNode(shown), indexOfNode(shown, ValueColumn));
    }
}

void DeviceTreeModel::updateAll()
{
    countAll();
    for (int node = 0; node < device().nodes().size(); ++node) {
        const int childCount = device().node(node).children.size();
        if (childCount > 0) {
            Q_EMIT dataChanged(indexOfNode(device().node(node).children.first()),
                               indexOfNode(device().node(node).children.last(), ValueColumn));
        }
    }
}

} // namespace registers
