// SPDX-License-Identifier: MIT
#include "cards/Theme.h"

#include "common/Theme.h"

namespace gallery {

namespace {

constexpr double kDarkCardShare = 0.04;
constexpr double kCodeShare = 0.05;
constexpr double kCaptionShare = 0.74;

} // namespace

QColor cardColor(const QPalette& palette)
{
    return apps::cardColor(palette, kDarkCardShare);
}

QColor codeColor(const QPalette& palette)
{
    return apps::isDark(palette) ? palette.color(QPalette::Base)
                                 : apps::tinted(palette, cardColor(palette), kCodeShare);
}

QColor captionColor(const QPalette& palette)
{
    return apps::tinted(palette, palette.color(QPalette::Window), kCaptionShare);
}

} // namespace gallery
