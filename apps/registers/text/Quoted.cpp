// SPDX-License-Identifier: MIT
#include "text/Quoted.h"

namespace registers {

namespace {

constexpr int kLongestQuote = 60;

} // namespace

QString quoted(QStringView text)
{
    const QString shown =
        text.size() > kLongestQuote ? text.left(kLongestQuote).toString() + QStringLiteral("...") : text.toString();
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

} // namespace registers
