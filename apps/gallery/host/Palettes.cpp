// SPDX-License-Identifier: MIT
#include "host/Palettes.h"

#include <Tessera/Tessera.h>

namespace gallery {

namespace {

/// What differs between the two palettes.
struct Tones
{
    QRgb window;
    QRgb base;
    QRgb alternate;
    QRgb button;
    QRgb text;
    QRgb dimmed;
    QRgb link;
};

constexpr Tones kLight{0xfff1f3f5, 0xffffffff, 0xfff5f7f9, 0xffe9ecef, 0xff1b2229, 0xff68727c, 0xff0d5081};
constexpr Tones kDark{0xff23282e, 0xff1a1e23, 0xff20252b, 0xff323940, 0xffe8ecf0, 0xff8f99a3, 0xff6ac4df};

void setTones(QPalette* palette, const Tones& tones)
{
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::BrightText}) {
        palette->setColor(role, QColor(tones.text));
    }
    palette->setColor(QPalette::Window, QColor(tones.window));
    palette->setColor(QPalette::Base, QColor(tones.base));
    palette->setColor(QPalette::ToolTipBase, QColor(tones.alternate));
    palette->setColor(QPalette::AlternateBase, QColor(tones.alternate));
    palette->setColor(QPalette::Link, QColor(tones.link));
    palette->setColor(QPalette::LinkVisited, QColor(tones.link));
    palette->setColor(QPalette::PlaceholderText, QColor(tones.dimmed));
}

void setSelection(QPalette* palette)
{
    const QColor ground = nsUI::TesseraGlobal::instance().getColor(nsUI::e_Primary, nsUI::e_L500);
    palette->setColor(QPalette::Highlight, ground);
    palette->setColor(QPalette::HighlightedText, nsUI::TesseraGlobal::getAdaptiveTextColor(ground));
}

void setDisabled(QPalette* palette, const Tones& tones)
{
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette->setColor(QPalette::Disabled, role, QColor(tones.dimmed));
    }
    palette->setColor(QPalette::Disabled, QPalette::Base, QColor(tones.window));
}

} // namespace

QPalette paletteOf(Shade shade)
{
    const Tones& tones = shade == Shade::Dark ? kDark : kLight;
    QPalette palette(QColor(tones.button), QColor(tones.window));
    setTones(&palette, tones);
    setSelection(&palette);
    setDisabled(&palette, tones);
    return palette;
}

} // namespace gallery
