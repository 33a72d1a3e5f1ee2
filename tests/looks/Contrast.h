// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

QT_BEGIN_NAMESPACE
class QImage;
class QRect;
QT_END_NAMESPACE

namespace looks {

/// What WCAG 2.1 wants of text that is not large, in its success criterion 1.4.3.
constexpr double kLeastContrast = 4.5;

/// The contrast ratio of two colours, from 1 to 21, as WCAG 2.1 defines it:
/// https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio and https://www.w3.org/TR/WCAG21/#dfn-relative-luminance
double contrast(const QColor& one, const QColor& other);

/// A text's colour and what it stands on.
struct TextColors
{
    QColor text;
    QColor ground;

    double contrast() const { return looks::contrast(text, ground); }
};

/// The colours of the text in @p place of @p picture: the ground is the most frequent colour, and the text's is the
/// one that stands out most from it, which is where the strokes are full.
TextColors colorsOfText(const QImage& picture, const QRect& place);

} // namespace looks
