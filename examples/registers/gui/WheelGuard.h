// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace registers {

/// Keeps the mouse wheel from changing a spin box or combo box that merely lies under the pointer. Without the
/// focus such a box lets the wheel through to the scroll area around it, and the wheel does not give it the focus.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards @p box, and the line edit in it, for as long as it lives.
    static void protect(QWidget* box);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WheelGuard(QWidget* box);

    void scrollForm(QEvent* event) const;

    QWidget* m_box;
};

} // namespace registers
