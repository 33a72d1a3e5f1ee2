// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"
#include "svd/SvdReader.h"

#include <QString>
#include <QVector>

#include <vector>

namespace registers {

constexpr qint32 kNoNode = -1;

/// What takes the place of a word or a number that says nothing.
constexpr const char* kNotSaid = "it counts as not said";
constexpr const char* kNameOfBase = "that of its base is taken";
constexpr const char* kFieldLeftOut = "the field is left out";
constexpr const char* kInherited = "it counts as not said, so what stands above holds";

constexpr const char* leftOut(NodeKind kind)
{
    return kind == NodeKind::Peripheral
               ? "the peripheral is left out"
               : (kind == NodeKind::Cluster ? "the cluster is left out" : "the register is left out");
}

/// What is wrong with a derivedFrom that leads to its own element, and with one that leads to no @p element.
QString cyclicReference(const QString& reference);
QString deadReference(const QString& reference, QLatin1String element);

/// Gathers what is wrong with a description and leaves the rest of it readable.
class SvdRemarks
{
public:
    /// Of more than these the number alone is told.
    static constexpr size_t kMostKept = 10000;

    /// @p found says what is wrong and what was expected, @p taken what was taken instead; @p node is the element that
    /// it concerns, or kNoNode.
    void add(const SvdPosition& position, const QString& found, const char* taken, qint32 node = kNoNode);

    qint64 count() const { return m_count; }
    /// Those that are kept, in the file's order. A path is given where @p device has such a register.
    QVector<SvdMessage> messages(const SvdDescription& description, const Device& device) const;

private:
    struct Remark
    {
        SvdPosition position;
        QString text;
        qint32 node = kNoNode;
    };

    std::vector<Remark> m_remarks;
    qint64 m_count = 0;
};

} // namespace registers
