// SPDX-License-Identifier: MIT
#include "svd/SvdDim.h"

#include "text/Quoted.h"

#include <algorithm>

namespace registers {

namespace {

const QLatin1String kPlaceholder("%s");

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isAsciiLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

/// A run of digits of a length that fits any sensible index.
std::optional<quint64> indexNumber(const QString& text)
{
    const bool isNumber = !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), isAsciiDigit);
    bool fits = false;
    const quint64 number = isNumber ? text.toULongLong(&fits) : 0;
    return fits ? std::optional<quint64>(number) : std::nullopt;
}

bool isListItem(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return isAsciiDigit(c) || isAsciiLetter(c) || c == QLatin1Char('_');
    });
}

} // namespace

SvdDimIndices SvdDimIndices::numbers(quint64 count)
{
    SvdDimIndices numbers;
    numbers.m_count = count;
    return numbers;
}

std::optional<SvdDimIndices> SvdDimIndices::of(const RawDim& dim, SvdDimProblem* problem)
{
    const quint64 count = dim.count.value_or(1);
    if (count > kMaxElements) {
        *problem = {dim.position,
                    QStringLiteral("<dim> is %1, and at most %2 was expected").arg(count).arg(kMaxElements), nullptr};
        return std::nullopt;
    }
    if (!dim.count) {
        *problem = {dim.position,
                    QStringLiteral("there is no <dim>, and one was expected beside <dimIncrement> and <dimIndex>"),
                    kOneCopy};
        return numbers(count);
    }
    if (dim.index.isEmpty()) {
        return numbers(count);
    }
    std::optional<SvdDimIndices> indices = fromText(dim.index);
    QString found;
    if (!indices) {
        found = QStringLiteral("<dimIndex> is %1, and a range such as 0-3 or A-D or a list such as A,B,C was expected")
                    .arg(quoted(dim.index));
    } else if (indices->m_count < count) {
        found = QStringLiteral("<dimIndex> %1 names %2, and as many as <dim> says, %3, were expected")
                    .arg(quoted(dim.index))
                    .arg(indices->m_count)
                    .arg(count);
    }
    if (!found.isEmpty()) {
        *problem = {dim.indexPosition, found, "the copies are numbered from 0"};
        return numbers(count);
    }
    indices->m_count = count; // names beyond the count are left over
    return indices;
}

QString SvdDimIndices::at(quint64 number) const
{
    switch (m_kind) {
    case Kind::Numbers:
        return QString::number(m_first + number);
    case Kind::Letters:
        return QString(QChar(ushort(m_first + number)));
    case Kind::Listed:
        return m_listed.at(int(number));
    }
    return QString();
}

std::optional<SvdDimIndices> SvdDimIndices::fromText(const QString& text)
{
    return text.contains(QLatin1Char('-')) ? fromRange(text) : fromList(text);
}

std::optional<SvdDimIndices> SvdDimIndices::fromRange(const QString& text)
{
    const QStringList ends = text.split(QLatin1Char('-'));
    if (ends.size() != 2) {
        return std::nullopt;
    }
    const QString first = ends.at(0).trimmed();
    const QString last = ends.at(1).trimmed();
    SvdDimIndices range;
    const std::optional<quint64> firstNumber = indexNumber(first);
    const std::optional<quint64> lastNumber = indexNumber(last);
    if (firstNumber && lastNumber && *firstNumber <= *lastNumber) {
        range.m_first = *firstNumber;
        range.m_count = *lastNumber - *firstNumber + 1;
        return range;
    }
    const bool areLetters = first.size() == 1 && last.size() == 1 && isAsciiLetter(first.at(0)) &&
                            isAsciiLetter(last.at(0)) && first.at(0).isUpper() == last.at(0).isUpper();
    if (areLetters && first.at(0) <= last.at(0)) {
        range.m_kind = Kind::Letters;
        range.m_first = first.at(0).unicode();
        range.m_count = quint64(last.at(0).unicode() - first.at(0).unicode()) + 1;
        return range;
    }
    return std::nullopt;
}

std::optional<SvdDimIndices> SvdDimIndices::fromList(const QString& text)
{
    SvdDimIndices list;
    list.m_kind = Kind::Listed;
    QStringList items = text.split(QLatin1Char(','));
    if (items.size() > 1 && items.constLast().trimmed().isEmpty()) {
        items.removeLast(); // a comma after the last name
    }
    for (const QString& item : qAsConst(items)) {
        list.m_listed.append(item.trimmed());
        if (!isListItem(list.m_listed.constLast())) {
            return std::nullopt;
        }
    }
    list.m_count = quint64(list.m_listed.size());
    return list;
}

bool hasPlaceholder(const QString& text)
{
    return text.contains(kPlaceholder);
}

QString withIndex(const QString& text, const QString& index)
{
    QString result = text;
    return result.replace(kPlaceholder, index);
}

QString copyName(const QString& name, const QString& index, quint64 count)
{
    if (hasPlaceholder(name)) {
        return withIndex(name, index);
    }
    return count > 1 ? name + index : name;
}

bool isCopyName(const RawDim& dim, const QString& name, const QString& wanted)
{
    SvdDimProblem ignored;
    const std::optional<SvdDimIndices> indices = SvdDimIndices::of(dim, &ignored);
    for (quint64 i = 0; indices && i < indices->count(); ++i) {
        if (copyName(name, indices->at(i), indices->count()) == wanted) {
            return true;
        }
    }
    return false;
}

} // namespace registers
