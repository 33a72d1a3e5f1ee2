// SPDX-License-Identifier: MIT
#include "host/Look.h"

namespace gallery {

namespace {

template <class Value>
std::optional<Value> valueNamed(const QStringList& names, const QString& name)
{
    const auto place = names.indexOf(name);
    return place < 0 ? std::nullopt : std::optional<Value>(static_cast<Value>(place));
}

} // namespace

QStringList languageNames()
{
    return {QStringLiteral("en"), QStringLiteral("zh_CN")};
}

QStringList shadeNames()
{
    return {QStringLiteral("light"), QStringLiteral("dark")};
}

QStringList sheetNames()
{
    return {QStringLiteral("none"), QStringLiteral("tessera"), QStringLiteral("gallery")};
}

QStringList directionNames()
{
    static_assert(Qt::LeftToRight == 0 && Qt::RightToLeft == 1, "a direction is its name's place");
    return {QStringLiteral("ltr"), QStringLiteral("rtl")};
}

std::optional<Language> languageNamed(const QString& name)
{
    return valueNamed<Language>(languageNames(), name);
}

std::optional<Shade> shadeNamed(const QString& name)
{
    return valueNamed<Shade>(shadeNames(), name);
}

std::optional<Sheet> sheetNamed(const QString& name)
{
    return valueNamed<Sheet>(sheetNames(), name);
}

std::optional<Qt::LayoutDirection> directionNamed(const QString& name)
{
    return valueNamed<Qt::LayoutDirection>(directionNames(), name);
}

} // namespace gallery
