// SPDX-License-Identifier: MIT
#include "Contrast.h"

#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>

namespace looks {

namespace {

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

TextColors colorsOfText(const QImage& picture, const QRect& place)
{
    const QRect seen = place & picture.rect();
    QHash<QRgb, int> counts;
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    TextColors colors;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            colors.ground = QColor(it.key());
        }
    }
    colors.text = colors.ground;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        const QColor color(it.key());
        if (contrast(color, colors.ground) > colors.contrast()) {
            colors.text = color;
        }
    }
    return colors;
}

} // namespace looks
