// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/// Shows the dialog of one of dialogNames() over @p parent until the user closes it. The answer tells what was chosen;
/// it is empty on a cancel.
QString openDialog(const QString& name, QWidget* parent);

} // namespace gallery
