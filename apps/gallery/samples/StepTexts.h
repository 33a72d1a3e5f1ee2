// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace nsUI {
class CStepBar;
}

namespace gallery {

/// The steps of the bars, in the language that is in force.
QStringList stepTexts();

/// Keeps the texts of @p bar, which has the steps of stepTexts(), in the language that is in force.
void followLanguage(nsUI::CStepBar* bar);

} // namespace gallery
