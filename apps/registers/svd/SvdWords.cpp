// SPDX-License-Identifier: MIT
#include "svd/SvdWords.h"

namespace registers {

namespace {

/// Compares words without regard to case and to what stands between their parts, which vendors mix up. @p folded has
/// lower case letters only.
bool isKeyword(QStringView text, const char* folded)
{
    for (const QChar c : text) {
        if (c == QLatin1Char('-') || c == QLatin1Char('_') || c == QLatin1Char('/') || c.isSpace()) {
            continue;
        }
        if (*folded == '\0' || (c != QLatin1Char(*folded) && c.toLower() != QLatin1Char(*folded))) {
            return false;
        }
        ++folded;
    }
    return *folded == '\0';
}

template <typename Meaning>
struct Word
{
    const char* folded;
    Meaning meaning;
};

// The most frequent one first, and after the schema's own the short forms that are met.
constexpr Word<Access> kAccessWords[] = {
    {"readwrite", Access::ReadWrite},
    {"readonly", Access::ReadOnly},
    {"writeonly", Access::WriteOnly},
    {"writeonce", Access::WriteOnce},
    {"readwriteonce", Access::ReadWriteOnce},
    {"rw", Access::ReadWrite},
    {"ro", Access::ReadOnly},
    {"wo", Access::WriteOnly},
    {"read", Access::ReadOnly},
    {"write", Access::WriteOnly},
};

constexpr Word<RawUsage> kUsageWords[] = {
    {"read", RawUsage::Read},
    {"write", RawUsage::Write},
    {"readwrite", RawUsage::ReadWrite},
};

constexpr Word<bool> kReadActionWords[] = {
    {"clear", true},
    {"set", true},
    {"modify", true},
    {"modifyexternal", true},
    {"modifyexternally", true}, // met for the one before
    {"none", false},
};

template <typename Meaning, size_t kCount>
std::optional<Meaning> meaningOf(QStringView text, const Word<Meaning> (&words)[kCount])
{
    for (const Word<Meaning>& word : words) {
        if (isKeyword(text, word.folded)) {
            return word.meaning;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<Access> parseSvdAccess(QStringView text)
{
    return meaningOf(text, kAccessWords);
}

std::optional<RawUsage> parseSvdUsage(QStringView text)
{
    return meaningOf(text, kUsageWords);
}

std::optional<bool> parseSvdReadAction(QStringView text)
{
    return meaningOf(text, kReadActionWords);
}

} // namespace registers
