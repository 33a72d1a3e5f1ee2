// SPDX-License-Identifier: MIT
#pragma once

// Texts of the catalogues whose classes are not written yet. lupdate reads this file; nothing includes it. A class that
// arrives takes its texts along.

#include <QtGlobal>

namespace {

const char* const c_fontSettings[] = {
    QT_TRANSLATE_NOOP("FontSettingDlg", "Font Settings"), QT_TRANSLATE_NOOP("FontSettingDlg", "Font Size:"),
    QT_TRANSLATE_NOOP("FontSettingDlg", "Italic"),        QT_TRANSLATE_NOOP("FontSettingDlg", "Bold"),
    QT_TRANSLATE_NOOP("FontSettingDlg", "Example"),       QT_TRANSLATE_NOOP("nsUI::FontSettingDlg", "Example Text"),
};

const char* const c_textBrowser[] = {QT_TRANSLATE_NOOP("nsUI::CustomTextBrowser", "Clear")};

} // namespace
