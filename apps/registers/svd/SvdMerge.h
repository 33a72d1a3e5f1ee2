// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"

#include <QHash>
#include <QString>
#include <QVector>

#include <vector>

namespace registers {

/// The list of a derived element: the base's, in which an own element replaces the one with its name in that
/// one's place, and then the own elements whose names are new. Both lists are ranges of @p ids, and so is the
/// result; @p nameOf gives the name of an id.
template <typename NameOf>
RawRange mergedByName(std::vector<qint32>* ids, RawRange own, RawRange base, NameOf nameOf)
{
    if (own.count == 0 || base.count == 0) {
        return own.count == 0 ? base : own;
    }
    QHash<QString, QVector<qint32>> waiting; // several elements may have one name: they go in pairs
    for (qint32 i = own.first; i < own.end(); ++i) {
        const qint32 id = (*ids)[size_t(i)];
        waiting[nameOf(id)].append(id);
    }
    std::vector<qint32> merged;
    merged.reserve(size_t(own.count) + size_t(base.count));
    for (qint32 i = base.first; i < base.end(); ++i) {
        const qint32 id = (*ids)[size_t(i)];
        const auto replacement = waiting.find(nameOf(id));
        const bool isReplaced = replacement != waiting.end() && !replacement->isEmpty();
        merged.push_back(isReplaced ? replacement->takeFirst() : id);
    }
    for (qint32 i = own.first; i < own.end(); ++i) {
        const qint32 id = (*ids)[size_t(i)];
        QVector<qint32>& left = waiting[nameOf(id)];
        if (!left.isEmpty() && left.constFirst() == id) {
            merged.push_back(left.takeFirst());
        }
    }
    const RawRange range{qint32(ids->size()), qint32(merged.size())};
    ids->insert(ids->end(), merged.cbegin(), merged.cend());
    return range;
}

/// The dim of an element that inherits from a base with one.
inline qint32 inheritedDim(SvdDescription* description, qint32 own, qint32 base)
{
    if (own < 0 || base < 0) {
        return own < 0 ? base : own;
    }
    RawDim& dim = description->dim(own);
    const RawDim& baseDim = description->dim(base);
    if (dim.index.isEmpty() && (!dim.count || dim.count == baseDim.count)) {
        dim.index = baseDim.index;
        dim.indexPosition = baseDim.indexPosition;
    }
    if (!dim.count && baseDim.count) {
        dim.count = baseDim.count;
        dim.position = baseDim.position;
    }
    dim.increment = dim.increment ? dim.increment : baseDim.increment;
    return own;
}

} // namespace registers
