// SPDX-License-Identifier: MIT
#pragma once

// Texts of the catalogues whose classes are not written yet, and those that are looked up by context at run time.
// lupdate reads this file; nothing includes it. A class that arrives takes its texts along.

#include <QtGlobal>

namespace {

const char* const c_translator[] = {
    QT_TRANSLATE_NOOP("Translator", "True"),
    QT_TRANSLATE_NOOP("Translator", "False"),
    QT_TRANSLATE_NOOP("Translator", "Undefined"),
};

const char* const c_fontSettings[] = {
    QT_TRANSLATE_NOOP("FontSettingDlg", "Font Settings"), QT_TRANSLATE_NOOP("FontSettingDlg", "Font Size:"),
    QT_TRANSLATE_NOOP("FontSettingDlg", "Italic"),        QT_TRANSLATE_NOOP("FontSettingDlg", "Bold"),
    QT_TRANSLATE_NOOP("FontSettingDlg", "Example"),       QT_TRANSLATE_NOOP("nsUI::FontSettingDlg", "Example Text"),
};

const char* const c_bits[] = {
    QT_TRANSLATE_NOOP("nsUI::CBitDialog", "Bit Settings"), QT_TRANSLATE_NOOP("nsUI::CBitDialog", "HEX:"),
    QT_TRANSLATE_NOOP("nsUI::CBitDialog", "BIN:"),         QT_TRANSLATE_NOOP("nsUI::CBitModel", "Bit Position"),
    QT_TRANSLATE_NOOP("nsUI::CBitModel", "Bit Value"),     QT_TRANSLATE_NOOP("nsUI::CBitModel", "Description"),
};

const char* const c_pen[] = {
    QT_TRANSLATE_NOOP("nsUI::CPenDialog", "Pen Settings"), QT_TRANSLATE_NOOP("nsUI::CPenDialog", "Color:"),
    QT_TRANSLATE_NOOP("nsUI::CPenDialog", "Line Width:"),  QT_TRANSLATE_NOOP("nsUI::CPenDialog", "Style:"),
    QT_TRANSLATE_NOOP("nsUI::CPenDialog", "NoPen"),        QT_TRANSLATE_NOOP("nsUI::CPenDialog", "SolidLine"),
    QT_TRANSLATE_NOOP("nsUI::CPenDialog", "DashLine"),     QT_TRANSLATE_NOOP("nsUI::CPenDialog", "DotLine"),
    QT_TRANSLATE_NOOP("nsUI::CPenDialog", "DashDotLine"),  QT_TRANSLATE_NOOP("nsUI::CPenDialog", "DashDotDotLine"),
    QT_TRANSLATE_NOOP("nsUI::CPenDialog", "Undefine"),
};

const char* const c_textBrowser[] = {QT_TRANSLATE_NOOP("nsUI::CustomTextBrowser", "Clear")};

} // namespace
