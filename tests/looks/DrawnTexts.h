// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace looks {

/// A piece of text as a widget has painted it.
struct DrawnText
{
    QString text;
    QRect place; ///< in the widget
};

/// What @p widget itself writes, its children not, wherever it takes the text from: what it paints is recorded.
QVector<DrawnText> drawnTexts(QWidget* widget);

} // namespace looks
