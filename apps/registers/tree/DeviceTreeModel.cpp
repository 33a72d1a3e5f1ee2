// SPDX-License-Identifier: MIT
#include "tree/DeviceTreeModel.h"

#include "device/DeviceState.h"
#include "editors/RegisterBits.h"
#include "editors/ValueCell.h"
#include "look/Access.h"
#include "look/ChangeMark.h"
#include "look/Icons.h"
#include "session/DeviceEdits.h"
#include "text/Numbers.h"
#include "tree/RowText.h"

#include <Tessera/views/ItemRoles.h>

namespace registers {

namespace {

/// In an index, beside the number of the register's node. There are far fewer nodes.
constexpr quintptr kFieldFlag = 0x80000000U;

const QIcon& markOf(const Node& node, const TreePlace& place, bool isChanged)
{
    static const QIcon none = markIcon(MarkShape::None);
    static const QIcon dot = markIcon(MarkShape::Dot);
    static const QIcon ring = markIcon(MarkShape::Ring);
    const bool isGroup = node.kind != NodeKind::Register && place.field < 0;
    return !isChanged ? none : isGroup ? ring : dot;
}

} // namespace

DeviceTreeModel::DeviceTreeModel(DeviceEdits& edits, QObject* parent)
    : nsUI::TrModel(parent)
    , m_edits(edits)
    , m_bitsIcon(lineIcon(LineIcon::Bits))
{
    countAll();
    connect(&state(), &DeviceState::registerChanged, this, &DeviceTreeModel::updateRegister);
    connect(&state(), &DeviceState::allChanged, this, &DeviceTreeModel::updateAll);
}

const Device& DeviceTreeModel::device() const
{
    return m_edits.device();
}

const DeviceState& DeviceTreeModel::state() const
{
    return m_edits.state();
}

// --- Places ---------------------------------------------------------------------------------------------------------

TreePlace DeviceTreeModel::placeOf(const QModelIndex& index)
{
    if (!index.isValid()) {
        return {};
    }
    const quintptr id = index.internalId();
    return {static_cast<int>(id & ~kFieldFlag), (id & kFieldFlag) != 0 ? index.row() : -1};
}

QModelIndex DeviceTreeModel::indexOf(const TreePlace& place, int column) const
{
    const auto node = static_cast<quintptr>(place.node);
    if (place.field >= 0) {
        return createIndex(place.field, column, node | kFieldFlag);
    }
    return place.node == Device::kRootNode ? QModelIndex() : createIndex(device().node(place.node).row, column, node);
}

PathTarget DeviceTreeModel::targetOf(const TreePlace& place) const
{
    return {device().node(place.node).registerIndex, place.field};
}

QString DeviceTreeModel::pathOf(const TreePlace& place) const
{
    const QString path = device().nodePath(place.node);
    return place.field < 0 ? path : path + QLatin1Char('.') + plainText(place, NameColumn);
}

QModelIndex DeviceTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return QModelIndex();
    }
    const Node& node = device().node(placeOf(parent).node);
    return node.kind == NodeKind::Register ? indexOf({placeOf(parent).node, row}, column)
                                           : indexOf({node.children.at(row)}, column);
}

QModelIndex DeviceTreeModel::parent(const QModelIndex& child) const
{
    if (!child.isValid()) {
        return QModelIndex();
    }
    const TreePlace place = placeOf(child);
    return indexOf({place.field >= 0 ? place.node : device().node(place.node).parent});
}

int DeviceTreeModel::rowCount(const QModelIndex& parent) const
{
    const TreePlace place = placeOf(parent);
    if (parent.column() > NameColumn || place.field >= 0) {
        return 0;
    }
    const Node& node = device().node(place.node);
    return static_cast<int>(node.kind == NodeKind::Register ? device().registerAt(node.registerIndex).fields.size()
                                                            : node.children.size());
}

int DeviceTreeModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

// --- Cells ----------------------------------------------------------------------------------------------------------

