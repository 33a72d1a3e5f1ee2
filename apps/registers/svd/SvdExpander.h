// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "svd/SvdDescription.h"
#include "svd/SvdDim.h"

#include <QHash>
#include <QSet>
#include <QSharedPointer>
#include <QVector>

#include <optional>
#include <vector>

namespace registers {

class SvdProgressMeter;
class SvdRemarks;

/// Makes a device of a description whose derivations are resolved: arrays become their copies, and registers
/// and fields get what they inherit.
class SvdExpander
{
public:
    SvdExpander(SvdDescription* description, SvdRemarks* remarks, SvdProgressMeter* meter);

    /// False when there was a problem, or when reading was cancelled.
    bool expand(Device* device);
    const std::optional<SvdProblem>& problem() const { return m_problem; }

private:
    /// How much an element comes to, with all its copies and all that is below.
    struct Extent
    {
        quint64 nodes = 0;
        quint64 registers = 0;
        quint64 fields = 0;
        bool isKnown = false;
    };
    struct Place
    {
        int treeNode = Device::kRootNode;
        QString path;
        quint64 address = 0;
        RawProperties inherited;
    };

    // Before: whether it makes sense, and how much it is.
    bool prepareDims();
    void prepareDim(qint32 dim, const QString& name, qint32 node, bool needsIncrement);
    quint64 copiesOf(qint32 dim) const;
    bool measure();
    const Extent& extentOf(qint32 id);
    quint64 fieldCountOf(const RawNode& reg) const;
    static void add(Extent* sum, const Extent& part);
    void checkExtent(const Extent& extent, const SvdPosition& position);

    // The work.
    void expandChildren(RawRange children, const Place& place);
    void expandNode(const RawNode& node, const Place& place);
    void expandCopy(const RawNode& node, const Place& place, const QString* index, quint64 number);
    void expandRegister(const RawNode& node, const Place& place, Register&& reg, const RawProperties& properties);
    const QVector<Field>& fieldsOf(RawRange fields, const Register& reg);
    void expandField(qint32 id, const Register& reg, QVector<Field>* fields);
    void remarkOutside(qint32 id, const Field& field, quint64 lsb, const Register& reg);
    qint32 enumerationFor(RawUsage wanted, RawRange enumerations) const;
    QSharedPointer<const Enumeration> enumerationOf(const RawField& raw);
    QSharedPointer<const Enumeration> makeEnumeration(const RawEnumeration& raw) const;

    void tick();
    void fail(const SvdPosition& position, const QString& message);

    SvdDescription& m_description;
    SvdRemarks& m_remarks;
    SvdProgressMeter& m_meter;
    Device* m_device = nullptr;
    std::vector<std::optional<SvdDimIndices>> m_dims;
    std::vector<Extent> m_extents;
    std::vector<QSharedPointer<const Enumeration>> m_enumerations;
    QHash<quint64, QVector<Field>> m_fields; ///< by their range, and the access and the size of their register
    QSet<qint32> m_outside;                  ///< the fields of which it is said that they leave their register
    Extent m_total;
    std::optional<SvdProblem> m_problem;
    quint64 m_steps = 0;
    bool m_isOver = false;
};

} // namespace registers
