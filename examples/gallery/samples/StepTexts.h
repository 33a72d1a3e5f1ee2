// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace nsUI {
class CStepBar;
}

namespace gallery {

/// The steps of the bars, in the language that is in force.
QStringList stepTexts();

/// Keeps the texts of @p bar, which has the steps of stepTexts(), in the language that is in force, and its arrows in the
/// direction in which the window is read.
void followWindow(nsUI::CStepBar* bar);

} // namespace gallery