QVariant DeviceTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const TreePlace place = placeOf(index);
    const PathTarget target = targetOf(place);
    switch (role) {
    case ChangedRole:
        return isChanged(place);
    case Qt::FontRole:
        return font(place, index.column());
    case Qt::SizeHintRole:
        return index.column() == NameColumn && m_rowSize.isValid() ? QVariant(m_rowSize) : QVariant();
    default:
        break;
    }
    if (index.column() == NameColumn) {
        return nameData(place, role);
    }
    if (index.column() == ValueColumn && target.isValid()) {
        return valueData(index, target, role);
    }
    if (index.column() == BytesColumn) {
        return hasBytes(place) ? bytesData(index, target.registerIndex, role) : QVariant();
    }
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return plainText(place, index.column());
    }
    return index.column() == DescriptionColumn && role == Qt::ToolTipRole ? description(place) : QVariant();
}

QVariant DeviceTreeModel::nameData(const TreePlace& place, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return plainText(place, NameColumn);
    case Qt::DecorationRole:
        return markOf(device().node(place.node), place, isChanged(place));
    case Qt::AccessibleTextRole: {
        const QString name = plainText(place, NameColumn);
        return isChanged(place) ? tr("%1, changed").arg(name) : name;
    }
    case Qt::ToolTipRole: {
        const QString text = description(place);
        return text.isEmpty() ? pathOf(place) : pathOf(place) + QLatin1Char('\n') + text;
    }
    default:
        return QVariant();
    }
}

QVariant DeviceTreeModel::valueData(const QModelIndex& index, const PathTarget& target, int role) const
{
    const ValueCell cell(state(), target, m_base);
    switch (role) {
    case Qt::DisplayRole:
        return cell.text();
    case Qt::EditRole:
        return cell.value();
    case Qt::ToolTipRole:
        return cell.toolTip();
    default:
        break;
    }
    const QVariant setting = cell.setting(role);
    return setting.isValid() ? setting : TrModel::data(index, role);
}

QVariant DeviceTreeModel::bytesData(const QModelIndex& index, int registerIndex, int role) const
{
    const Register& reg = device().registerAt(registerIndex);
    switch (role) {
    case nsUI::e_Role_ItemType:
        return int(nsUI::e_Item_ByteArray);
    case nsUI::e_Role_BitDescriptions:
        return QVariant::fromValue(bitDescriptions(reg));
    case Qt::EditRole:
        return registerBytes(reg, state().value(registerIndex));
    case Qt::DisplayRole:
        return QVariant(); // the icon alone; the bytes would only repeat the value
    case Qt::DecorationRole:
        return m_bitsIcon;
    case Qt::ToolTipRole:
        return tr("%1\nClick to edit bit by bit").arg(TrModel::data(index, role).toString());
    case Qt::AccessibleTextRole:
        return tr("bits of %1").arg(reg.name);
    default:
        return TrModel::data(index, role);
    }
}

QString DeviceTreeModel::plainText(const TreePlace& place, int column) const
{
    const PathTarget target = targetOf(place);
    if (target.isField()) {
        return fieldText(state(), target, m_base, column);
    }
    return target.isValid() ? registerText(state(), target, m_base, column) : groupText(place.node, column);
}

QString DeviceTreeModel::groupText(int nodeIndex, int column) const
{
    const Node& node = device().node(nodeIndex);
    switch (column) {
    case NameColumn:
        return node.name;
    case AddressColumn:
        return addressText(node.address);
    case ValueColumn: {
        const int changed = changedCount(nodeIndex);
        return changed > 0 ? tr("%n changed", nullptr, changed) : QString();
    }
    case DescriptionColumn:
        return node.description.simplified();
    default:
        return QString();
    }
}

QString DeviceTreeModel::description(const TreePlace& place) const
{
    const PathTarget target = targetOf(place);
    return target.isField() ? device().registerAt(target.registerIndex).fields.at(target.fieldIndex).description
                            : device().node(place.node).description;
}

