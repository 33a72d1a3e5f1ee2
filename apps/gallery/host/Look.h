// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <Qt>

#include <optional>

namespace gallery {

enum class Language { English, Chinese };

/// Which of the host's palettes is in force.
enum class Shade { Light, Dark };

/// Which style sheets are loaded behind the font's rule.
enum class Sheet {
    None,    ///< none
    Tessera, ///< the library's
    Gallery  ///< the library's, and the gallery's own over it
};

/// How the gallery looks: everything that can be changed while it runs.
struct Look
{
    Language language = Language::English;
    Shade shade = Shade::Light;
    Sheet sheet = Sheet::Gallery;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// The names on the command line, in the order of the enumerators.
QStringList languageNames();
QStringList shadeNames();
QStringList sheetNames();
QStringList directionNames();

/// The reverse; nothing for a name that is not in the list.
std::optional<Language> languageNamed(const QString& name);
std::optional<Shade> shadeNamed(const QString& name);
std::optional<Sheet> sheetNamed(const QString& name);
std::optional<Qt::LayoutDirection> directionNamed(const QString& name);

} // namespace gallery
