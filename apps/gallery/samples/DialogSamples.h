// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QDialog;
class QWidget;
QT_END_NAMESPACE

namespace gallery {

// Every make function makes a dialog that belongs to @p parent; the outcome functions tell what was chosen in it.

QDialog* makePenDialog(QWidget* parent);
QString penOutcome(QDialog* dialog);

QDialog* makeFontDialog(QWidget* parent);
/// Puts the chosen font into effect, too.
QString fontOutcome(QDialog* dialog);

QDialog* makeProgressDialog(QWidget* parent);
/// Lets the dialog report on some work, and accepts it at the end.
void startProgress(QDialog* dialog);

QDialog* makeMessageDialog(QWidget* parent);

QDialog* makeInputDialog(QWidget* parent);
QString inputOutcome(QDialog* dialog);

QDialog* makeBitDialog(QWidget* parent);
QString bitOutcome(QDialog* dialog);

} // namespace gallery
