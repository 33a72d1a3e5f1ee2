// SPDX-License-Identifier: MIT
#pragma once

#include "text/Enumeration.h"
#include "text/Numbers.h"

#include <QHash>
#include <QLatin1String>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace registers {

/// What a register or a field can be used for.
enum class Access : quint8 { ReadOnly, WriteOnly, ReadWrite, WriteOnce, ReadWriteOnce };

constexpr int kAccessCount = 5;

/// The spelling of the CMSIS-SVD schema, such as "read-only" or "writeOnce".
QLatin1String accessName(Access access);

/// True when reading gives the value that is held.
constexpr bool isReadable(Access access)
{
    return access != Access::WriteOnly && access != Access::WriteOnce;
}

/// True when the value may be written at least once.
constexpr bool isWritable(Access access)
{
    return access != Access::ReadOnly;
}

/// A range of bits in a register.
struct Field
{
    QString name;
    QString description;
    QSharedPointer<const Enumeration> enumeration; ///< null when the values have no names
    quint8 lsb = 0;                                ///< 0 to 63, as the description states it
    quint8 width = 1;                              ///< 1 to 64, as the description states it
    Access access = Access::ReadWrite;             ///< its own, or what it inherits
    bool hasReadAction = false;                    ///< reading it changes something in the device

    int msb() const { return lsb + width - 1; }
    /// The name of @p fieldValue when it is read, or null when there is none.
    const EnumValue* readName(quint64 fieldValue) const;
};

/// The value of @p field in a register that holds @p registerValue.
quint64 fieldValue(const Field& field, quint64 registerValue);

/// @p registerValue with @p field set to @p value. Bits of @p value beyond the field's width are dropped,
/// so the neighbouring fields keep their bits.
quint64 withFieldValue(const Field& field, quint64 registerValue, quint64 value);

/// A register of 1 to 64 bits.
struct Register
{
    QString name;        ///< the last part of the path
    QString displayName; ///< empty when the description gives none
    QString description;
    QString path; ///< such as "DMA.CH[2].CTRL"
    quint64 address = 0;
    quint64 resetValue = 0; ///< within the register's size, the reset mask not applied
    quint64 resetMask = 0;  ///< the bits of the reset value that are defined
    QVector<Field> fields;  ///< in the description's order; shared between equal registers
    qint32 node = -1;       ///< its place in the tree, an index into Device::nodes()
    quint8 size = 32;       ///< bits, 1 to 64
    Access access = Access::ReadWrite;
    bool hasReadAction = false; ///< reading it, or any of its fields, changes something in the device

    quint64 valueMask() const { return bitMask(size); }
    /// Index of the field called @p fieldName, or -1.
    int indexOfField(const QString& fieldName) const;
};

/// How many bits of @p field lie inside @p reg: its width, or less when it reaches beyond the register.
int usableWidth(const Register& reg, const Field& field);

/// The largest value that @p field can take in @p reg.
quint64 largestFieldValue(const Register& reg, const Field& field);

enum class NodeKind : quint8 { Device, Peripheral, Cluster, Register };

/// One place in the tree of peripherals, clusters and registers. The nodes lie in the description's order:
/// a parent comes before its children, and the registers below a node follow one another.
struct Node
{
    QString name;
    QString description;
    QVector<qint32> children; ///< node indices, in the description's order
    quint64 address = 0;
    qint32 parent = -1;        ///< node index; -1 for the device itself
    qint32 row = 0;            ///< the position among the parent's children
    qint32 registerIndex = -1; ///< of a register node, an index into Device::registers()
    qint32 firstRegister = 0;  ///< the first register at or below this node
    qint32 registerCount = 0;  ///< how many registers there are at or below this node
    NodeKind kind = NodeKind::Device;
};

/// What a path leads to.
struct PathTarget
{
    int registerIndex = -1; ///< -1 when nothing was found
    int fieldIndex = -1;    ///< -1 when the path names the whole register

    bool isValid() const { return registerIndex >= 0; }
    bool isField() const { return fieldIndex >= 0; }
};

/// A device description after expansion. Registers keep one flat numbering, 0 to registerCount() - 1, in the
/// description's order.
class Device
{
public:
    static constexpr int kRootNode = 0;

    QString name;
    QString description;
    QString vendor;
    QString version;
    QString sourceFile;

    Device();

    int registerCount() const { return static_cast<int>(m_registers.size()); }
    const QVector<Register>& registers() const { return m_registers; }
    const Register& registerAt(int index) const { return m_registers.at(index); }

    /// The tree; node kRootNode is the device, its children are the peripherals.
    const QVector<Node>& nodes() const { return m_nodes; }
    const Node& node(int index) const { return m_nodes.at(index); }
    /// The path of a node, such as "DMA.CH[2]"; empty for the device.
    QString nodePath(int index) const;

    int fieldCount() const { return m_fieldCount; } ///< of all registers together

    /// Index of the register with @p path, or -1. Of several with one path the first answers.
    int findRegister(const QString& path) const { return m_registerOfPath.value(path, -1); }
    /// Index of the register that begins at @p address, or else of one that covers it, or -1. Addresses are of bytes.
    int findAddress(quint64 address) const;
    /// The register or field with @p path.
    PathTarget find(const QString& path) const;
    /// Says which part of @p path leads nowhere; empty when find() finds it.
    QString explainMissing(const QString& path) const;

    void reserve(int registerCount, int nodeCount);
    /// Adds a peripheral or cluster at the end of @p parent's children; returns its node.
    int addGroup(int parent, NodeKind kind, const QString& groupName, const QString& groupDescription, quint64 address);
    /// Adds a register at the end of @p parent's children; @p reg has its path already. Returns its index.
    int addRegister(int parent, Register&& reg);

private:
    int addNode(int parent, Node&& node);
    int childNamed(int parent, const QString& childName) const;

    QVector<Register> m_registers;
    QVector<Node> m_nodes;
    QHash<QString, int> m_registerOfPath;
    int m_fieldCount = 0;
};

using DevicePtr = QSharedPointer<const Device>;

} // namespace registers