QVariant DeviceTreeModel::font(const TreePlace& place, int column) const
{
    const bool isNumber =
        column == AddressColumn || column == ResetColumn || (column == ValueColumn && targetOf(place).isValid());
    const bool isBold =
        (column == NameColumn || column == ValueColumn) && targetOf(place).isValid() && isChanged(place);
    if (!isNumber && !isBold) {
        return QVariant();
    }
    QFont font = isNumber ? m_numberFont : QFont();
    font.setBold(isBold);
    return font;
}

bool DeviceTreeModel::isChanged(const TreePlace& place) const
{
    return place.field >= 0 ? ValueCell(state(), targetOf(place), m_base).isModified() : changedCount(place.node) > 0;
}

bool DeviceTreeModel::hasBytes(const TreePlace& place) const
{
    const PathTarget target = targetOf(place);
    return target.isValid() && !target.isField() && isWritable(device().registerAt(target.registerIndex).access);
}

Qt::ItemFlags DeviceTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const PathTarget target = targetOf(placeOf(index));
    const bool isEdited =
        index.column() == ValueColumn && target.isValid() && ValueCell(state(), target, m_base).isWritable();
    const Qt::ItemFlags flags = TrModel::flags(index);
    return isEdited ? flags : flags & ~(Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
}

bool DeviceTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole) {
        return TrModel::setData(index, value, role);
    }
    const TreePlace place = placeOf(index);
    const PathTarget target = targetOf(place);
    if (!target.isValid()) {
        return false;
    }
    const ValueCell cell(state(), target, m_base);
    std::optional<quint64> number;
    if (index.column() == ValueColumn && cell.isWritable()) {
        number = cell.toNumber(value);
    } else if (index.column() == BytesColumn && hasBytes(place)) {
        number = valueOfBytes(value.toByteArray());
    }
    if (number) {
        m_edits.endGesture();
        m_edits.set(target, *number);
    }
    return number.has_value();
}

QVariant DeviceTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return QVariant();
    }
    return columnTitle(section);
}

// --- Changes --------------------------------------------------------------------------------------------------------

void DeviceTreeModel::reread()
{
    beginResetModel();
    endResetModel();
}

void DeviceTreeModel::setBase(NumberBase base)
{
    if (base != m_base) {
        m_base = base;
        updateAll();
    }
}

void DeviceTreeModel::setLook(const QFont& numberFont, int rowHeight)
{
    m_numberFont = numberFont;
    m_rowSize = QSize(0, rowHeight);
}

void DeviceTreeModel::countAll()
{
    m_changedBelow.fill(0, device().nodes().size());
    m_changed.fill(false, device().registerCount());
    for (int i = 0; i < device().registerCount(); ++i) {
        if (state().isModified(i)) {
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

void DeviceTreeModel::tellChange(int node)
{
    Q_EMIT dataChanged(indexOf({node}), indexOf({node}, ColumnCount - 1));
}

void DeviceTreeModel::updateRegister(int registerIndex)
{
    const Register& reg = device().registerAt(registerIndex);
    const bool isChanged = state().isModified(registerIndex);
    if (isChanged != m_changed.at(registerIndex)) {
        addChange(registerIndex, isChanged ? 1 : -1);
        for (int above = device().node(reg.node).parent; above != Device::kRootNode;
             above = device().node(above).parent) {
            tellChange(above);
        }
    }
    tellChange(reg.node);
    if (!reg.fields.isEmpty()) {
        Q_EMIT dataChanged(indexOf({reg.node, 0}),
                           indexOf({reg.node, static_cast<int>(reg.fields.size()) - 1}, ColumnCount - 1));
    }
}

void DeviceTreeModel::updateAll()
{
    countAll();
    for (int node = 0; node < device().nodes().size(); ++node) {
        const QModelIndex parent = indexOf({node});
        const int rows = rowCount(parent);
        if (rows > 0) {
            Q_EMIT dataChanged(index(0, 0, parent), index(rows - 1, ColumnCount - 1, parent));
        }
    }
}

} // namespace registers
