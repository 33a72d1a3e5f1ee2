// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/// Keeps the mouse wheel from changing a box that merely lies under the pointer: a box without the focus
/// lets the page that it stands on scroll instead.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards every spin box and combo box in @p widget, itself included.
    static void protectBoxesIn(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

} // namespace gallery
