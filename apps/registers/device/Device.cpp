// SPDX-License-Identifier: MIT
#include "device/Device.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace registers {

namespace {

QLatin1String groupKindName(NodeKind kind)
{
    return kind == NodeKind::Peripheral ? QLatin1String("peripheral") : QLatin1String("cluster");
}

} // namespace

QLatin1String accessName(Access access)
{
    switch (access) {
    case Access::ReadOnly:
        return QLatin1String("read-only");
    case Access::WriteOnly:
        return QLatin1String("write-only");
    case Access::ReadWrite:
        return QLatin1String("read-write");
    case Access::WriteOnce:
        return QLatin1String("writeOnce");
    case Access::ReadWriteOnce:
        return QLatin1String("read-writeOnce");
    }
    return QLatin1String("read-write");
}

const EnumValue* Field::readName(quint64 fieldValue) const
{
    return enumeration && !enumeration->forWritingOnly ? enumeration->find(fieldValue) : nullptr;
}

quint64 fieldValue(const Field& field, quint64 registerValue)
{
    return (registerValue >> field.lsb) & bitMask(field.width);
}

quint64 withFieldValue(const Field& field, quint64 registerValue, quint64 value)
{
    const quint64 fieldBits = bitMask(field.width) << field.lsb;
    return (registerValue & ~fieldBits) | ((value << field.lsb) & fieldBits);
}

int Register::indexOfField(const QString& fieldName) const
{
    const auto found = std::find_if(fields.cbegin(), fields.cend(),
                                    [&fieldName](const Field& field) { return field.name == fieldName; });
    return found == fields.cend() ? -1 : int(found - fields.cbegin());
}

int usableWidth(const Register& reg, const Field& field)
{
    return std::clamp(int(reg.size) - int(field.lsb), 0, int(field.width));
}

quint64 largestFieldValue(const Register& reg, const Field& field)
{
    return bitMask(usableWidth(reg, field));
}

Device::Device()
{
    m_nodes.append(Node());
}

QString Device::nodePath(int index) const
{
    QStringList names;
    for (int i = index; i > kRootNode; i = m_nodes.at(i).parent) {
        names.prepend(m_nodes.at(i).name);
    }
    return names.join(QLatin1Char('.'));
}

int Device::findAddress(quint64 address) const
{
    int covering = -1;
    for (int i = 0; i < m_registers.size(); ++i) {
        const Register& reg = m_registers.at(i);
        if (reg.address == address) {
            return i;
        }
        const quint64 byteCount = (reg.size + 7U) / 8U;
        if (covering < 0 && address > reg.address && address - reg.address < byteCount) {
            covering = i;
        }
    }
    return covering;
}

PathTarget Device::find(const QString& path) const
{
    const int whole = findRegister(path);
    if (whole >= 0) {
        return {whole, -1};
    }
    const auto dot = path.lastIndexOf(QLatin1Char('.'));
    const int registerIndex = dot < 0 ? -1 : findRegister(path.left(dot));
    const int fieldIndex = registerIndex < 0 ? -1 : registerAt(registerIndex).indexOfField(path.mid(dot + 1));
    return fieldIndex < 0 ? PathTarget() : PathTarget{registerIndex, fieldIndex};
}

QString Device::explainMissing(const QString& path) const
{
    if (find(path).isValid()) {
        return QString();
    }
    const QStringList parts = path.split(QLatin1Char('.'));
    int at = kRootNode;
    for (int i = 0; i < parts.size(); ++i) {
        const Node& here = m_nodes.at(at);
        const QString& part = parts.at(i);
        if (here.kind == NodeKind::Register) {
            const bool isField = registerAt(here.registerIndex).indexOfField(part) >= 0;
            return isField ? QStringLiteral("nothing lies below the field \"%1\" of \"%2\"").arg(part, nodePath(at))
                           : QStringLiteral("the register \"%2\" has no field \"%1\"").arg(part, nodePath(at));
        }
        const int child = childNamed(at, part);
        if (child < 0) {
            return at == kRootNode ? QStringLiteral("the device \"%2\" has no peripheral \"%1\"").arg(part, name)
                                   : QStringLiteral("the %3 \"%2\" has no register or cluster \"%1\"")
                                         .arg(part, nodePath(at), groupKindName(here.kind));
        }
        at = child;
    }
    return QStringLiteral("\"%1\" is a %2, and a register or a field was expected")
        .arg(path, groupKindName(m_nodes.at(at).kind));
}

void Device::reserve(int registerCount, int nodeCount)
{
    m_registers.reserve(registerCount);
    m_nodes.reserve(nodeCount + 1);
    m_registerOfPath.reserve(registerCount);
}

int Device::addGroup(int parent, NodeKind kind, const QString& groupName, const QString& groupDescription,
                     quint64 address)
{
    Node node;
    node.name = groupName;
    node.description = groupDescription;
    node.address = address;
    node.kind = kind;
    node.firstRegister = registerCount();
    return addNode(parent, std::move(node));
}

int Device::addRegister(int parent, Register&& reg)
{
    const int index = registerCount();
    Node node;
    node.name = reg.name;
    node.description = reg.description;
    node.address = reg.address;
    node.kind = NodeKind::Register;
    node.registerIndex = index;
    node.firstRegister = index;
    reg.node = addNode(parent, std::move(node));
    for (int i = reg.node; i >= 0; i = m_nodes.at(i).parent) {
        ++m_nodes[i].registerCount;
    }
    m_fieldCount += static_cast<int>(reg.fields.size());
    if (!m_registerOfPath.contains(reg.path)) {
        m_registerOfPath.insert(reg.path, index);
    }
    m_registers.append(std::move(reg));
    return index;
}

int Device::addNode(int parent, Node&& node)
{
    const int index = static_cast<int>(m_nodes.size());
    node.parent = parent;
    node.row = static_cast<qint32>(m_nodes.at(parent).children.size());
    m_nodes[parent].children.append(index);
    m_nodes.append(std::move(node));
    return index;
}

int Device::childNamed(int parent, const QString& childName) const
{
    for (const qint32 child : m_nodes.at(parent).children) {
        if (m_nodes.at(child).name == childName) {
            return child;
        }
    }
    return -1;
}

} // namespace registers
