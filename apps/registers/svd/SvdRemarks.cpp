// SPDX-License-Identifier: MIT
#include "svd/SvdRemarks.h"

#include "svd/SvdDim.h"
#include "text/Quoted.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace registers {

namespace {

/// What an element is called; of an array, its first copy.
QString shownName(const SvdDescription& description, const RawNode& node)
{
    if (node.dim < 0) {
        return node.name;
    }
    SvdDimProblem ignored;
    const std::optional<SvdDimIndices> indices = SvdDimIndices::of(description.dim(node.dim), &ignored);
    return indices ? copyName(node.name, indices->at(0), indices->count()) : node.name;
}

/// The paths of registers. Many remarks concern one register or array, whose index is read for the first of them.
class RegisterPaths
{
public:
    explicit RegisterPaths(const SvdDescription& description)
        : m_description(description)
    {
    }

    QString of(qint32 node)
    {
        if (node == kNoNode || m_description.node(node).kind != NodeKind::Register) {
            return QString();
        }
        QStringList names;
        for (qint32 at = node; at != kNoNode; at = m_description.node(at).parent) {
            names.prepend(nameOf(at));
        }
        return names.join(QLatin1Char('.'));
    }

private:
    const QString& nameOf(qint32 node)
    {
        auto found = m_names.find(node);
        if (found == m_names.end()) {
            found = m_names.insert(node, shownName(m_description, m_description.node(node)));
        }
        return *found;
    }

    const SvdDescription& m_description;
    QHash<qint32, QString> m_names;
};

bool isBefore(const SvdPosition& a, const SvdPosition& b)
{
    return a.line < b.line || (a.line == b.line && a.column < b.column);
}

} // namespace

QString cyclicReference(const QString& reference)
{
    return QStringLiteral("derivedFrom=%1 leads back to where it stands, and a base that does not was expected")
        .arg(quoted(reference));
}

QString deadReference(const QString& reference, QLatin1String element)
{
    return QStringLiteral("derivedFrom=%1 leads to no <%2>, and the name or the dotted path of one was expected")
        .arg(quoted(reference), element);
}

void SvdRemarks::add(const SvdPosition& position, const QString& found, const char* taken, qint32 node)
{
    if (m_remarks.size() < kMostKept) {
        m_remarks.push_back({position, found + QLatin1String("; ") + QLatin1String(taken), node});
    }
    ++m_count;
}

QVector<SvdMessage> SvdRemarks::messages(const SvdDescription& description, const Device& device) const
{
    std::vector<Remark> sorted = m_remarks;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Remark& a, const Remark& b) { return isBefore(a.position, b.position); });
    RegisterPaths paths(description);
    QVector<SvdMessage> result;
    result.reserve(static_cast<int>(sorted.size()));
    for (const Remark& remark : sorted) {
        const QString path = paths.of(remark.node);
        const bool isShown = !path.isEmpty() && device.findRegister(path) >= 0;
        result.append(
            {device.sourceFile, remark.position.line, remark.position.column, remark.text, isShown ? path : QString()});
    }
    return result;
}

} // namespace registers
