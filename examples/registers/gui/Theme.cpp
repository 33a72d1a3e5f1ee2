// SPDX-License-Identifier: MIT
#include "gui/Theme.h"

#include <Tessera/Tessera.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QWidget>

namespace registers {

namespace {

constexpr int kMiddleLightness = 128;
constexpr double kCaptionShare = 0.68;
constexpr double kDarkCardShare = 0.06;
constexpr double kLineShare = 0.18;

/// The desktop's fixed-pitch font, if it has one; else the library's font for numbers or another of the kind.
QStringList fixedFamilies()
{
    const QFont system = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontInfo(system).fixedPitch()) {
        return {system.family()};
    }
    return nsUI::tagAppFont().families.mid(0, 1) + QStringList{QStringLiteral("Monospace")};
}

double mixed(double front, double back, double share)
{
    return front * share + back * (1.0 - share);
}

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < kMiddleLightness;
}

QColor accentColor(const QPalette& palette, Accent accent)
{
    const auto& library = nsUI::TesseraGlobal::instance();
    const bool dark = isDark(palette);
    switch (accent) {
    case Accent::Changed:
        return library.getColor(nsUI::e_Info, dark ? nsUI::e_L300 : nsUI::e_L500);
    case Accent::Caution:
        return library.getColor(nsUI::e_Warning, dark ? nsUI::e_L300 : nsUI::e_L700);
    case Accent::Plain:
        break;
    }
    return captionColor(palette);
}

QColor captionColor(const QPalette& palette)
{
    return blended(palette.color(QPalette::WindowText), palette.color(QPalette::Window), kCaptionShare);
}

QColor lineColor(const QPalette& palette)
{
    return blended(palette.color(QPalette::WindowText), palette.color(QPalette::Window), kLineShare);
}

QColor cardColor(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    return isDark(palette) ? blended(palette.color(QPalette::WindowText), window, kDarkCardShare)
                           : palette.color(QPalette::Base);
}

Qt::Alignment leadingAlignment(const QWidget* widget)
{
    const bool mirrored = widget->layoutDirection() == Qt::RightToLeft;
    return (mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter;
}

QColor blended(const QColor& front, const QColor& back, double share)
{
    return QColor::fromRgbF(mixed(front.redF(), back.redF(), share), mixed(front.greenF(), back.greenF(), share),
                            mixed(front.blueF(), back.blueF(), share));
}

QFont numberFont(const QFont& font)
{
    static const QStringList families = fixedFamilies();
    QFont fixed = font;
    fixed.setFamilies(families);
    fixed.setStyleHint(QFont::TypeWriter);
    fixed.setFixedPitch(true);
    return fixed;
}

} // namespace registers
