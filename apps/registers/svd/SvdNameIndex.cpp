// SPDX-License-Identifier: MIT
#include "svd/SvdNameIndex.h"

#include <algorithm>

namespace registers {

void SvdNameIndex::add(const QString& name, bool isArray, qint32 id)
{
    m_byName[name].append(id);
    const int placeholder = static_cast<int>(name.indexOf(QLatin1String("%s")));
    if (isArray || placeholder >= 0) {
        const QString beginning = placeholder < 0 ? name : name.left(placeholder);
        m_byBeginning[beginning].append(qint32(m_arrays.size()));
        m_lengths.insert(static_cast<int>(beginning.size()));
        m_arrays.push_back(id);
    }
}

std::vector<qint32> SvdNameIndex::arraysFor(const QString& name) const
{
    std::vector<qint32> places;
    for (const int length : m_lengths) {
        if (length > name.size()) {
            break;
        }
        const QVector<qint32> found = m_byBeginning.value(name.left(length));
        places.insert(places.end(), found.cbegin(), found.cend());
    }
    std::sort(places.begin(), places.end());
    std::transform(places.cbegin(), places.cend(), places.begin(),
                   [this](qint32 place) { return m_arrays[size_t(place)]; });
    return places;
}

} // namespace registers
