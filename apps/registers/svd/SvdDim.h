// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace registers {

/// What is taken of an array that does not say how its copies follow each other.
constexpr const char* kOneCopy = "one copy is taken";

/// Why an array is not what its description says, and where.
struct SvdDimProblem
{
    SvdPosition position;
    QString found;               ///< empty when there is none
    const char* taken = nullptr; ///< what is taken instead
};

/// What stands for %s in the copies of an array or a list, made as it is asked for: a description can call for
/// many copies in few words.
class SvdDimIndices
{
public:
    /// What can be made of @p dim; @p problem says where that is not what it states. Nothing when it calls for absurdly
    /// many copies.
    static std::optional<SvdDimIndices> of(const RawDim& dim, SvdDimProblem* problem);
    /// 0 to @p count - 1.
    static SvdDimIndices numbers(quint64 count);

    quint64 count() const { return m_count; }
    QString at(quint64 number) const;
    void keepFirst() { m_count = 1; }

private:
    enum class Kind { Numbers, Letters, Listed };

    static std::optional<SvdDimIndices> fromText(const QString& text);
    static std::optional<SvdDimIndices> fromRange(const QString& text);
    static std::optional<SvdDimIndices> fromList(const QString& text);

    Kind m_kind = Kind::Numbers;
    quint64 m_first = 0; ///< a number, or a letter's code
    quint64 m_count = 0;
    QStringList m_listed;
};

/// True when @p text has a place for the index.
bool hasPlaceholder(const QString& text);
/// @p text with @p index in the place of %s.
QString withIndex(const QString& text, const QString& index);
/// The name of one copy: @p name with the index in it, or behind it when it has no place for it and there is
/// more than one copy.
QString copyName(const QString& name, const QString& index, quint64 count);
/// True when one of the copies that @p dim makes of @p name is called @p wanted.
bool isCopyName(const RawDim& dim, const QString& name, const QString& wanted);

} // namespace registers
