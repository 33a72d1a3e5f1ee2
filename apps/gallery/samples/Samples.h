// SPDX-License-Identifier: MIT
#pragma once

#include <qglobal.h>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace gallery {

// Every function makes a new widget without a parent; the card that shows it takes it over.

// Numbers
QWidget* makeIntegerBases();
QWidget* makeAffixes();
QWidget* makeWrapping();
QWidget* makeStepTypes();
QWidget* makeStates();
QWidget* makeDoubleFormats();
QWidget* makeRatioStep();
QWidget* makeDataComboBox();

// Services
QWidget* makePaletteChart();
QWidget* makeRandomColors();
QWidget* makeSpinBoxFactory();
QWidget* makeToolTips();
QWidget* makeStyledWidgets();
QWidget* makeFontInfo();
QWidget* makeResizing();
QWidget* makeSmallHelpers();
QWidget* makeGuardedBoxes();

// Items and bits
QWidget* makeItemTable();
QWidget* makeItemTree();

// Dialogs
QWidget* makeTextBrowser();
QWidget* makeScrollWidget();
QWidget* makeWaitCursor();

// Steps
QWidget* makeSteps();
QWidget* makeClickableSteps();
QWidget* makeAlignedSteps();
QWidget* makeVerticalSteps();
QWidget* makeUnmirroredSteps();

} // namespace gallery
