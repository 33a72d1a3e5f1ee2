// SPDX-License-Identifier: MIT
#include "gui/Theme.h"

namespace gallery {

namespace {

constexpr int kMiddleLightness = 128;
constexpr double kDarkCardShare = 0.04;
constexpr double kCodeShare = 0.05;
constexpr double kLineShare = 0.18;
constexpr double kCaptionShare = 0.74;

double mixed(double front, double back, double share)
{
    return front * share + back * (1.0 - share);
}

/// The text's colour over @p back, with @p share of it from 0 to 1.
QColor tinted(const QPalette& palette, const QColor& back, double share)
{
    const QColor front = palette.color(QPalette::WindowText);
    return QColor::fromRgbF(mixed(front.redF(), back.redF(), share), mixed(front.greenF(), back.greenF(), share),
                            mixed(front.blueF(), back.blueF(), share));
}

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < kMiddleLightness;
}

QColor cardColor(const QPalette& palette)
{
    return isDark(palette) ? tinted(palette, palette.color(QPalette::Window), kDarkCardShare)
                           : palette.color(QPalette::Base);
}

QColor codeColor(const QPalette& palette)
{
    return isDark(palette) ? palette.color(QPalette::Base) : tinted(palette, cardColor(palette), kCodeShare);
}

QColor lineColor(const QPalette& palette)
{
    return tinted(palette, palette.color(QPalette::Window), kLineShare);
}

QColor captionColor(const QPalette& palette)
{
    return tinted(palette, palette.color(QPalette::Window), kCaptionShare);
}

} // namespace gallery
