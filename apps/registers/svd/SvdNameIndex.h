// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QVector>

#include <set>
#include <vector>

namespace registers {

/// The elements of one list by their names. A description may hold very many, and as many that refer to them.
class SvdNameIndex
{
public:
    /// Elements are added in the order in which they are to be found. @p isArray tells one that has copies.
    void add(const QString& name, bool isArray, qint32 id);

    QVector<qint32> named(const QString& name) const { return m_byName.value(name); }
    /// The arrays of which a copy may be called @p name: its beginning is theirs.
    std::vector<qint32> arraysFor(const QString& name) const;

private:
    QHash<QString, QVector<qint32>> m_byName;
    std::vector<qint32> m_arrays;                  ///< in their order
    QHash<QString, QVector<qint32>> m_byBeginning; ///< into m_arrays
    std::set<int> m_lengths;                       ///< of all beginnings
};

} // namespace registers
