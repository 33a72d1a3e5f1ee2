// SPDX-License-Identifier: MIT
#include "common/Theme.h"

namespace apps {

namespace {

constexpr int kMiddleLightness = 128;
constexpr double kLineShare = 0.18;

float mixed(double front, double back, double share)
{
    return static_cast<float>(front * share + back * (1.0 - share));
}

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < kMiddleLightness;
}

QColor blended(const QColor& front, const QColor& back, double share)
{
    return QColor::fromRgbF(mixed(front.redF(), back.redF(), share), mixed(front.greenF(), back.greenF(), share),
                            mixed(front.blueF(), back.blueF(), share));
}

QColor tinted(const QPalette& palette, const QColor& back, double share)
{
    return blended(palette.color(QPalette::WindowText), back, share);
}

QColor lineColor(const QPalette& palette)
{
    return tinted(palette, palette.color(QPalette::Window), kLineShare);
}

QColor cardColor(const QPalette& palette, double darkShare)
{
    return isDark(palette) ? tinted(palette, palette.color(QPalette::Window), darkShare)
                           : palette.color(QPalette::Base);
}

} // namespace apps
