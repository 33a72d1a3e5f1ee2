// SPDX-License-Identifier: MIT
#include "look/Theme.h"

#include "common/Theme.h"

#include <Tessera/Tessera.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QWidget>

namespace registers {

namespace {

constexpr double kCaptionShare = 0.72;
constexpr double kDarkCardShare = 0.06;

/// The desktop's fixed-pitch font, if it has one; else the library's font for numbers or another of the kind.
QStringList fixedFamilies()
{
    const QFont system = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontInfo(system).fixedPitch()) {
        return {system.family()};
    }
    return nsUI::tagAppFont().families.mid(0, 1) + QStringList{QStringLiteral("Monospace")};
}

} // namespace

QColor accentColor(const QPalette& palette, Accent accent)
{
    const auto& library = nsUI::TesseraGlobal::instance();
    const bool dark = apps::isDark(palette);
    switch (accent) {
    case Accent::Changed:
        return library.getColor(nsUI::e_Info, dark ? nsUI::e_L300 : nsUI::e_L500);
    case Accent::Caution:
        return library.getColor(nsUI::e_Warning, dark ? nsUI::e_L300 : nsUI::e_L700);
    case Accent::Current:
        return library.getColor(nsUI::e_Success, dark ? nsUI::e_L300 : nsUI::e_L700);
    case Accent::Plain:
        break;
    }
    return captionColor(palette);
}

QColor captionColor(const QPalette& palette)
{
    return apps::tinted(palette, palette.color(QPalette::Window), kCaptionShare);
}

QColor cardColor(const QPalette& palette)
{
    return apps::cardColor(palette, kDarkCardShare);
}

Qt::Alignment leadingAlignment(const QWidget* widget)
{
    const bool mirrored = widget->layoutDirection() == Qt::RightToLeft;
    return (mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter;
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
