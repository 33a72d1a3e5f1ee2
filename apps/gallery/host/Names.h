// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace gallery {

/// The pages by the names that --page takes, in the order of the navigation.
inline QStringList pageNames()
{
    return {QStringLiteral("numbers"), QStringLiteral("services"), QStringLiteral("items"), QStringLiteral("dialogs"),
            QStringLiteral("steps")};
}

/// The dialogs by the names that --dialog takes.
inline QStringList dialogNames()
{
    return {QStringLiteral("pen"),     QStringLiteral("font"),  QStringLiteral("progress"),
            QStringLiteral("message"), QStringLiteral("input"), QStringLiteral("bit")};
}

} // namespace gallery
