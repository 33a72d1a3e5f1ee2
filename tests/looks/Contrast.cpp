// SPDX-License-Identifier: MIT
#include "Contrast.h"

#include <QHash>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>

namespace looks {

namespace {

using Parts = std::array<double, 256>;

Parts linearParts()
{
    Parts parts{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double part = static_cast<double>(i) / 255.0;
        parts[i] = part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return parts;
}

double linear(int part)
{
    static const Parts parts = linearParts();
    return parts[static_cast<std::size_t>(part)];
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
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
