// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>
#include <QVector>

namespace looks {

/// One of the ways that the windows are looked at. The scale is the process's: QT_SCALE_FACTOR gives it.
struct Setting
{
    bool isChinese = false;
    bool isDark = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    int scale = 1;

    /// "zh_CN-dark-rtl-2x"
    QString name() const;
    QString language() const;

    /// True for the four of which pictures are kept: of all languages, palettes, directions and scales, each appears
    /// in two.
    bool hasPictures() const;
};

/// All that one process can show, eight.
QVector<Setting> settingsOfProcess();

/// What has to be said before the application's object is made. The fonts are those of fonts.conf.
void prepareApplication();

/// Takes the style and the font that the pictures were made with, and answers what is missing for them; nothing when
/// all is there.
QString pinLooks();

} // namespace looks
